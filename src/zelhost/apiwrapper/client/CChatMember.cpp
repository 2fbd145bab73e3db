#include "zelhost/apiwrapper/client/CChatMember.h"

#include "zelhost/apiwrapper/client/CZelto.h"

void CChatMember::OnChange(int property, const ZEString& value) {
  const CZelto* root = client::RootOf(*this);
  if (root == nullptr || !root->IsTraced(kTraceChatMember)) return;
  const ZEStringList words = getPropDebug(property, value);
  root->trace(kTraceChatMember, ".%s,%s:%s = %s", static_cast<const char*>(words[0]),
              static_cast<const char*>(GetProp(P_2)), static_cast<const char*>(words[1]),
              static_cast<const char*>(words[2]));
}
