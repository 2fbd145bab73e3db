// Calling by voice: the names that a viewer may say, and who is meant by them.
#include <algorithm>

#include "Common/Log.h"
#include "Common/RecordWriter.h"
#include "Common/ZeltoManager.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/contacts/ZelhostContactManager.h"

using zelhost::ServiceHostLock;

// The first entry that is shown by that name or has it as its identity; null when there is none.
const CContactInfo* CZelhostContactManager::FindNamed(const ZEString& name) const {
  const CContactInfo* found = nullptr;
  m_ContactList.VisitFrom(0, [&](const CContactInfo* entry, int) {
    const bool isMeant = entry->Get(Contact::P_DISPLAY_NAME).view() == name.view() ||
                         entry->Get(Contact::P_IDENTITY).view() == name.view();
    if (isMeant) found = entry;
    return !isMeant;
  });
  return found;
}

// Those who can't be reached stand last, so that the others are the beginning of the list.
const char* CZelhostContactManager::GetOnlineContacts() {
  ServiceHostLock lock("GetOnlineContacts");
  if (!IsContactInfoAvailable()) return nullptr;
  m_candidates.clear();
  m_strRecords.clear();
  zelto::RecordWriter writer(m_strRecords);
  m_ContactList.VisitFrom(0, [&](const CContactInfo* entry, int) {
    if (entry->Category() == CContactInfo::SORT_AWAY) return false;
    const ZEString& shown = entry->Get(Contact::P_DISPLAY_NAME);
    const ZEString& name = shown.isEmpty() ? entry->Get(Contact::P_IDENTITY) : shown;
    if (name.isEmpty()) return true;
    ZELTO_DEBUG("candidate add [%s] strlen=%d\n", static_cast<const char*>(name),
                static_cast<int>(name.length()));
    m_candidates.push_back(name);
    writer.Field(name.view());
    return true;
  });
  ZELTO_DEBUG("candidate list [%s]\n", m_strRecords.c_str());
  return m_strRecords.c_str();
}

bool CZelhostContactManager::SetCallee(const char* name) {
  ServiceHostLock lock("SetCallee");
  if (name == nullptr || !IsContactInfoAvailable()) return false;
  const auto candidate = std::find(m_candidates.begin(), m_candidates.end(), name);
  if (candidate == m_candidates.end()) return false;
  ZELTO_DEBUG("ID found");
  m_callee = *candidate;
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_CALLEE_CHOSEN, GetIndexOfContact(GetCallee()));
  return true;
}

const char* CZelhostContactManager::GetCallee() {
  ServiceHostLock lock("GetCallee");
  if (m_callee.isEmpty() || !IsContactInfoAvailable()) return nullptr;
  const CContactInfo* entry = FindNamed(m_callee);
  return entry == nullptr ? nullptr : Result(entry->Get(Contact::P_IDENTITY).view());
}

const char* CZelhostContactManager::GetZeltoNameWithDisplayName(const char* displayName) {
  ServiceHostLock lock("GetZeltoNameWithDisplayName");
  if (displayName == nullptr || !IsContactInfoAvailable()) return nullptr;
  const auto candidate = std::find(m_candidates.begin(), m_candidates.end(), displayName);
  const CContactInfo* entry = candidate == m_candidates.end() ? nullptr : FindNamed(*candidate);
  if (entry == nullptr) return nullptr;
  ZELTO_DEBUG("Found Zelto Name : %s\n", static_cast<const char*>(entry->Key()));
  return Result(entry->Key().view());
}
