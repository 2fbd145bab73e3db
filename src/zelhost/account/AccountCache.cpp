#include "zelhost/account/AccountCache.h"

#include "apiwrapper/Account.h"
#include "zelhost/account/AccountProperties.h"

void AccountCache::SetCapability(int capability, int status, int expiry) {
  Capability& kept = m_Capabilities[capability];
  kept.status = std::to_string(status);
  kept.expiry = status == Account::NO_CAPABILITY ? 0 : expiry;
}

void AccountCache::CommitPending() {
  for (auto& [property, value] : m_PendingServerSideProps) m_AccountInfo[property] = value;
  m_PendingServerSideProps.clear();
}

void AccountCache::Reset() {
  for (const int property : zelhost::kAccountProperties) m_AccountInfo[property].clear();
  for (const int capability : zelhost::kAccountCapabilities) m_Capabilities[capability] = {};
  m_PendingServerSideProps.clear();
}
