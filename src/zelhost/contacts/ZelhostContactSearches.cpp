// Looking for people: in the service's directory, and in the list by an e-mail address.
#include "Common/Log.h"
#include "Common/RecordWriter.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/ZEReply.h"
#include "zelhost/PropertyList.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/contacts/ContactPicture.h"
#include "zelhost/contacts/ZelhostContactManager.h"

using zelhost::ServiceHostLock;

namespace {

constexpr char kEnglish[] = "en";

bool StartSearch(const char* text, CContactSearch::SEARCH_TYPE type) {
  return g_lpZelto->StartContactSearch(text, type);
}

// `countries`: English names by code.
std::unique_ptr<CContactInfo> MakeFound(const ZEIntDict& values, const ZEStringDict& countries) {
  auto entry = std::make_unique<CContactInfo>();
  for (const int property : {Contact::P_IDENTITY, Contact::P_4, Contact::P_10}) {
    entry->Set(property, values.find(property));
  }
  entry->Set(Contact::P_COUNTRY, countries.find(values.find(Contact::P_COUNTRY)));
  return entry;
}

Contact* FirstOf(const ZEPtrVector& results) {
  for (unsigned i = 0; i < results.size(); ++i) {
    if (auto* contact = zeObjectAt<Contact>(results, i)) return contact;
  }
  return nullptr;
}

// False, for the caller to answer.
bool TellNobodyFound() {
  CZeltoManager::SendEvent(CZeltoManager::CONTACTSEARCH_EMPTY, 0);
  return false;
}

template <class Properties>
void WriteFields(const CContactInfo& entry, const Properties& fields, std::string& records) {
  zelto::RecordWriter writer(records);
  for (const int property : fields) writer.Field(entry.Get(property).view());
}

}  // namespace

bool CZelhostContactManager::SearchNewContact(const char* text) {
  ServiceHostLock lock("SearchNewContact");
  return text != nullptr && g_lpZelto != nullptr && StartSearch(text, CContactSearch::kSearchContacts);
}

bool CZelhostContactManager::SearchContactProfile(const char* identity) {
  ServiceHostLock lock("SearchContactProfile");
  if (identity == nullptr || g_lpZelto == nullptr) return false;
  StartSearch(identity, CContactSearch::kSearchProfile);
  return true;
}

bool CZelhostContactManager::SetSearchedContact(const ZEPtrVector& results) {
  ServiceHostLock lock("SetSearchedContact");
  m_SearchedContactList.clear();
  if (g_lpZelto == nullptr || FirstOf(results) == nullptr) return TellNobodyFound();
  const ZEStringDict countries = g_lpZelto->GetISOCountryNameDict(kEnglish);
  for (unsigned i = 0; i < results.size(); ++i) {
    const auto* contact = zeObjectAt<Contact>(results, i);
    if (contact != nullptr) m_SearchedContactList.push_back(MakeFound(contact->propCache, countries));
  }
  CZeltoManager::SendEvent(CZeltoManager::CONTACTSEARCH_RESULT_READY, 0);
  return true;
}

bool CZelhostContactManager::SetSearchedContactProfile(const ZEPtrVector& results) {
  ServiceHostLock lock("SetSearchedContactProfile");
  const Contact* contact = FirstOf(results);
  if (g_lpZelto == nullptr || contact == nullptr) return TellNobodyFound();
  const ZEIntDict& values = contact->propCache;
  m_pSearchedProfile = MakeFound(values, g_lpZelto->GetISOCountryNameDict(kEnglish));
  CContactInfo& profile = *m_pSearchedProfile;
  profile.Set(Contact::P_33, values.find(Contact::P_33));
  const ZEString language = values.find(Contact::P_LANGUAGE);
  if (!language.isEmpty()) {
    profile.Set(Contact::P_LANGUAGE, g_lpZelto->GetISOLanguageName(language, kEnglish));
  }
  const ZEString& identity = profile.Get(Contact::P_IDENTITY);
  const ZEString location = zelhost::SaveContactPicture(identity, values.find(Contact::P_AVATAR));
  if (location.isNull()) {
    ZELTO_DEBUG("%s avatar is null\n", static_cast<const char*>(identity));
  } else {
    profile.Set(Contact::P_AVATAR, location);
  }
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_PROFILE_READY, 0);
  return true;
}

const char* CZelhostContactManager::GetSearchedContactList() {
  ServiceHostLock lock("GetSearchedContactList");
  m_strRecords.clear();
  for (const auto& entry : m_SearchedContactList) {
    WriteFields(*entry, zelhost::kSearchedContactRecord, m_strRecords);
  }
  return m_strRecords.c_str();
}

const char* CZelhostContactManager::GetProfileInfo(const char*) {
  ServiceHostLock lock("GetProfileInfo");
  if (!IsContactInfoAvailable() || m_pSearchedProfile == nullptr) return nullptr;
  m_strRecords.clear();
  WriteFields(*m_pSearchedProfile, zelhost::kProfileRecord, m_strRecords);
  return m_strRecords.c_str();
}

void CZelhostContactManager::TakeEmails(ContactGroup::TYPE type) {
  constexpr int kWanted[] = {Contact::P_IDENTITY, Contact::P_PHONE_NUMBER, Contact::P_EMAILS};
  ZEPtrVector members;
  FetchMembers(type, zelhost::ListOf(kWanted), members);
  for (unsigned i = 0; i < members.size(); ++i) {
    auto* contact = zeObjectAt<Contact>(members, i);
    if (contact == nullptr) continue;
    const ZEIntDict values = zelhost::TakeValues(*contact);
    if (const CContactInfo* entry = m_ContactList.Find(zelhost::KeyOf(values).view())) {
      m_ContactList.Set(entry, Contact::P_EMAILS, values.find(Contact::P_EMAILS));
    }
  }
}

// One request for each group answers for almost all; what remains is asked one by one. Nobody is asked about
// twice, whatever the answer.
void CZelhostContactManager::FetchEmails() {
  std::vector<const CContactInfo*> unknown;
  m_ContactList.VisitFrom(0, [&](const CContactInfo* entry, int) {
    if (!entry->Has(Contact::P_EMAILS)) unknown.push_back(entry);
    return true;
  });
  if (unknown.empty() || !IsContactInfoAvailable()) return;
  constexpr std::size_t kFew = 8;
  if (unknown.size() > kFew) {
    TakeEmails(ContactGroup::CONTACTS_WAITING_MY_AUTHORIZATION);
    TakeEmails(ContactGroup::ALL_BUDDIES);
  }
  for (const CContactInfo* entry : unknown) {
    if (entry->Has(Contact::P_EMAILS)) continue;
    Contact* contact = g_lpZelto->GetContact(entry->Key());
    m_ContactList.Set(entry, Contact::P_EMAILS,
                      contact == nullptr ? ZEString() : contact->GetProp(Contact::P_EMAILS));
  }
}

const char* CZelhostContactManager::FindContactWithEmail(const char* text) {
  ServiceHostLock lock("FindContactWithEmail");
  if (text == nullptr || *text == '\0') return nullptr;
  FetchEmails();
  const CContactInfo* found = nullptr;
  m_ContactList.VisitFrom(0, [&](const CContactInfo* entry, int) {
    if (entry->Get(Contact::P_EMAILS).view().find(text) != std::string_view::npos) found = entry;
    return found == nullptr;
  });
  if (found == nullptr) return nullptr;
  const ZEString& identity = found->Get(Contact::P_IDENTITY);
  ZELTO_DEBUG("%s: find contact %s\n", "FindContactWithEmail", static_cast<const char*>(identity));
  return Result(identity.view());
}
