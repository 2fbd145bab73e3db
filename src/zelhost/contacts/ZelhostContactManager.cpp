#include "zelhost/contacts/ZelhostContactManager.h"

#include <iterator>
#include <utility>

#include "Common/ContactManager.h"
#include "Common/Log.h"
#include "Common/ZeltoEvent.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/ZEReply.h"
#include "zelhost/PropertyList.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/contacts/ContactPicture.h"

using zelhost::KeyOf;
using zelhost::ListOf;
using zelhost::ServiceHostLock;

namespace {

// Entries of these kinds start with a name and a fixed availability; all others are fetched.
struct NewContact {
  int kind;
  int name;  // a property
  const char* availability;
};

// clang-format off
constexpr NewContact kNewContacts[] = {
    {CZelhostContactManager::kAuthorizationRequest, Contact::P_IDENTITY,     "1"},
    {CZelhostContactManager::kPhoneNumber,          Contact::P_PHONE_NUMBER, "5"},
};
// clang-format on

const NewContact* FindNewContact(int kind) {
  for (const NewContact& row : kNewContacts) {
    if (row.kind == kind) return &row;
  }
  return nullptr;
}

int CategoryOf(const ZEIntDict& values) {
  return CContactInfo::SetSortCategory(values.find(Contact::P_AVAILABILITY).toInt());
}

// Nobody is shown without a name.
void FillDisplayName(ZEIntDict& values) {
  if (!values.find(Contact::P_DISPLAY_NAME).isEmpty()) return;
  const ZEString key = KeyOf(values);
  ZELTO_DEBUG(values.find(Contact::P_IDENTITY).isEmpty() ? "Display/zelto name is empty, using pstn name %s\n"
                                                         : "Display name is empty, using zelto name %s\n",
              static_cast<const char*>(key));
  values.insert(Contact::P_DISPLAY_NAME, key);
}

// The picture itself gives way to the location of its file.
void FileAvatar(ZEIntDict& values, const char* complaint) {
  const ZEString picture = values.find(Contact::P_AVATAR);
  const ZEString key = KeyOf(values);
  if (picture.isEmpty()) {
    ZELTO_DEBUG(complaint, static_cast<const char*>(key));
  } else {
    values.insert(Contact::P_AVATAR, zelhost::SaveContactPicture(key, picture));
  }
}

// An empty picture leaves the one that is known in place.
template <class Store>
void StoreEach(const ZEIntList& properties, const ZEIntDict& values, Store store) {
  for (unsigned i = 0; i < properties.size(); ++i) {
    const ZEString value = values.find(properties[i]);
    if (properties[i] != Contact::P_AVATAR || !value.isEmpty()) store(properties[i], value);
  }
}

}  // namespace

CZelhostContactManager::~CZelhostContactManager() { m_instance.Forget(); }

void CZelhostContactManager::Init() {
  for (const auto type : {CZeltoManager::CONTACT_GROUP_CHANGED, CZeltoManager::CONTACT_AUTHREQUEST_ADDED,
                          CZeltoManager::CONTACT_AUTHREQUEST_REMOVED}) {
    CZeltoManager::SetEventHandler(type, CContactManager::GetInstance());
  }
}

// A change of groups concerns the widget only when its user asked for it.
bool CZelhostContactManager::OnEvent(const CZeltoEvent* event) {
  ServiceHostLock lock("contact event");
  ZELTO_DEBUG("event type = %d, param=%d\n", event->type, event->param);
  if (event->type != CZeltoManager::CONTACT_GROUP_CHANGED) return true;
  if (!std::exchange(m_bUnblocking, false)) return false;
  ZELTO_DEBUG("ContactGroup issued unblocked event");
  return true;
}

bool CZelhostContactManager::IsContactInfoAvailable() {
  if (g_lpZelto == nullptr || !CZeltoManager::IsZeltoReady()) return false;
  constexpr int kSigningIn = 1;
  constexpr int kSignedIn = 2;
  const int state = CZelhostAccountManager::GetInstance()->GetLoginState();
  return state == kSigningIn || state == kSignedIn;
}

bool CZelhostContactManager::GetContactAllInfo() {
  ServiceHostLock lock("GetContactAllInfo");
  if (!IsContactInfoAvailable()) return false;
  const bool waiting = GetContactListInGroup(ContactGroup::CONTACTS_WAITING_MY_AUTHORIZATION);
  const bool others = GetContactListInGroup(ContactGroup::ALL_BUDDIES);
  Sort();
  return waiting && others;
}

bool CZelhostContactManager::GetContactListInGroup(ContactGroup::TYPE type) {
  ServiceHostLock lock("GetContactListInGroup");
  if (!IsContactInfoAvailable()) {
    ZELTO_DEBUG("%s: contact info not available now \n", "GetContactListInGroup");
    return false;
  }
  ZEPtrVector contacts;
  if (!FetchMembers(type, ListOf(zelhost::kBasicContactProperties), contacts)) {
    ZELTO_DEBUG("%s: fail to get hardwired group %d\n", "GetContactListInGroup", type);
    return false;
  }
  ZELTO_DEBUG("%s: hardwired group[%d] has %d contacts\n", "GetContactListInGroup", type,
              static_cast<int>(contacts.size()));
  for (unsigned i = 0; i < contacts.size(); ++i) {
    auto* contact = zeObjectAt<Contact>(contacts, i);
    if (contact != nullptr) TakeContact(contact);
  }
  return true;
}

void CZelhostContactManager::TakeContact(Contact* contact) {
  static const ZEIntList properties = ListOf(zelhost::kBasicContactProperties);
  ZEIntDict values = zelhost::TakeValues(*contact);
  const ZEString key = KeyOf(values);
  if (key.isEmpty()) {
    ZELTO_DEBUG("SH: ERROR!!!! EMPTY CONTACT RECEIVED!!!!!!!!!");
    return;
  }
  FillDisplayName(values);
  FileAvatar(values, "contact[%s] avatar is empty\n");
  if (const CContactInfo* known = m_ContactList.Find(key.view())) {
    StoreEach(properties, values,
              [&](int property, const ZEString& value) { m_ContactList.Set(known, property, value); });
    m_ContactList.SetCategory(known, CategoryOf(values));
    return;
  }
  auto entry = std::make_unique<CContactInfo>();
  StoreEach(properties, values, [&](int property, const ZEString& value) { entry->Set(property, value); });
  entry->SetCategory(CategoryOf(values));
  m_ContactList.Append(std::move(entry));
}

void CZelhostContactManager::AddNewContactToList(Contact* contact, int kind) {
  ServiceHostLock lock("AddNewContactToList");
  if (contact == nullptr) return;
  const NewContact* fixed = FindNewContact(kind);
  ZEIntList properties = fixed == nullptr ? ListOf(zelhost::kBasicContactProperties)
                                          : ListOf(std::array{fixed->name, int{Contact::P_DISPLAY_NAME}});
  ZEIntDict values = contact->GetProps(properties);
  if (KeyOf(values).isEmpty()) {
    ZELTO_DEBUG("SH: ERROR!!!! EMPTY CONTACT RECEIVED!!!!!!!!!");
    return;
  }
  FillDisplayName(values);
  if (fixed == nullptr) {
    FileAvatar(values, "%s avatar is null\n");
  } else {
    properties.append(Contact::P_AVAILABILITY);
    values.insert(Contact::P_AVAILABILITY, fixed->availability);
  }
  auto entry = std::make_unique<CContactInfo>();
  StoreEach(properties, values, [&](int property, const ZEString& value) { entry->Set(property, value); });
  entry->SetCategory(CategoryOf(values));
  m_ContactList.Insert(std::move(entry));
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_UPDATED, 0);
}

void CZelhostContactManager::Sort() {
  ServiceHostLock lock("Sort");
  ZELTO_INFO("sorting..");
  m_ContactList.Sort();
}

void CZelhostContactManager::ClearContactList() {
  ServiceHostLock lock("ClearContactList");
  m_ContactList.Clear();
  m_SearchedContactList.clear();
}
