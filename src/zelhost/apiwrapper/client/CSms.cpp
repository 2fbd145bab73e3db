#include "zelhost/apiwrapper/client/CSms.h"

#include "zelhost/apiwrapper/client/CZelto.h"

namespace {

constexpr int kNumbers = 10;  // whom the message goes to

}  // namespace

void CSms::OnChange(int property, const ZEString& value) {
  const CZelto* root = client::RootOf(*this);
  if (root == nullptr || !root->IsTraced(kTraceSms)) return;
  const ZEStringList words = getPropDebug(property, value);
  root->trace(kTraceSms, ".%s:%s = %s", static_cast<const char*>(GetProp(kNumbers)),
              static_cast<const char*>(words[1]), static_cast<const char*>(words[2]));
}
