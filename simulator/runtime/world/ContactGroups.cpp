#include "simulator/runtime/world/ContactGroups.h"

#include "apiwrapper/tables/Classes.h"
#include "apiwrapper/tables/Events.h"
#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/world/ContactProperties.h"

namespace simulator {
namespace {

constexpr std::size_t kMostCustomGroups = 100;  // nobody sorts people into more

struct Rule {
  int type;
  bool (*holds)(const Standing& standing);
};

// clang-format off
constexpr Rule kRules[] = {
    {group::kKnown,      [](const Standing& s) { return s.listed || s.waiting || s.level > contact::kNotAuthorized; }},
    {group::kAll,        [](const Standing& s) { return s.listed; }},
    {group::kAccounts,   [](const Standing& s) { return s.listed && !s.phone; }},
    {group::kPhones,     [](const Standing& s) { return s.listed && s.phone; }},
    {group::kReachable,  [](const Standing& s) { return s.listed && s.online; }},
    {group::kPending,    [](const Standing& s) { return s.listed && !s.phone && !s.trusting; }},
    {group::kWaiting,    [](const Standing& s) { return s.waiting; }},
    {group::kAuthorized, [](const Standing& s) { return s.level == contact::kAuthorized; }},
    {group::kBlocked,    [](const Standing& s) { return s.level == contact::kBlocked; }},
    {group::kUngrouped,  [](const Standing& s) { return s.listed && !s.grouped; }},
};
// clang-format on

}  // namespace

void ContactGroups::Forget() {
  for (const unsigned id : Custom()) {
    m_groups.erase(id);
    m_world.Delete(id);
  }
  for (auto& [id, group] : m_groups) group.members.clear();
  m_groupsOf.clear();
  m_account.clear();
}

void ContactGroups::LoadCustom(std::string_view account,
                               const std::map<std::string, unsigned, std::less<>>& contacts) {
  m_account = account;
  for (const Service::Group& kept : m_service.Groups(account)) {
    Object& object = New(group::kCustom, kept.name, kept.number);
    for (const std::string& member : kept.members) {
      const auto known = contacts.find(member);
      if (known == contacts.end()) continue;
      m_groups[object.id].members.insert(known->second);
      CountCustom(known->second, true);
    }
    m_world.PutInt(object, group::kContacts, static_cast<long long>(m_groups[object.id].members.size()));
  }
}

void ContactGroups::SpeakAgain() {
  m_quiet = false;
  for (const unsigned id : m_changed) {
    Object* group = m_world.Find(id);
    if (group == nullptr) continue;
    m_world.SetInt(*group, group::kContacts, static_cast<long long>(m_groups[id].members.size()));
    Tell(*group, 0, false);
  }
  m_changed.clear();
}

void ContactGroups::Place(const Object& contact, const Standing& standing) {
  for (const Rule& rule : kRules) {
    Object* group = Hardwired(rule.type);
    if (group != nullptr) Change(*group, contact, rule.holds(standing));
  }
}

void ContactGroups::Introduce(const Object& contact) {
  const Object* list = Hardwired(group::kAll);
  if (list != nullptr) Tell(*list, contact.id, true);
}

Object* ContactGroups::Hardwired(int type) {
  if (type < group::kFirst || type > group::kLast) return nullptr;
  const auto known = m_hardwired.find(type);
  if (known != m_hardwired.end()) return m_world.Find(known->second);
  Object& object = New(type, {}, 0);
  m_hardwired.emplace(type, object.id);
  return &object;
}

std::vector<unsigned> ContactGroups::Members(const Object& group) const {
  const auto found = m_groups.find(group.id);
  if (found == m_groups.end()) return {};
  return {found->second.members.begin(), found->second.members.end()};
}

bool ContactGroups::IsMember(const Object& group, unsigned contact) const {
  const auto found = m_groups.find(group.id);
  return found != m_groups.end() && found->second.members.count(contact) != 0;
}

std::vector<unsigned> ContactGroups::Custom() const {
  std::vector<unsigned> ids;
  for (const auto& [id, group] : m_groups) {
    if (group.number != 0) ids.push_back(id);
  }
  return ids;
}

bool ContactGroups::IsCustom(const Object& group) const { return NumberOf(group) != 0; }

Object* ContactGroups::CreateCustom() {
  if (m_account.empty() || Custom().size() >= kMostCustomGroups) return nullptr;
  Object& object = New(group::kCustom, {}, m_service.CreateGroup(m_account));
  m_world.Event(object, ZEEventNumber::NewCustomContactGroup);
  return &object;
}

bool ContactGroups::Rename(Object& group, const std::string& name) {
  if (!IsCustom(group) || !m_service.RenameGroup(m_account, NumberOf(group), name)) return false;
  m_world.Set(group, group::kName, name);
  return true;
}

bool ContactGroups::SetMember(Object& group, const Object& contact, std::string_view identity, bool member) {
  if (!IsCustom(group)) return false;
  if (IsMember(group, contact.id) == member) return true;
  m_service.SetGroupMember(NumberOf(group), identity, member);
  CountCustom(contact.id, member);
  Change(group, contact, member);
  return true;
}

bool ContactGroups::Delete(Object& group) {
  if (!IsCustom(group) || !m_service.DeleteGroup(m_account, NumberOf(group))) return false;
  for (const unsigned member : Members(group)) CountCustom(member, false);
  m_groups.erase(group.id);
  m_world.Delete(group.id);
  return true;
}

Object& ContactGroups::New(int type, const std::string& name, std::int64_t number) {
  Object& object = m_world.Create(CONTACTGROUP_CLASS);
  m_world.PutInt(object, group::kType, type);
  m_world.Put(object, group::kName, name);
  m_world.PutInt(object, group::kContacts, 0);
  m_groups[object.id].number = number;
  return object;
}

std::int64_t ContactGroups::NumberOf(const Object& group) const {
  const auto found = m_groups.find(group.id);
  return found == m_groups.end() ? 0 : found->second.number;
}

void ContactGroups::Change(Object& group, const Object& contact, bool member) {
  std::set<unsigned>& members = m_groups[group.id].members;
  const bool changed = member ? members.insert(contact.id).second : members.erase(contact.id) == 1;
  if (!changed) return;
  if (m_quiet) {
    m_changed.insert(group.id);
    return;
  }
  m_world.SetInt(group, group::kContacts, static_cast<long long>(members.size()));
  Tell(group, contact.id, member);
}

void ContactGroups::Tell(const Object& group, unsigned contact, bool member) {
  std::string pairs;
  PairWriter writer(pairs);
  writer.Number(ZEKey::Contact, contact);
  writer.Number(ZEKey::Added, member);
  m_world.Event(group, ZEEventNumber::GroupChanged, pairs);
}

void ContactGroups::CountCustom(unsigned contact, bool member) {
  int& count = m_groupsOf[contact];
  count += member ? 1 : -1;
  if (count == 0) m_groupsOf.erase(contact);
}

}  // namespace simulator
