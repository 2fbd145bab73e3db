#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/ContactProperties.h"

namespace simulator {
namespace {

constexpr int kCanBeCalled = 1;  // of the contact capabilities

// The object that an argument names, if it is of that class.
Object* Argument(Session& session, const Exchange& exchange, const char* key, const ZEClass& type) {
  Object* object = session.world.Find(exchange.Id(key));
  return object != nullptr && object->type == &type ? object : nullptr;
}

void GetContact(Session& session, Exchange& exchange) {
  exchange.AnswerObject(ZEKey::Result, session.contacts.Find(exchange.Text(ZEKey::Identity)));
}

void NormalizeIdentityText(Session&, Exchange& exchange) {
  const NormalizedIdentity result =
      NormalizeIdentity(exchange.Text(ZEKey::Identity), exchange.Flag(ZEKey::NewAccount));
  exchange.Answer(ZEKey::Result, static_cast<int>(result.verdict));
  exchange.Answer(ZEKey::NormalizedIdentity, result.identity);
}

void GetTypeByIdentity(Session&, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, static_cast<int>(TypeOfIdentity(exchange.Text(ZEKey::Identity))));
}

void GetHardwiredContactGroup(Session& session, Exchange& exchange) {
  // Whoever asks for a group by a name that is no type of the protocol sends an empty token, and means the
  // contacts proper.
  const bool unnamed = exchange.Text(ZEKey::Type).empty();
  const int type = unnamed ? int{group::kAccounts} : exchange.Enumerator(ZEKey::Type);
  exchange.AnswerObject(ZEKey::Result, session.contacts.HardwiredGroup(type));
}

void GetCustomContactGroups(Session&, Exchange& exchange) { exchange.Answer(ZEKey::Objects, ""); }

void GetContacts(Session& session, Exchange& exchange) {
  exchange.AnswerObjects(ZEKey::Objects, session.contacts.Members(exchange.Target()));
}

void CanChange(Session&, Exchange& exchange) {
  const int type = exchange.Target().GetInt(group::kType);
  exchange.Answer(ZEKey::Result, type == group::kAccounts || type == group::kPhones);
}

void AddContact(Session& session, Exchange& exchange) {
  Object* contact = Argument(session, exchange, ZEKey::Contact, CONTACT_CLASS);
  if (contact != nullptr) session.contacts.SetBuddy(*contact, true);
  exchange.Answer(ZEKey::Result, contact != nullptr);
}

void RemoveContact(Session& session, Exchange& exchange) {
  Object* contact = Argument(session, exchange, ZEKey::Contact, CONTACT_CLASS);
  if (contact != nullptr) session.contacts.SetBuddy(*contact, false);
  exchange.Answer(ZEKey::Result, contact != nullptr);
}

void IsMemberOf(Session& session, Exchange& exchange) {
  const Object* group = Argument(session, exchange, ZEKey::Group, CONTACTGROUP_CLASS);
  exchange.Answer(ZEKey::Result, group != nullptr && session.contacts.IsMember(*group, exchange.Target().id));
}

void GiveAuthLevel(Session& session, Exchange& exchange) {
  const int level = exchange.Enumerator(ZEKey::AuthLevel);
  if (level > 0) session.contacts.SetAuthLevel(exchange.Target(), level);
  exchange.Answer(ZEKey::Result, level > 0);
}

void GiveDisplayName(Session& session, Exchange& exchange) {
  session.world.Set(exchange.Target(), contact::kDisplayName, exchange.Text(ZEKey::DisplayName));
  exchange.Answer(ZEKey::Result, 1);
}

void SetBuddyStatus(Session& session, Exchange& exchange) {
  session.contacts.SetBuddy(exchange.Target(), exchange.Flag(ZEKey::Buddy));
  exchange.Answer(ZEKey::Result, 1);
}

void HasCapability(Session&, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, exchange.Enumerator(ZEKey::Capability) == kCanBeCalled);
}

// Everybody has authorised everybody: the other side cannot say no yet.
void HasAuthorizedMe(Session&, Exchange& exchange) { exchange.Answer(ZEKey::Result, 1); }

void GetAvatar(Session&, Exchange& exchange) {
  exchange.AnswerBinary(ZEKey::Result, exchange.Target().GetText(contact::kPicture));
}

// The profile is as fresh as it can be.
void RefreshProfile(Session&, Exchange&) {}

// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::GetContact,               GetContact},
    {&RootMethod::NormalizeIdentity,        NormalizeIdentityText},
    {&RootMethod::GetTypeByIdentity,        GetTypeByIdentity},
    {&RootMethod::GetHardwiredContactGroup, GetHardwiredContactGroup},
    {&RootMethod::GetCustomContactGroups,   GetCustomContactGroups},
    {&ContactGroupMethod::GetContacts,      GetContacts},
    {&ContactGroupMethod::CanAddContact,    CanChange},
    {&ContactGroupMethod::CanRemoveContact, CanChange},
    {&ContactGroupMethod::AddContact,       AddContact},
    {&ContactGroupMethod::RemoveContact,    RemoveContact},
    {&ContactMethod::IsMemberOf,            IsMemberOf},
    {&ContactMethod::GiveAuthLevel,         GiveAuthLevel},
    {&ContactMethod::GiveDisplayName,       GiveDisplayName},
    {&ContactMethod::SetBuddyStatus,        SetBuddyStatus},
    {&ContactMethod::HasCapability,         HasCapability},
    {&ContactMethod::HasAuthorizedMe,       HasAuthorizedMe},
    {&ContactMethod::GetAvatar,             GetAvatar},
    {&ContactMethod::RefreshProfile,        RefreshProfile},
};
// clang-format on

}  // namespace

HandlerRows ContactHandlers() { return RowsOf(kRows); }

}  // namespace simulator
