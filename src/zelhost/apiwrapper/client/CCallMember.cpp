#include "zelhost/apiwrapper/client/CCallMember.h"

#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "zelhost/apiwrapper/client/CZelto.h"

void CCallMember::OnIncomingDTMF(CallMember::DTMF tone) {
  const CZelto* root = client::RootOf(*this);
  if (root == nullptr || !root->IsTraced(kTraceCallMember)) return;
  root->trace(kTraceCallMember, ".%s,%s:OnIncomingDTMF = %s", static_cast<const char*>(GetProp(P_IDENTITY)),
              static_cast<const char*>(GetProp(P_DISPLAY_NAME)),
              static_cast<const char*>(ZEPMap(CALLMEMBER_DTMF_MAP).map(tone)));
}
