#include "zelhost/apiwrapper/client/CTransfer.h"

#include "zelhost/apiwrapper/client/CZelto.h"

namespace {

constexpr int kFirstFinalStatus = 8;  // failed, cancelled or complete
constexpr int kLastFinalStatus = 10;

}  // namespace

CTransfer::~CTransfer() {
  if (CZelto* root = client::RootOf(*this)) root->m_transfers.Forget(this);
}

void CTransfer::OnChange(int property, const ZEString& value) {
  const CZelto* root = client::RootOf(*this);
  if (root != nullptr && root->IsTraced(kTraceTransfer)) {
    const ZEStringList words = getPropDebug(property, value);
    root->trace(kTraceTransfer, ".%s,%s:%s = %s", static_cast<const char*>(GetProp(P_PARTNER_IDENTITY)),
                static_cast<const char*>(GetProp(P_PARTNER_DISPLAY_NAME)), static_cast<const char*>(words[1]),
                static_cast<const char*>(words[2]));
  }
  if (property != P_STATUS) return;
  const int status = value.toInt();
  if (status >= kFirstFinalStatus && status <= kLastFinalStatus) delete this;
}
