// The simulated service's side of contact lists: who is in them, what is noted about them, their groups.
#include <algorithm>
#include <ctime>
#include <iterator>
#include <random>

#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/service/DemoContacts.h"
#include "simulator/runtime/service/Pictures.h"
#include "simulator/runtime/service/SimulatedAccounts.h"
#include "simulator/runtime/service/SimulatedService.h"

namespace simulator {
namespace {

struct Native {
  const char* language;
  const char* country;
  const char* city;
  const char* names[4];
};

// clang-format off
// Where invented people come from.
constexpr Native kNatives[] = {
    {"en", "ie", "Galway",  {"Aidan", "Brona",  "Cormac",  "Deirdre"}},
    {"de", "at", "Graz",    {"Emil",  "Frieda", "Gregor",  "Hanna"}},
    {"es", "mx", "Puebla",  {"Ivan",  "Julia",  "Lorenzo", "Marta"}},
    {"fi", "fi", "Turku",   {"Niilo", "Oona",   "Petri",   "Ritva"}},
    {"pl", "pl", "Gdynia",  {"Stach", "Teresa", "Urban",   "Wanda"}},
};
constexpr int kInventedPresences[] = {contact::kOnline, contact::kOnline, contact::kAway, contact::kBusy,
                                      contact::kOffline, contact::kOffline, contact::kOffline};
// clang-format on

// Every so many of them is a telephone number.
constexpr unsigned kPhoneEvery = 20;

bool IsPhone(std::string_view identity) { return TypeOfIdentity(identity) == IdentityType::Phone; }

template <typename T, std::size_t N>
const T& Pick(const T (&choices)[N], std::minstd_rand& random) {
  return choices[random() % N];
}

}  // namespace

void SimulatedService::AddDemoContacts() {
  // Once: what their users have changed since then is theirs.
  if (Exists(kDemoContacts[std::size(kDemoContacts) - 1].identity)) return;
  for (const DemoContact& demo : kDemoContacts) {
    if (IsPhone(demo.identity)) continue;
    const std::string name = demo.identity;
    if (!Exists(name)) Create({name, kDemoPassword, name + "@example.org", false}, {});
    StoreValues(name,
                {{account::kFullName, {demo.name}},
                 {account::kGender, {std::to_string(demo.gender)}},
                 {account::kLanguage, {demo.language}},
                 {account::kCountry, {demo.country}},
                 {account::kCity, {demo.city}},
                 {account::kMood, {demo.mood}},
                 {account::kPicture, demo.pictured ? Value{EscapeBinary(PictureOf(name)), true} : Value{}},
                 {contact::kPresence, {std::to_string(demo.presence)}}});
  }
  for (const DemoAccount& demo : kDemoAccounts) {
    if (demo.trait == Trait::None) GiveDemoContacts(demo.name);
  }
}

void SimulatedService::GiveDemoContacts(std::string_view name) {
  for (const DemoContact& demo : kDemoContacts) {
    if (name == demo.identity) continue;
    if (demo.place == Place::Listed) AddContact(name, demo.identity);
    if (demo.place == Place::Waiting)
      Note(name, demo.identity, contact::kRequested, std::to_string(std::time(nullptr)));
    if (demo.place == Place::Blocked) {
      Note(name, demo.identity, contact::kAuthLevel, std::to_string(contact::kBlocked));
    }
    if (IsPhone(demo.identity)) Note(name, demo.identity, contact::kGivenName, demo.name);
  }
}

std::vector<std::string> SimulatedService::AddInventedContacts(std::string_view name, int count,
                                                               unsigned seed) {
  std::vector<std::string> added;
  if (!Exists(name)) return added;
  std::minstd_rand random(seed);
  Database::Transaction transaction(m_database);
  for (unsigned number = 1; added.size() < static_cast<std::size_t>(count); ++number) {
    const Native& native = Pick(kNatives, random);
    const std::string first = Pick(native.names, random);
    const int presence = Pick(kInventedPresences, random);
    const std::string digits = std::to_string(number);
    const std::string fullName = first + " " + digits;
    if (number % kPhoneEvery == 0) {
      const std::string phone =
          "+1555" + std::string(7 - std::min<std::size_t>(7, digits.size()), '0') + digits;
      if (!AddContact(name, phone)) continue;
      Note(name, phone, contact::kGivenName, fullName);
      added.push_back(phone);
      continue;
    }
    const std::string identity = Lower(first) + "." + digits;
    if (Exists(identity)) continue;
    m_database.Run("INSERT INTO accounts VALUES (?, ?, '', 0, 0)",
                   {identity, std::string_view(kDemoPassword)});
    StoreValues(identity, {{account::kFullName, {fullName}},
                           {account::kLanguage, {native.language}},
                           {account::kCountry, {native.country}},
                           {account::kCity, {native.city}},
                           {contact::kPresence, {std::to_string(presence)}}});
    AddContact(name, identity);
    added.push_back(identity);
  }
  transaction.Commit();
  return added;
}

int SimulatedService::PresenceOf(std::string_view name) {
  auto rows = m_database.Ask("SELECT value FROM profile WHERE account = ? AND property = ?",
                             {name, std::int64_t{contact::kPresence}});
  if (rows.Next()) return ToInt(rows.Text(0));
  return Exists(name) ? contact::kOnline : contact::kOffline;
}

std::vector<std::string> SimulatedService::Contacts(std::string_view name) {
  std::vector<std::string> contacts;
  auto rows = m_database.Ask("SELECT contact FROM contacts WHERE account = ? ORDER BY contact", {name});
  while (rows.Next()) contacts.push_back(rows.Text(0));
  return contacts;
}

bool SimulatedService::AddContact(std::string_view name, std::string_view contact) {
  if (!Exists(name)) return false;
  return m_database.Run("INSERT INTO contacts VALUES (?, ?) ON CONFLICT DO NOTHING", {name, contact}) == 1;
}

bool SimulatedService::RemoveContact(std::string_view name, std::string_view contact) {
  return m_database.Run("DELETE FROM contacts WHERE account = ? AND contact = ?", {name, contact}) == 1;
}

std::map<std::string, Service::Properties> SimulatedService::Notes(std::string_view name) {
  std::map<std::string, Properties> notes;
  auto rows = m_database.Ask("SELECT contact, property, value FROM notes WHERE account = ?", {name});
  while (rows.Next()) notes[rows.Text(0)][static_cast<int>(rows.Number(1))] = {rows.Text(2)};
  return notes;
}

void SimulatedService::Note(std::string_view name, std::string_view contact, int property,
                            std::string_view value) {
  if (value.empty()) {
    m_database.Run("DELETE FROM notes WHERE account = ? AND contact = ? AND property = ?",
                   {name, contact, std::int64_t{property}});
    return;
  }
  m_database.Run("INSERT INTO notes VALUES (?1, ?2, ?3, ?4) ON CONFLICT DO UPDATE SET value = ?4",
                 {name, contact, std::int64_t{property}, value});
}

std::vector<Service::Group> SimulatedService::Groups(std::string_view name) {
  std::vector<Group> groups;
  auto rows =
      m_database.Ask("SELECT number, name FROM contact_groups WHERE account = ? ORDER BY number", {name});
  while (rows.Next()) groups.push_back({rows.Number(0), rows.Text(1), {}});
  for (Group& group : groups) {
    auto members =
        m_database.Ask("SELECT contact FROM contact_group_members WHERE number = ?", {group.number});
    while (members.Next()) group.members.push_back(members.Text(0));
  }
  return groups;
}

std::int64_t SimulatedService::CreateGroup(std::string_view name) {
  m_database.Run("INSERT INTO contact_groups (account, name) VALUES (?, '')", {name});
  return LastNumber();
}

bool SimulatedService::RenameGroup(std::string_view name, std::int64_t group, std::string_view to) {
  return m_database.Run("UPDATE contact_groups SET name = ?3 WHERE account = ?1 AND number = ?2",
                        {name, group, to}) == 1;
}

bool SimulatedService::DeleteGroup(std::string_view name, std::int64_t group) {
  return m_database.Run("DELETE FROM contact_groups WHERE account = ? AND number = ?", {name, group}) == 1;
}

void SimulatedService::SetGroupMember(std::int64_t group, std::string_view contact, bool member) {
  if (member) {
    m_database.Run("INSERT INTO contact_group_members VALUES (?, ?) ON CONFLICT DO NOTHING",
                   {group, contact});
  } else {
    m_database.Run("DELETE FROM contact_group_members WHERE number = ? AND contact = ?", {group, contact});
  }
}

}  // namespace simulator
