// What the contact manager does about changes that the runtime reports.
#include <algorithm>
#include <iterator>
#include <utility>

#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/contacts/ContactPicture.h"
#include "zelhost/contacts/ZelhostContactManager.h"

using zelhost::ServiceHostLock;

namespace {

constexpr int kOnline = 7;  // an availability

void SendEvent(int type, int param = 0) { CZeltoManager::SendEvent(type, param); }

// An entry that was made for a telephone number does not know its identity.
ZEString IdentityOf(const CContactInfo& entry, Contact* contact) {
  const ZEString& known = entry.Get(Contact::P_IDENTITY);
  return known.isEmpty() && contact != nullptr ? contact->GetProp(Contact::P_IDENTITY) : known;
}

}  // namespace

// What a changed property brings about.
struct CZelhostContactManager::Update {
  int property;
  void (CZelhostContactManager::*run)(const Change& change);
  bool needsEntry;
};

const CZelhostContactManager::Update* CZelhostContactManager::FindUpdate(int property) {
  using Manager = CZelhostContactManager;
  // clang-format off
  static constexpr Update kUpdates[] = {
      {Contact::P_4,               &Manager::Keep,            true},
      {Contact::P_5,               &Manager::Keep,            true},
      {Contact::P_LANGUAGE,        &Manager::OnLanguage,      true},
      {Contact::P_COUNTRY,         &Manager::Keep,            true},
      {Contact::P_9,               &Manager::Keep,            true},
      {Contact::P_10,              &Manager::Keep,            true},
      {Contact::P_11,              &Manager::Keep,            true},
      {Contact::P_12,              &Manager::Keep,            true},
      {Contact::P_13,              &Manager::Keep,            true},
      {Contact::P_15,              &Manager::Keep,            true},
      {Contact::P_16,              &Manager::Keep,            true},
      {Contact::P_AVAILABILITY,    &Manager::OnAvailability,  true},
      {Contact::P_DISPLAY_NAME,    &Manager::OnDisplayName,   true},
      {Contact::P_GIVEN_AUTHLEVEL, &Manager::OnAuthorization, false},
      {Contact::P_AVATAR,          &Manager::OnAvatar,        true},
      {Contact::P_33,              &Manager::OnMood,          true},
      {Contact::P_36,              &Manager::Keep,            true},
  };
  // clang-format on
  const auto* found = std::find_if(std::begin(kUpdates), std::end(kUpdates),
                                   [&](const Update& update) { return update.property == property; });
  return found == std::end(kUpdates) ? nullptr : found;
}

void CZelhostContactManager::UpdateContactInfo(const char* name, int property, const ZEString& value,
                                               Contact* contact) {
  ServiceHostLock lock("UpdateContactInfo");
  const Update* update = FindUpdate(property);
  if (name == nullptr || update == nullptr) return;
  const CContactInfo* entry = FindEntry(name);
  if (entry == nullptr && update->needsEntry) return;
  (this->*update->run)({name, property, value, contact, entry});
}

void CZelhostContactManager::Keep(const Change& change) {
  m_ContactList.Set(change.entry, change.property, change.value);
}

// The list keeps the language's name, which the report does not give.
void CZelhostContactManager::OnLanguage(const Change& change) {
  if (change.value.isEmpty()) Keep(change);
}

void CZelhostContactManager::OnAvailability(const Change& change) {
  const CContactInfo* entry = change.entry;
  const int availability = change.value.toInt();
  m_strStateChangedContact = IdentityOf(*entry, change.contact).view();
  Keep(change);
  const int category = CContactInfo::SetSortCategory(availability);
  if (category != entry->Category()) {
    ZELTO_DEBUG("group old=%d, new=%d\n", entry->Category(), category);
    m_ContactList.SetCategory(entry, category);
    m_ContactList.Place(entry);
  }
  const bool isSoundTest = std::string_view(change.name) == zelhost::kSoundTestName;
  if (availability == kOnline && !CZeltoManager::GetZeltoWidgetState() && !isSoundTest) {
    const ZEString& shown = entry->Get(Contact::P_DISPLAY_NAME);
    m_strOnlinedContact = shown.isEmpty() ? m_strStateChangedContact : shown.view();
  }
  SendEvent(CZeltoManager::CONTACT_STATUS_CHANGED, availability);
}

void CZelhostContactManager::SetDisplayName(const CContactInfo* entry, const ZEString& name) {
  const ZEString shown = name.isEmpty() ? entry->Key() : name;
  if (entry->Get(Contact::P_DISPLAY_NAME).view() == shown.view()) return;
  m_ContactList.Set(entry, Contact::P_DISPLAY_NAME, shown);
  m_ContactList.Place(entry);
}

void CZelhostContactManager::OnDisplayName(const Change& change) {
  SetDisplayName(change.entry, change.value);
  SendEvent(CZeltoManager::CONTACT_UPDATED, Contact::P_DISPLAY_NAME);
}

// Whom the user has just turned away is blocked without a word about it.
void CZelhostContactManager::OnAuthorization(const Change& change) {
  const int level = change.value.toInt();
  if (level == Contact::AUTH_BLOCKED) {
    if (m_strRejectedContact == change.name) {
      m_strRejectedContact.clear();
      return;
    }
    ZELTO_DEBUG("CContact::OnChange(BLOCKED_BY_ME)");
    return SendEvent(CZeltoManager::CONTACT_BLOCKED);
  }
  if (level != Contact::AUTH_NONE && level != Contact::AUTH_AUTHORIZED) {
    ZELTO_DEBUG("P_GIVEN_AUTHLEVEL  not evet (%s) ", static_cast<const char*>(change.value));
    return;
  }
  if (m_bUnblocking) {
    ZELTO_DEBUG("CContact::OnChange(%s)", static_cast<const char*>(change.value));
    SendEvent(CZeltoManager::CONTACT_GROUP_CHANGED);
  } else {
    ZELTO_DEBUG("Auth. level was changed, but not by me");
  }
  if (level == Contact::AUTH_AUTHORIZED && !IsMyBuddy(change.name)) {
    AddNewContactToList(change.contact, kContact);
  }
}

void CZelhostContactManager::OnAvatar(const Change& change) {
  const ZEString location = zelhost::SaveContactPicture(change.entry->Key(), change.value);
  if (location.isNull()) {
    ZELTO_DEBUG("avatar is empty");
  } else {
    m_ContactList.Set(change.entry, Contact::P_AVATAR, location);
  }
  SendEvent(CZeltoManager::CONTACT_UPDATED, m_ContactList.PositionOf(change.entry));
}

void CZelhostContactManager::OnMood(const Change& change) {
  Keep(change);
  SendEvent(CZeltoManager::CONTACT_UPDATED, Contact::P_33);
}
