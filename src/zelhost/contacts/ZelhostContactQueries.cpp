// The contact manager's answers about single contacts and its pages of records.
#include <algorithm>

#include "Common/CallManager.h"
#include "Common/DefaultPictures.h"
#include "Common/Log.h"
#include "zelhost/EnginePaths.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/contacts/ZelhostContactManager.h"

using zelhost::ServiceHostLock;

const char* CZelhostContactManager::Result(std::string_view text) {
  m_strResult = text;
  return m_strResult.c_str();
}

const CContactInfo* CZelhostContactManager::FindEntry(const char* name) const {
  return name == nullptr ? nullptr : m_ContactList.Find(name);
}

int CZelhostContactManager::GetNumOfContacts() {
  ServiceHostLock lock("GetNumOfContacts");
  return m_ContactList.Count();
}

int CZelhostContactManager::GetNumOfContactsInCategory(int category) {
  ServiceHostLock lock("GetNumOfContactsInCategory");
  if (category < 0 || category >= CContactInfo::SORT_CATEGORIES) {
    ZELTO_DEBUG("wrong category number = %d\n", category);
    return 0;
  }
  return IsContactInfoAvailable() ? m_ContactList.Count(category) : 0;
}

int CZelhostContactManager::GetNumOfContactsWithoutUnauthorizedContacts() {
  ServiceHostLock lock("GetNumOfContactsWithoutUnauthorizedContacts");
  if (!IsContactInfoAvailable()) return 0;
  return m_ContactList.Count() - m_ContactList.Count(CContactInfo::SORT_WAIT);
}

void CZelhostContactManager::GetContactInfoMore(const CContactInfo* entry) {
  ServiceHostLock lock("GetContactInfoMore");
  ZEIntList missing;
  for (const int property : zelhost::kExtraContactProperties) {
    if (!entry->Has(property)) missing.append(property);
  }
  const ZEString& identity = entry->Get(Contact::P_IDENTITY);
  if (missing.isEmpty() || identity.isEmpty() || !IsContactInfoAvailable()) return;
  Contact* contact = g_lpZelto->GetContact(identity);
  if (contact == nullptr) return;
  const ZEIntDict values = contact->GetProps(missing);
  for (unsigned i = 0; i < missing.size(); ++i) {
    ZEString value = values.find(missing[i]);
    if (missing[i] == Contact::P_LANGUAGE && !value.isEmpty()) {
      value = g_lpZelto->GetISOLanguageName(value, "en");
    }
    m_ContactList.Set(entry, missing[i], value);
  }
}

const char* CZelhostContactManager::Value(const CContactInfo* entry, int property) {
  if (entry == nullptr) return nullptr;
  if (!entry->Has(property)) GetContactInfoMore(entry);
  return entry->Has(property) ? Result(entry->Get(property).view()) : nullptr;
}

const char* CZelhostContactManager::GetContactInfo(int index, int property) {
  ServiceHostLock lock("GetContactInfo");
  return IsContactInfoAvailable() ? Value(m_ContactList.At(index), property) : nullptr;
}

const char* CZelhostContactManager::GetContactInfo(const char* name, int property) {
  ServiceHostLock lock("GetContactInfo");
  return IsContactInfoAvailable() ? Value(FindEntry(name), property) : nullptr;
}

const char* CZelhostContactManager::WriteRecords() {
  WriteContactRecords(m_page, m_strRecords);
  return m_strRecords.c_str();
}

const char* CZelhostContactManager::GetContactInfo(const char* name, int num, int before) {
  ServiceHostLock lock("GetContactInfo");
  if (!IsContactInfoAvailable() || num <= std::max(before, 0)) return nullptr;
  const CContactInfo* entry = FindEntry(name);
  if (entry == nullptr) return nullptr;
  const int total = m_ContactList.Count();
  const int index = m_ContactList.PositionOf(entry);
  before = std::clamp(before, 0, index);
  num = std::min(num, total - index);
  ZELTO_DEBUG("%s: index=%d, num=%d, before=%d, total=%d\n", "GetContactInfo", index, num, before, total);
  m_page.clear();
  m_ContactList.VisitFrom(index - before, [&](const CContactInfo* shown, int position) {
    if (position >= index - before + num) return false;
    m_page.push_back(shown);
    return true;
  });
  return WriteRecords();
}

const char* CZelhostContactManager::Page(const PageFilter& filter, int start, int num) {
  ServiceHostLock lock(filter.query);
  if (!IsContactInfoAvailable() || num < 1 || start < 0) return nullptr;
  ZELTO_DEBUG("%s: start_index=%d, num=%d, total=%d\n", filter.query, start, num, m_ContactList.Count());
  const char* member = filter.skipsCallMember
                           ? CCallManager::GetInstance()->GetCallMemberInfo(0, Contact::P_IDENTITY)
                           : nullptr;
  const bool inCall = member != nullptr && *member != '\0';
  m_page.clear();
  m_ContactList.VisitFrom(start, [&](const CContactInfo* entry, int position) {
    if (filter.skipsUnauthorized && entry->Category() == CContactInfo::SORT_WAIT) {
      if (inCall) {
        ZELTO_DEBUG("contact %d : %s is unauthorized... skip this\n", position,
                    static_cast<const char*>(entry->Key()));
      } else {
        ZELTO_DEBUG("contact %d : unauthorized... skip this\n", position);
      }
      return true;
    }
    if (inCall && entry->GoesBy(member)) {
      ZELTO_DEBUG("contact %d : %s is call member... skip this\n", position,
                  static_cast<const char*>(entry->Key()));
      return true;
    }
    m_page.push_back(entry);
    return static_cast<int>(m_page.size()) < num;
  });
  return WriteRecords();
}

const char* CZelhostContactManager::GetContactListWithoutCallMember(int start, int num) {
  return Page({"GetContactListWithoutCallMember", true, false}, start, num);
}

const char* CZelhostContactManager::GetContactListWithoutUnauthorizedContacts(int start, int num) {
  return Page({"GetContactListWithoutUnauthorizedContacts", false, true}, start, num);
}

const char* CZelhostContactManager::GetContactListWithoutCallMemberAndUnauthorizedContacts(int start,
                                                                                           int num) {
  return Page({"GetContactListWithoutCallMemberAndUnauthorizedContacts", true, true}, start, num);
}

int CZelhostContactManager::GetIndexOfContact(const char* name) {
  ServiceHostLock lock("GetIndexOfContact");
  const CContactInfo* entry = IsContactInfoAvailable() ? FindEntry(name) : nullptr;
  return entry == nullptr ? -1 : m_ContactList.PositionOf(entry);
}

bool CZelhostContactManager::IsMyBuddy(const char* identity) {
  ServiceHostLock lock("IsMyBuddy");
  return IsContactInfoAvailable() && FindEntry(identity) != nullptr;
}

bool CZelhostContactManager::HasCapability(const char* identity, int capability, bool flag) {
  ServiceHostLock lock("HasCapability");
  if (identity == nullptr || !IsContactInfoAvailable()) return false;
  Contact* contact = g_lpZelto->GetContact(identity);
  return contact != nullptr && contact->HasCapability(static_cast<Contact::CAPABILITY>(capability), flag);
}

const char* CZelhostContactManager::GetOnlinedContactName() {
  ServiceHostLock lock("GetOnlinedContactName");
  if (!IsContactInfoAvailable() || m_strOnlinedContact.empty()) return nullptr;
  return Result(m_strOnlinedContact);
}

const char* CZelhostContactManager::GetStateChangedContact() {
  ServiceHostLock lock("GetStateChangedContact");
  if (!IsContactInfoAvailable() || m_strStateChangedContact.empty()) return nullptr;
  return m_strStateChangedContact.c_str();
}

int CZelhostContactManager::GetTypeOfIdentity(const char* identity) {
  ServiceHostLock lock("GetTypeOfIdentity");
  if (identity == nullptr || !IsContactInfoAvailable()) return Contact::TYPE_UNKNOWN;
  return g_lpZelto->GetTypeByIdentity(identity);
}

const char* CZelhostContactManager::GetContactImage(const char* name) {
  ServiceHostLock lock("GetContactImage");
  if (name == nullptr || !IsContactInfoAvailable()) return nullptr;
  static const CContactInfo kNobody;
  const CContactInfo* found = FindEntry(name);
  const CContactInfo& entry = found == nullptr ? kNobody : *found;
  const ZEString& location = entry.Get(Contact::P_AVATAR);
  if (!location.isEmpty()) {
    const std::string_view text = location.view();
    const std::size_t scheme = text.find(zelhost::kFileLocation);
    m_strContactImage =
        scheme == std::string_view::npos ? text : text.substr(scheme + sizeof zelhost::kFileLocation - 1);
    ZELTO_DEBUG("contact image path = %s\n", m_strContactImage.c_str());
  } else if (!entry.Get(Contact::P_PHONE_NUMBER).isEmpty()) {
    m_strContactImage = zelto::kPhonePicture;
  } else if (std::string_view(name) == zelhost::kSoundTestName) {
    m_strContactImage = zelto::kSoundTestPicture;
  } else {
    m_strContactImage = zelto::PictureForGender(entry.Get(Contact::P_GENDER).toInt());
  }
  return m_strContactImage.c_str();
}

int CZelhostContactManager::GetContactStatus(const char* name) {
  ServiceHostLock lock("GetContactStatus");
  const CContactInfo* entry = IsContactInfoAvailable() ? FindEntry(name) : nullptr;
  if (entry == nullptr) return -1;
  return zelhost::MeaningOf(entry->Get(Contact::P_AVAILABILITY).toInt()).hostStatus;
}
