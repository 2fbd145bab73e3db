#include "simulator/runtime/service/SimulatedService.h"

#include <algorithm>
#include <ctime>

#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/service/Pictures.h"
#include "simulator/runtime/service/SimulatedAccounts.h"

namespace simulator {
namespace {

constexpr char kSchema[] =
    "CREATE TABLE accounts (name TEXT PRIMARY KEY, password TEXT NOT NULL, email TEXT NOT NULL,"
    " offers INTEGER NOT NULL, created INTEGER NOT NULL);"
    "CREATE TABLE profile (account TEXT NOT NULL REFERENCES accounts ON DELETE CASCADE,"
    " property INTEGER NOT NULL, value TEXT NOT NULL, binary INTEGER NOT NULL,"
    " PRIMARY KEY (account, property)) WITHOUT ROWID;"
    "CREATE TABLE contacts (account TEXT NOT NULL REFERENCES accounts ON DELETE CASCADE,"
    " contact TEXT NOT NULL, PRIMARY KEY (account, contact)) WITHOUT ROWID;"
    "CREATE TABLE capabilities (account TEXT NOT NULL REFERENCES accounts ON DELETE CASCADE,"
    " capability INTEGER NOT NULL, expiry INTEGER NOT NULL, PRIMARY KEY (account, capability)) WITHOUT "
    "ROWID;";

constexpr char kNotesAndGroups[] =
    "CREATE TABLE notes (account TEXT NOT NULL REFERENCES accounts ON DELETE CASCADE,"
    " contact TEXT NOT NULL, property INTEGER NOT NULL, value TEXT NOT NULL,"
    " PRIMARY KEY (account, contact, property)) WITHOUT ROWID;"
    "CREATE TABLE contact_groups (number INTEGER PRIMARY KEY AUTOINCREMENT,"
    " account TEXT NOT NULL REFERENCES accounts ON DELETE CASCADE, name TEXT NOT NULL);"
    "CREATE TABLE contact_group_members (number INTEGER NOT NULL REFERENCES contact_groups ON DELETE CASCADE,"
    " contact TEXT NOT NULL, PRIMARY KEY (number, contact)) WITHOUT ROWID;";

constexpr char kChatsAndHistory[] =
    "CREATE TABLE chats (number INTEGER PRIMARY KEY AUTOINCREMENT,"
    " account TEXT NOT NULL REFERENCES accounts ON DELETE CASCADE, type INTEGER NOT NULL,"
    " partner TEXT NOT NULL, topic TEXT NOT NULL, created INTEGER NOT NULL, active INTEGER NOT NULL,"
    " gone INTEGER NOT NULL, bookmarked INTEGER NOT NULL);"
    "CREATE INDEX chats_of ON chats (account);"
    "CREATE TABLE chat_people (chat INTEGER NOT NULL REFERENCES chats ON DELETE CASCADE,"
    " identity TEXT NOT NULL, member INTEGER NOT NULL, posted INTEGER NOT NULL,"
    " PRIMARY KEY (chat, identity)) WITHOUT ROWID;"
    "CREATE TABLE messages (number INTEGER PRIMARY KEY AUTOINCREMENT,"
    " chat INTEGER NOT NULL REFERENCES chats ON DELETE CASCADE, type INTEGER NOT NULL,"
    " author TEXT NOT NULL, at INTEGER NOT NULL, body TEXT NOT NULL, status INTEGER NOT NULL,"
    " contacts TEXT NOT NULL);"
    "CREATE INDEX messages_in ON messages (chat, status);"
    "CREATE TABLE past_calls (number INTEGER PRIMARY KEY AUTOINCREMENT,"
    " account TEXT NOT NULL REFERENCES accounts ON DELETE CASCADE, started INTEGER NOT NULL,"
    " duration INTEGER NOT NULL, incoming INTEGER NOT NULL, conference INTEGER NOT NULL,"
    " unseen INTEGER NOT NULL);"
    "CREATE INDEX past_calls_of ON past_calls (account);"
    "CREATE TABLE past_call_parties (call INTEGER NOT NULL REFERENCES past_calls ON DELETE CASCADE,"
    " place INTEGER NOT NULL, identity TEXT NOT NULL, name TEXT NOT NULL, type INTEGER NOT NULL,"
    " status INTEGER NOT NULL, PRIMARY KEY (call, place)) WITHOUT ROWID;"
    "CREATE TABLE voicemails (number INTEGER PRIMARY KEY AUTOINCREMENT,"
    " account TEXT NOT NULL REFERENCES accounts ON DELETE CASCADE, partner TEXT NOT NULL,"
    " at INTEGER NOT NULL, duration INTEGER NOT NULL, status INTEGER NOT NULL);"
    "CREATE INDEX voicemails_of ON voicemails (account);";

constexpr std::int64_t kSecondsPerDay = 24 * 60 * 60;
constexpr std::size_t kSuggestions = 3;

std::int64_t Now() { return std::time(nullptr); }

}  // namespace

SimulatedService::SimulatedService(const std::string& folder)
    : m_database(folder + "/service.db", {kSchema, kNotesAndGroups, kChatsAndHistory}) {
  AddDemoAccounts();
}

void SimulatedService::Together(const std::function<void()>& changes) {
  Database::Transaction transaction(m_database);
  changes();
  transaction.Commit();
}

std::int64_t SimulatedService::LastNumber() {
  auto rows = m_database.Ask("SELECT last_insert_rowid()");
  return rows.Next() ? rows.Number(0) : 0;
}

void SimulatedService::AddDemoAccounts() {
  Database::Transaction transaction(m_database);
  for (const DemoAccount& demo : kDemoAccounts) {
    if (Exists(demo.name)) continue;
    Create({demo.name, demo.password, std::string(demo.name) + "@example.org", false},
           {{account::kFullName, {demo.fullName}},
            {account::kCity, {demo.city}},
            {account::kMood, {demo.mood}}});
  }
  AddDemoContacts();
  transaction.Commit();
}

void SimulatedService::Create(const Registration& registration, const Properties& profile) {
  const std::string_view name = registration.name;
  m_database.Run("INSERT INTO accounts VALUES (?, ?, ?, ?, ?)",
                 {name, std::string_view(registration.password), std::string_view(registration.email),
                  std::int64_t{registration.offers}, Now()});
  for (const DemoCapability& row : kDemoCapabilities) {
    const std::int64_t expiry = row.days == 0 ? 0 : Now() + row.days * kSecondsPerDay;
    m_database.Run("INSERT INTO capabilities VALUES (?, ?, ?)", {name, std::int64_t{row.capability}, expiry});
  }
  Properties values = {{account::kLanguage, {"en"}},
                       {account::kCountry, {"pt"}},
                       {account::kChatPolicy, {"1"}},
                       {account::kCallPolicy, {"1"}},
                       {account::kPhoneCallPolicy, {"1"}},
                       {account::kPicturePolicy, {"1"}},
                       {account::kPicture, {EscapeBinary(PictureOf(name)), true}},
                       {account::kEmails, {registration.email}}};
  for (const auto& [property, value] : profile) values[property] = value;
  StoreValues(name, values);
}

void SimulatedService::StoreValues(std::string_view name, const Properties& values) {
  for (const auto& [property, value] : values) {
    m_database.Run(
        "INSERT INTO profile VALUES (?1, ?2, ?3, ?4)"
        " ON CONFLICT DO UPDATE SET value = ?3, binary = ?4",
        {name, std::int64_t{property}, std::string_view(value.text), std::int64_t{value.binary}});
  }
}

bool SimulatedService::Exists(std::string_view name) {
  return m_database.Ask("SELECT 1 FROM accounts WHERE name = ?", {name}).Next();
}

std::string SimulatedService::PasswordOf(std::string_view name) {
  auto rows = m_database.Ask("SELECT password FROM accounts WHERE name = ?", {name});
  return rows.Next() ? rows.Text(0) : std::string();
}

LogoutReason SimulatedService::SignIn(std::string_view name, std::string_view password) {
  switch (TraitOf(name)) {
    case Trait::Unreachable:
      return LogoutReason::ServiceUnreachable;
    case Trait::TooMany:
      return LogoutReason::TooManyAttempts;
    case Trait::Damaged:
      return LogoutReason::DatabaseDamaged;
    default:
      break;
  }
  if (!Exists(name)) return LogoutReason::UnknownAccount;
  return PasswordOf(name) == password ? LogoutReason::None : LogoutReason::WrongPassword;
}

LogoutReason SimulatedService::Register(const Registration& registration) {
  if (NormalizeIdentity(registration.name, true).verdict != NameVerdict::Good) return LogoutReason::BadName;
  if (Exists(registration.name)) return LogoutReason::NameTaken;
  if (JudgePassword(registration.name, registration.password) != PasswordVerdict::Good) {
    return LogoutReason::BadPassword;
  }
  if (!registration.email.empty() && !IsEmail(registration.email)) return LogoutReason::BadEmail;
  Database::Transaction transaction(m_database);
  Create(registration, {});
  transaction.Commit();
  return LogoutReason::None;
}

bool SimulatedService::ChangePassword(std::string_view name, std::string_view before, std::string_view now) {
  return m_database.Run("UPDATE accounts SET password = ?3 WHERE name = ?1 AND password = ?2",
                        {name, before, now}) == 1;
}

std::vector<std::string> SimulatedService::SuggestNames(std::string_view name) {
  static constexpr std::string_view kEndings[] = {".tv", ".home", ".2"};
  const std::string base = NormalizeIdentity(name, true).identity.substr(0, kMaxName - 6);
  std::vector<std::string> names;
  const auto offer = [&](std::string candidate) {
    if (NormalizeIdentity(candidate, true).verdict == NameVerdict::Good && !Exists(candidate)) {
      names.push_back(std::move(candidate));
    }
  };
  for (const auto ending : kEndings) offer(base + std::string(ending));
  for (int number = 3; names.size() < kSuggestions && number < 1000; ++number) {
    offer(base + "." + std::to_string(number));
  }
  return names;
}

Trait SimulatedService::TraitOf(std::string_view name) {
  for (const DemoAccount& demo : kDemoAccounts) {
    if (name == demo.name) return demo.trait;
  }
  return Trait::None;
}

Service::Properties SimulatedService::Profile(std::string_view name) {
  Properties values;
  auto rows = m_database.Ask("SELECT property, value, binary FROM profile WHERE account = ?", {name});
  while (rows.Next()) values[static_cast<int>(rows.Number(0))] = {rows.Text(1), rows.Number(2) != 0};
  return values;
}

bool SimulatedService::StoreProfile(std::string_view name, const Properties& values) {
  if (!Exists(name)) return false;
  Database::Transaction transaction(m_database);
  StoreValues(name, values);
  transaction.Commit();
  return true;
}

Capability SimulatedService::CapabilityOf(std::string_view name, int capability) {
  auto rows = m_database.Ask("SELECT expiry FROM capabilities WHERE account = ? AND capability = ?",
                             {name, std::int64_t{capability}});
  if (!rows.Next()) return {};
  const std::int64_t expiry = rows.Number(0);
  return {CapabilityStatus(expiry, Now()), expiry};
}

}  // namespace simulator
