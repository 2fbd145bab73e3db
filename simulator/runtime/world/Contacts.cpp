#include "simulator/runtime/world/Contacts.h"

#include <iterator>
#include <set>

#include "apiwrapper/tables/Classes.h"
#include "apiwrapper/tables/Events.h"
#include "simulator/runtime/protocol/Values.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/ContactProperties.h"
#include "simulator/runtime/world/MagicNames.h"

namespace simulator {
namespace {

// Where another person's number may stand.
constexpr int kNumberProperties[] = {
    contact::kPhoneNumber,    contact::kHomePhone,      contact::kOfficePhone,   contact::kMobilePhone,
    contact::NumberOfSlot(1), contact::NumberOfSlot(2), contact::NumberOfSlot(3)};

// A contact shows what its account tells of itself: the same property has the same token in both classes.
std::map<int, int> ShownProperties() {
  std::map<int, int> shown;
  for (const PMAP* row = ACCOUNT_CLASS.properties; row->name != nullptr; ++row) {
    const int property = PropertyByToken(CONTACT_CLASS, row->name);
    if (property != 0 && property != contact::kIdentity && property != contact::kAvailability) {
      shown.emplace(row->value, property);
    }
  }
  return shown;
}

bool IsOnline(int availability) {
  return availability != contact::kOffline && availability != contact::kPending &&
         availability != contact::kPhone;
}

}  // namespace

const std::string& Contacts::IdentityOf(const Object& contact) {
  return contact.GetText(IsPhone(contact) ? contact::kPhoneNumber : contact::kIdentity);
}

bool Contacts::IsPhone(const Object& contact) {
  return contact.GetInt(contact::kType) == static_cast<int>(IdentityType::Phone);
}

bool Contacts::HasAuthorizedMe(const Object& contact) const {
  const std::string& identity = IdentityOf(contact);
  const std::string& answer = contact.GetText(contact::kAnswer);
  if (!answer.empty()) return answer == "1";
  return IsPhone(contact) || IsMagicName(identity) || m_service.Exists(identity);
}

void Contacts::Load(std::string_view account) {
  Forget();
  const std::vector<std::string> list = m_service.Contacts(account);
  const std::set<std::string> listed(list.begin(), list.end());
  const std::map<std::string, Notes> notes = m_service.Notes(account);
  const ContactGroups::Quiet quiet(m_groups);
  for (const std::string& identity : listed) Find(identity);
  for (const auto& [identity, ignored] : notes) Find(identity);
  m_groups.LoadCustom(account, m_byIdentity);
  for (const auto& [identity, id] : m_byIdentity) {
    Object* contact = m_world.Find(id);
    if (contact == nullptr) continue;
    const auto noted = notes.find(identity);
    Apply(*contact, listed.count(identity) != 0, noted == notes.end() ? Notes() : noted->second);
  }
  m_account = account;
}

void Contacts::Apply(Object& contact, bool listed, const Notes& notes) {
  if (listed) m_listed.insert(contact.id);
  // Whoever is in the list is authorized unless something else is noted.
  Notes values = {
      {contact::kAuthLevel, {std::to_string(listed ? contact::kAuthorized : contact::kNotAuthorized)}},
      {contact::kGivenName, {}},
      {contact::kSpeedDial, {}},
      {contact::kAnswer, {}},
      {contact::kAsked, {}},
      {contact::kRequested, {"0"}}};
  for (int property = contact::kFirstNumber; property <= contact::kLastNumber; ++property)
    values[property] = {};
  for (const auto& [property, value] : notes) values[property] = value;
  for (const auto& [property, value] : values) {
    if (contact.Get(property).text != value.text) m_world.Set(contact, property, value);
  }
  ShowName(contact, true);
  Settle(contact);
}

void Contacts::Forget() {
  m_account.clear();
  m_listed.clear();
  m_groups.Forget();
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
  const int presence = phone                              ? int{contact::kPhone}
                       : IsMagicName(normalized.identity) ? int{contact::kOnline}
                                                          : m_service.PresenceOf(normalized.identity);
  m_world.PutInt(object, contact::kType, static_cast<int>(type));
  m_world.Put(object, phone ? contact::kPhoneNumber : contact::kIdentity, normalized.identity);
  m_world.PutInt(object, contact::kAuthLevel, contact::kNotAuthorized);
  m_world.PutInt(object, contact::kPresence, presence);
  m_world.PutInt(object, contact::kAvailability, presence);
  m_world.PutInt(object, contact::kRequested, 0);
  if (!phone) FillProfile(object, false);
  ShowName(object, false);
  return &object;
}

std::string Contacts::NameOf(std::string_view identity) {
  const Object* contact = Find(identity);
  return contact == nullptr ? std::string(identity) : contact->GetText(contact::kDisplayName);
}

std::vector<std::string> Contacts::Acquaintances() {
  std::vector<std::string> people = m_service.Contacts(m_account);
  people.push_back("sndtest");
  return people;
}

Object* Contacts::FindByNumber(std::string_view number, int& property) {
  const NormalizedIdentity wanted = NormalizeIdentity(number, false);
  if (wanted.verdict != NameVerdict::Good || TypeOfIdentity(wanted.identity) != IdentityType::Phone)
    return nullptr;
  for (const unsigned id : m_listed) {
    Object* contact = m_world.Find(id);
    if (contact == nullptr) continue;
    for (const int candidate : kNumberProperties) {
      const std::string& text = contact->GetText(candidate);
      if (text.empty() || NormalizeIdentity(text, false).identity != wanted.identity) continue;
      property = candidate;
      return contact;
    }
  }
  return nullptr;
}

Object* Contacts::FindBySpeedDial(std::string_view keys) {
  if (keys.empty()) return nullptr;
  for (const unsigned id : m_listed) {
    Object* contact = m_world.Find(id);
    if (contact != nullptr && contact->GetText(contact::kSpeedDial) == keys) return contact;
  }
  return nullptr;
}

void Contacts::FillProfile(Object& contact, bool tell) {
  static const std::map<int, int> kShown = ShownProperties();
  for (const auto& [property, value] : m_service.Profile(IdentityOf(contact))) {
    const auto shown = kShown.find(property);
    if (shown != kShown.end()) Put(contact, shown->second, value, tell);
  }
}

void Contacts::Put(Object& contact, int property, Value value, bool tell) {
  if (tell) {
    m_world.Set(contact, property, std::move(value));
  } else {
    m_world.Put(contact, property, std::move(value));
  }
}

void Contacts::ShowName(Object& contact, bool tell) {
  for (const int property : {int{contact::kGivenName}, int{contact::kFullName}}) {
    const std::string name = contact.GetText(property);
    if (name.empty()) continue;
    Put(contact, contact::kDisplayName, {name}, tell);
    return;
  }
  Put(contact, contact::kDisplayName, {IdentityOf(contact)}, tell);
}

void Contacts::Note(Object& contact, int property, const std::string& value) {
  if (!m_account.empty()) m_service.Note(m_account, IdentityOf(contact), property, value);
  m_world.Set(contact, property, value);
}

void Contacts::Settle(Object& contact) {
  const int presence = contact.GetInt(contact::kPresence);
  Standing standing;
  standing.listed = IsListed(contact);
  standing.phone = IsPhone(contact);
  standing.trusting = HasAuthorizedMe(contact);
  standing.waiting = contact.GetInt(contact::kRequested) != 0;
  standing.level = contact.GetInt(contact::kAuthLevel);
  standing.grouped = m_groups.IsInCustomGroup(contact);
  // Who asks has not been answered, and who is blocked is not watched.
  const int availability = standing.waiting                      ? int{contact::kPending}
                           : standing.level == contact::kBlocked ? int{contact::kOffline}
                                                                 : presence;
  standing.online = IsOnline(availability);
  const bool before = IsOnline(contact.GetInt(contact::kAvailability));
  m_world.SetInt(contact, contact::kAvailability, availability);
  m_groups.Place(contact, standing);
  if (!standing.listed || before == standing.online || m_account.empty()) return;
  m_world.Event(contact,
                standing.online ? ZEEventNumber::ContactOnlineAppearance : ZEEventNumber::ContactGoneOffline);
}

}  // namespace simulator
