// The contact manager's operations about whom the user lets come near: answers to requests, blocked contacts.
#include "Common/Log.h"
#include "Common/RecordWriter.h"
#include "apiwrapper/ZEReply.h"
#include "zelhost/PropertyList.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CContactGroup.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/contacts/ZelhostContactManager.h"

using zelhost::ServiceHostLock;

namespace {

// Members of these are more than strangers: they are trusted again once they are unblocked.
struct FamiliarGroup {
  ContactGroup::TYPE type;
  const char* trace;
};

// clang-format off
constexpr FamiliarGroup kFamiliarGroups[] = {
    {ContactGroup::ZELTO_BUDDIES,                     "This is in ZELTO_BUDDIES Group"},
    {ContactGroup::ZELTOOUT_BUDDIES,                  "This is in ZELTOOUT_BUDDIES Group"},
    {ContactGroup::CONTACTS_WAITING_MY_AUTHORIZATION, "This is in CONTACTS_WAITING_MY_AUTHORIZATION Group"},
    {ContactGroup::UNKNOWN_OR_PENDINGAUTH_BUDDIES,    "This is in UNKNOWN_OR_PENDINGAUTH_BUDDIES Group"},
};
// clang-format on

constexpr char kUndefinedName[] = "undefined";
constexpr char kUnknownName[] = "UNKNOWN";

}  // namespace

bool CZelhostContactManager::FetchMembers(ContactGroup::TYPE type, const ZEIntList& properties,
                                          ZEPtrVector& members) {
  ContactGroup* group = g_lpZelto->GetHardwiredContactGroup(type);
  if (group == nullptr) return false;
  members = group->GetContacts();
  g_lpZelto->GetMultipleObjectsProps(members, properties);
  return true;
}

bool CZelhostContactManager::Block(const char* identity, bool remove) {
  ServiceHostLock lock("Block");
  Contact* contact = KnownContact("Block", identity);
  if (contact == nullptr) return false;
  contact->GiveAuthLevel(Contact::AUTH_BLOCKED);
  if (remove) Remove(identity);
  return true;
}

bool CZelhostContactManager::Unblock(const char* identity) {
  ServiceHostLock lock("Unblock");
  Contact* contact = KnownContact("Unblock", identity);
  if (contact == nullptr) return false;
  bool isFamiliar = false;
  for (const FamiliarGroup& group : kFamiliarGroups) {
    if (!CContactGroup::Holds(*g_lpZelto, group.type, contact)) continue;
    ZELTO_DEBUG("%s", group.trace);
    isFamiliar = true;
  }
  contact->GiveAuthLevel(isFamiliar ? Contact::AUTH_AUTHORIZED : Contact::AUTH_NONE);
  m_bUnblocking = true;
  return true;
}

bool CZelhostContactManager::IsBlocked(const char* identity) {
  ServiceHostLock lock("IsBlocked");
  Contact* contact = KnownContact("IsBlocked", identity);
  if (contact == nullptr) return false;
  if (!CContactGroup::Holds(*g_lpZelto, ContactGroup::CONTACTS_BLOCKED_BY_ME, contact)) return false;
  ZELTO_DEBUG("%s is in CONTACTS_BLOCKED_BY_ME Group", identity);
  return true;
}

// The first removal or block of who was rejected comes without a word; a removal comes at once.
bool CZelhostContactManager::Authorize(const char* identity, bool reject, bool block) {
  ServiceHostLock lock("Authorize");
  Contact* contact = KnownContact("Authorize", identity);
  if (contact == nullptr) return false;
  if (reject) {
    m_strRejectedContact = identity;
    return block ? Block(identity, true) : Remove(identity);
  }
  contact->GiveAuthLevel(Contact::AUTH_AUTHORIZED);
  contact->SetBuddyStatus(true);
  contact->RefreshProfile();
  return true;
}

const char* CZelhostContactManager::GetBlockedContact(int index) {
  ServiceHostLock lock("GetBlockedContact");
  if (index < 0 || !IsContactInfoAvailable()) return nullptr;
  constexpr int kWanted[] = {Contact::P_IDENTITY, Contact::P_PHONE_NUMBER};
  ZEPtrVector members;
  if (!FetchMembers(ContactGroup::CONTACTS_BLOCKED_BY_ME, zelhost::ListOf(kWanted), members)) {
    ZELTO_DEBUG("%s lpContactGroup is NULL!", "GetBlockedContact");
  }
  const auto wanted = static_cast<unsigned>(index);
  if (wanted >= members.size()) return nullptr;
  const auto* contact = zeObjectAt<Contact>(members, wanted);
  if (contact == nullptr) return Result({});
  return Result(zelhost::KeyOf(contact->propCache).view());
}

const char* CZelhostContactManager::GetBlockedContactList() {
  ServiceHostLock lock("GetBlockedContactList");
  if (!IsContactInfoAvailable()) return nullptr;
  constexpr int kWanted[] = {Contact::P_IDENTITY, Contact::P_PHONE_NUMBER, Contact::P_DISPLAY_NAME};
  ZEPtrVector members;
  if (!FetchMembers(ContactGroup::CONTACTS_BLOCKED_BY_ME, zelhost::ListOf(kWanted), members)) {
    ZELTO_DEBUG("%s lpContactGroup is NULL!", "GetBlockedContactList");
    return nullptr;
  }
  m_strRecords.clear();
  zelto::RecordWriter writer(m_strRecords);
  for (unsigned i = 0; i < members.size(); ++i) {
    const auto* contact = zeObjectAt<Contact>(members, i);
    if (contact == nullptr) continue;
    const ZEIntDict& values = contact->propCache;
    if (values.find(Contact::P_IDENTITY) == kUndefinedName) {
      ZELTO_DEBUG("Why undefined contact does exist in blocked group");
      continue;
    }
    const ZEString key = zelhost::KeyOf(values);
    writer.Field(key.isEmpty() ? std::string_view(kUnknownName) : key.view());
    writer.Field(values.find(Contact::P_DISPLAY_NAME).view());
  }
  return m_strRecords.c_str();
}
