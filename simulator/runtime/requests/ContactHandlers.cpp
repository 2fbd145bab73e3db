#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/ContactProperties.h"

namespace simulator {
namespace {

constexpr int kCanBeCalled = 1;            // of the contact capabilities
constexpr std::size_t kLongestText = 300;  // of a name, number or request that the user gives

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

void FindContactBySpeedDial(Session& session, Exchange& exchange) {
  exchange.AnswerObject(ZEKey::Result, session.contacts.FindBySpeedDial(exchange.Text(ZEKey::SpeedDial)));
}

void FindContactByPstnNumber(Session& session, Exchange& exchange) {
  int property = 0;
  exchange.AnswerObject(ZEKey::Result,
                        session.contacts.FindByNumber(exchange.Text(ZEKey::PhoneNumber), property));
  exchange.Answer(ZEKey::MatchedProperty, property);
}

void GetHardwiredContactGroup(Session& session, Exchange& exchange) {
  // Whoever asks for a group by a name that is no type of the protocol sends an empty token, and means the
  // contacts proper.
  const bool unnamed = exchange.Text(ZEKey::Type).empty();
  const int type = unnamed ? int{group::kAccounts} : exchange.Enumerator(ZEKey::Type);
  exchange.AnswerObject(ZEKey::Result, session.contacts.Groups().Hardwired(type));
}

void GetCustomContactGroups(Session& session, Exchange& exchange) {
  exchange.AnswerObjects(ZEKey::Objects, session.contacts.Groups().Custom());
}

void CreateCustomContactGroup(Session& session, Exchange& exchange) {
  exchange.AnswerObject(ZEKey::Result, session.contacts.Groups().CreateCustom());
}

void GetContacts(Session& session, Exchange& exchange) {
  exchange.AnswerObjects(ZEKey::Objects, session.contacts.Groups().Members(exchange.Target()));
}

// The hardwired groups that are parts of the list; the others follow from what people are.
bool IsList(const Object& group) {
  const int type = group.GetInt(group::kType);
  return type == group::kAll || type == group::kAccounts || type == group::kPhones;
}

void CanChange(Session& session, Exchange& exchange) {
  const Object& group = exchange.Target();
  exchange.Answer(ZEKey::Result, IsList(group) || session.contacts.Groups().IsCustom(group));
}

void ChangeGroup(Session& session, Exchange& exchange, bool member) {
  Object& group = exchange.Target();
  Object* contact = Argument(session, exchange, ZEKey::Contact, CONTACT_CLASS);
  bool done = false;
  if (contact != nullptr && IsList(group)) {
    session.contacts.SetBuddy(*contact, member);
    done = true;
  } else if (contact != nullptr) {
    done = session.contacts.SetGroupMember(group, *contact, member);
  }
  exchange.Answer(ZEKey::Result, done);
}

void AddContact(Session& session, Exchange& exchange) { ChangeGroup(session, exchange, true); }
void RemoveContact(Session& session, Exchange& exchange) { ChangeGroup(session, exchange, false); }

void RenameGroup(Session& session, Exchange& exchange) {
  const std::string name = exchange.Text(ZEKey::DisplayName);
  const bool fits = name.size() <= kLongestText;
  exchange.Answer(ZEKey::Result, fits && session.contacts.Groups().Rename(exchange.Target(), name));
}

void DeleteGroup(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.contacts.DeleteGroup(exchange.Target()));
}

void IsMemberOf(Session& session, Exchange& exchange) {
  const Object* group = Argument(session, exchange, ZEKey::Group, CONTACTGROUP_CLASS);
  exchange.Answer(ZEKey::Result,
                  group != nullptr && session.contacts.Groups().IsMember(*group, exchange.Target().id));
}

void GiveAuthLevel(Session& session, Exchange& exchange) {
  const int level = exchange.Enumerator(ZEKey::AuthLevel);
  if (level > 0) session.contacts.SetAuthLevel(exchange.Target(), level);
  exchange.Answer(ZEKey::Result, level > 0);
}

void GiveDisplayName(Session& session, Exchange& exchange) {
  const std::string name = exchange.Text(ZEKey::DisplayName);
  const bool fits = name.size() <= kLongestText;
  if (fits) session.contacts.GiveName(exchange.Target(), name);
  exchange.Answer(ZEKey::Result, fits);
}

void AssignSpeedDial(Session& session, Exchange& exchange) {
  const std::string keys = exchange.Text(ZEKey::SpeedDial);
  const bool fits = keys.size() <= kLongestText;
  if (fits) session.contacts.SetSpeedDial(exchange.Target(), keys);
  exchange.Answer(ZEKey::Result, fits);
}

void SetPhoneNumber(Session& session, Exchange& exchange) {
  const int slot = exchange.Number(ZEKey::Slot);
  const std::string label = exchange.Text(ZEKey::Label);
  const std::string number = exchange.Text(ZEKey::Number);
  const bool good = slot >= 1 && slot <= contact::kNumberSlots && label.size() <= kLongestText &&
                    number.size() <= kLongestText;
  if (good) session.contacts.SetNumber(exchange.Target(), slot, label, number);
  exchange.Answer(ZEKey::Result, good);
}

void SetBuddyStatus(Session& session, Exchange& exchange) {
  session.contacts.SetBuddy(exchange.Target(), exchange.Flag(ZEKey::Buddy));
  exchange.Answer(ZEKey::Result, 1);
}

// People of the service say yes at once unless an order says otherwise; a name that nobody has never answers.
void SendAuthRequest(Session& session, Exchange& exchange) {
  const std::string words = exchange.Text(ZEKey::Message);
  exchange.Answer(ZEKey::Result,
                  words.size() <= kLongestText && session.contacts.Ask(exchange.Target(), words));
}

void HasCapability(Session& session, Exchange& exchange) {
  const int capability = exchange.Enumerator(ZEKey::Capability);
  const bool has = capability == kCanBeCalled ||
                   session.service.CapabilityOf(Contacts::IdentityOf(exchange.Target()), capability).status !=
                       Capability().status;
  exchange.Answer(ZEKey::Result, has);
}

void HasAuthorizedMe(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.contacts.HasAuthorizedMe(exchange.Target()));
}

void GetAvatar(Session&, Exchange& exchange) {
  exchange.AnswerBinary(ZEKey::Result, exchange.Target().GetText(contact::kPicture));
}

void RefreshProfile(Session& session, Exchange& exchange) {
  session.contacts.RefreshProfile(exchange.Target());
}

// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::GetContact,               GetContact},
    {&RootMethod::FindContactBySpeedDial,   FindContactBySpeedDial},
    {&RootMethod::FindContactByPstnNumber,  FindContactByPstnNumber},
    {&RootMethod::NormalizeIdentity,        NormalizeIdentityText},
    {&RootMethod::GetTypeByIdentity,        GetTypeByIdentity},
    {&RootMethod::GetHardwiredContactGroup, GetHardwiredContactGroup},
    {&RootMethod::GetCustomContactGroups,   GetCustomContactGroups},
    {&RootMethod::CreateCustomContactGroup, CreateCustomContactGroup},
    {&ContactGroupMethod::GetContacts,      GetContacts},
    {&ContactGroupMethod::GiveDisplayName,  RenameGroup},
    {&ContactGroupMethod::CanAddContact,    CanChange},
    {&ContactGroupMethod::CanRemoveContact, CanChange},
    {&ContactGroupMethod::AddContact,       AddContact},
    {&ContactGroupMethod::RemoveContact,    RemoveContact},
    {&ContactGroupMethod::Delete,           DeleteGroup},
    {&ContactMethod::IsMemberOf,            IsMemberOf},
    {&ContactMethod::GiveAuthLevel,         GiveAuthLevel},
    {&ContactMethod::GiveDisplayName,       GiveDisplayName},
    {&ContactMethod::AssignSpeedDial,       AssignSpeedDial},
    {&ContactMethod::SetPhoneNumber,        SetPhoneNumber},
    {&ContactMethod::SetBuddyStatus,        SetBuddyStatus},
    {&ContactMethod::SendAuthRequest,       SendAuthRequest},
    {&ContactMethod::HasCapability,         HasCapability},
    {&ContactMethod::HasAuthorizedMe,       HasAuthorizedMe},
    {&ContactMethod::GetAvatar,             GetAvatar},
    {&ContactMethod::RefreshProfile,        RefreshProfile},
};
// clang-format on

}  // namespace

HandlerRows ContactHandlers() { return RowsOf(kRows); }

}  // namespace simulator
