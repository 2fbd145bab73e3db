// The contact manager's operations that add, change and remove contacts.
#include <string_view>

#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/contacts/ZelhostContactManager.h"

using zelhost::ServiceHostLock;

namespace {

constexpr char kGreeting[] = "Hello~";
constexpr unsigned kAssignedNumbers = 3;

// Where an entry keeps the number of a slot; its label follows.
constexpr int AssignedNumber(unsigned slot) {
  return Contact::P_ASSIGNED_PHONE1 + 2 * (static_cast<int>(slot) - 1);
}
static_assert(AssignedNumber(kAssignedNumbers) == Contact::P_ASSIGNED_PHONE3);
static_assert(AssignedNumber(kAssignedNumbers) + 1 == Contact::P_ASSIGNED_PHONE3_LABEL);

const char* TextOf(const char* text) { return text == nullptr ? "" : text; }

bool Complain(const char* what) {
  ZELTO_DEBUG("%s", what);
  return false;
}

}  // namespace

Contact* CZelhostContactManager::KnownContact(const char* operation, const char* identity) {
  if (!IsContactInfoAvailable()) return nullptr;
  const bool isGiven = identity != nullptr && *identity != '\0';
  Contact* contact = isGiven ? g_lpZelto->GetContact(identity) : nullptr;
  if (contact == nullptr) ZELTO_DEBUG("%s lpContact is NULL!", operation);
  return contact;
}

bool CZelhostContactManager::AddContact(const char* identity, const char* message) {
  ServiceHostLock lock("AddContact");
  Contact* contact = KnownContact("AddContact", identity);
  if (contact == nullptr) return false;
  if (contact->SendAuthRequest(message == nullptr ? kGreeting : message)) {
    contact->GiveAuthLevel(Contact::AUTH_AUTHORIZED);
    contact->SetBuddyStatus(true);
    AddNewContactToList(contact, kContact);
  }
  return true;
}

bool CZelhostContactManager::AddZeltoOutContact(const char* number, const char* displayName) {
  ServiceHostLock lock("AddZeltoOutContact");
  Contact* contact = KnownContact("AddZeltoOutContact", number);
  if (contact == nullptr) return false;
  if (*TextOf(displayName) != '\0') contact->GiveDisplayName(displayName);
  g_lpZelto->AddRemoveContact(ZEPMap(CONTACTGROUP_TYPE_MAP).map(ContactGroup::ZELTOOUT_BUDDIES), number,
                              false, true);
  AddNewContactToList(contact, kPhoneNumber);
  return true;
}

bool CZelhostContactManager::Rename(const char* identity, const char* displayName) {
  ServiceHostLock lock("Rename");
  if (displayName == nullptr) return false;
  Contact* contact = KnownContact("Rename", identity);
  if (contact == nullptr) return false;
  contact->GiveDisplayName(displayName);
  const CContactInfo* entry = FindEntry(identity);
  if (entry == nullptr) return false;
  SetDisplayName(entry, displayName);
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_UPDATED, 0);
  return true;
}

bool CZelhostContactManager::SetAssignedPhoneNumber(const char* identity, unsigned int slot, const char* type,
                                                    const char* number) {
  ServiceHostLock lock("SetAssignedPhoneNumber");
  ZELTO_DEBUG("CZelhostContactManager::SetAssignedPhoneNumber >> %s  >> %s", TextOf(type), TextOf(number));
  if (identity == nullptr) return Complain("zeltoName == NULL");
  if (*identity == '\0') return Complain("strlen(zeltoName) == 0");
  if (slot < 1 || slot > kAssignedNumbers) return Complain("num must 1 ~ 3!!!!!");
  if (!IsContactInfoAvailable()) return Complain("This contact is not available ");
  Contact* contact = g_lpZelto->GetContact(identity);
  if (contact == nullptr) return Complain("Fail to GetContact ");
  contact->SetPhoneNumber(slot, TextOf(type), TextOf(number));
  const CContactInfo* entry = FindEntry(identity);
  if (entry == nullptr) return false;
  const int property = AssignedNumber(slot);
  ZELTO_DEBUG("MapIndex = %d ", property - Contact::P_ASSIGNED_PHONE1);
  m_ContactList.Set(entry, property, TextOf(number));
  m_ContactList.Set(entry, property + 1, TextOf(type));
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_UPDATED, 0);
  return true;
}

bool CZelhostContactManager::Remove(const char* identity) {
  ServiceHostLock lock("Remove");
  Contact* contact = KnownContact("Remove", identity);
  if (contact == nullptr) return false;
  contact->SetBuddyStatus(false);
  const bool isRejected = m_strRejectedContact == identity;
  if (isRejected) m_strRejectedContact.clear();
  const CContactInfo* entry = FindEntry(identity);
  if (entry == nullptr) return true;
  const int position = m_ContactList.PositionOf(entry);
  m_ContactList.Remove(entry);
  if (!isRejected) CZeltoManager::SendEvent(CZeltoManager::CONTACT_REMOVED, position);
  return true;
}
