#include "zelhost/apiwrapper/client/CContact.h"

#include "zelhost/apiwrapper/client/CZelto.h"

void CContact::OnContactGoneOffline() {
  const CZelto* root = client::RootOf(*this);
  if (root == nullptr || !root->IsTraced(kTraceContact)) return;
  root->trace(kTraceContact, ":OnContactGoneOffline() = %s", static_cast<const char*>(GetProp(P_IDENTITY)));
}
