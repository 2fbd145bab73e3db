#include "simulator/runtime/world/Contacts.h"

#include "apiwrapper/tables/Classes.h"
#include "apiwrapper/tables/Events.h"
#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/protocol/Values.h"
#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/ContactProperties.h"

namespace simulator {
namespace {

// The echo service: always there, known to every account.
constexpr std::string_view kSoundTest = "sndtest";

}  // namespace

void Contacts::Load(std::string_view account) {
  Forget();
  const std::vector<std::string> names = m_service.Contacts(account);
  for (const std::string& name : names) {
    Object* object = Find(name);
    if (object == nullptr) continue;
    m_world.SetInt(*object, contact::kAuthLevel, contact::kAuthorized);
    SetBuddy(*object, true);
  }
  m_account = account;
}

void Contacts::Forget() {
  m_account.clear();
  m_members.clear();
}

Object* Contacts::Find(std::string_view identity) {
  const NormalizedIdentity normalized = NormalizeIdentity(identity, false);
  if (normalized.verdict != NameVerdict::Good) return nullptr;
  const auto known = m_byIdentity.find(normalized.identity);
  if (known != m_byIdentity.end()) return m_world.Find(known->second);

  Object& object = m_world.Create(CONTACT_CLASS);
  m_byIdentity.emplace(normalized.identity, object.id);
  const IdentityType type = TypeOfIdentity(normalized.identity);
  const bool phone = type == IdentityType::Phone;
  const bool present = normalized.identity == kSoundTest || m_service.Exists(normalized.identity);
  m_world.PutInt(object, contact::kType, static_cast<int>(type));
  m_world.Put(object, phone ? contact::kPhoneNumber : contact::kIdentity, normalized.identity);
  m_world.Put(object, contact::kDisplayName, normalized.identity);
  m_world.PutInt(object, contact::kAuthLevel, contact::kNotAuthorized);
  m_world.PutInt(object, contact::kAvailability,
                 phone     ? contact::kPhone
                 : present ? contact::kOnline
                           : contact::kOffline);
  if (!phone) FillProfile(object, normalized.identity);
  return &object;
}

void Contacts::FillProfile(Object& object, std::string_view name) {
  // A contact shows what its account tells of itself: the same property has the same token in both classes.
  for (const auto& [property, value] : m_service.Profile(name)) {
    const char* token = ZEProtocol::TokenOf(ACCOUNT_CLASS.properties, property);
    const int shown = token == nullptr ? 0 : PropertyByToken(CONTACT_CLASS, token);
    if (shown != 0) m_world.Put(object, shown, value);
  }
}

Object* Contacts::HardwiredGroup(int type) {
  if (type < group::kFirst || type > group::kLast) return nullptr;
  const auto known = m_groups.find(type);
  if (known != m_groups.end()) return m_world.Find(known->second);
  Object& object = m_world.Create(CONTACTGROUP_CLASS);
  m_groups.emplace(type, object.id);
  m_world.PutInt(object, group::kType, type);
  m_world.PutInt(object, group::kContacts, 0);
  return &object;
}

std::vector<unsigned> Contacts::Members(const Object& group) const {
  const auto members = m_members.find(group.id);
  if (members == m_members.end()) return {};
  return {members->second.begin(), members->second.end()};
}

bool Contacts::IsMember(const Object& group, unsigned contact) const {
  const auto members = m_members.find(group.id);
  return members != m_members.end() && members->second.count(contact) != 0;
}

void Contacts::Change(Object& group, Object& contact, bool member) {
  std::set<unsigned>& members = m_members[group.id];
  const bool changed = member ? members.insert(contact.id).second : members.erase(contact.id) == 1;
  if (!changed) return;
  m_world.SetInt(group, group::kContacts, static_cast<long long>(members.size()));
  std::string pairs;
  PairWriter writer(pairs);
  writer.Number(ZEKey::Contact, contact.id);
  writer.Number(ZEKey::Added, member);
  m_world.Event(group, ZEEventNumber::GroupChanged, pairs);
}

void Contacts::SetBuddy(Object& contact, bool buddy) {
  const bool phone = contact.GetInt(contact::kType) == static_cast<int>(IdentityType::Phone);
  const int own = phone ? group::kPhones : group::kAccounts;
  for (const int type : {int{group::kAll}, own}) Change(*HardwiredGroup(type), contact, buddy);
  if (m_account.empty()) return;
  const std::string& identity = contact.GetText(phone ? contact::kPhoneNumber : contact::kIdentity);
  if (buddy) {
    m_service.AddContact(m_account, identity);
  } else {
    m_service.RemoveContact(m_account, identity);
  }
}

void Contacts::SetAuthLevel(Object& contact, int level) {
  m_world.SetInt(contact, contact::kAuthLevel, level);
  Change(*HardwiredGroup(group::kBlocked), contact, level == contact::kBlocked);
}

}  // namespace simulator
