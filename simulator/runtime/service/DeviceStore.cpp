#include "simulator/runtime/service/DeviceStore.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace simulator {
namespace {

constexpr char kSchema[] =
    "CREATE TABLE accounts (name TEXT PRIMARY KEY, password TEXT, used INTEGER NOT NULL);"
    "CREATE TABLE settings (scope TEXT NOT NULL, key TEXT NOT NULL, value TEXT NOT NULL,"
    " PRIMARY KEY (scope, key)) WITHOUT ROWID;";

constexpr std::size_t kMaxFileName = 200;
// What lies beside the accounts' folders; an account of that name gets its first letter encoded.
constexpr std::string_view kTakenFileNames[] = {"data", "door", "accounts"};

std::string MakeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) throw DatabaseError(folder + ": " + error.message());
  return folder;
}

std::string FileName(std::string_view name) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  const bool taken =
      std::find(std::begin(kTakenFileNames), std::end(kTakenFileNames), name) != std::end(kTakenFileNames);
  std::string result;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte <= ' ' || byte == 0x7f || c == '/' || c == '%' || (result.empty() && (c == '.' || taken))) {
      result += '%';
      result += kDigits[byte >> 4];
      result += kDigits[byte & 15];
    } else {
      result += c;
    }
  }
  if (result.size() > kMaxFileName) {
    result.replace(kMaxFileName, std::string::npos,
                   "~" + std::to_string(std::hash<std::string_view>()(name)));
  }
  return result;
}

}  // namespace

DeviceStore::DeviceStore(const std::string& folder)
    : m_folder(folder), m_database(MakeFolder(DataFolder(folder)) + "/device.db", {kSchema}) {}

std::string DeviceStore::AccountFolder(std::string_view name) const {
  return m_folder + "/" + FileName(name);
}

std::string_view DeviceStore::ScopeOf(std::string_view account, std::string_view key) {
  return !key.empty() && key.front() == '*' ? std::string_view() : account;
}

const DeviceStore::Scope& DeviceStore::Settings(std::string_view scope) const {
  const auto known = m_scopes.find(scope);
  if (known != m_scopes.end()) return known->second;
  Scope settings;
  auto rows = m_database.Ask("SELECT key, value FROM settings WHERE scope = ?", {scope});
  while (rows.Next()) settings.emplace(rows.Text(0), rows.Text(1));
  return m_scopes.emplace(scope, std::move(settings)).first->second;
}

std::optional<std::string> DeviceStore::Setting(std::string_view account, std::string_view key) const {
  const Scope& settings = Settings(ScopeOf(account, key));
  const auto found = settings.find(key);
  return found == settings.end() ? std::nullopt : std::optional(found->second);
}

void DeviceStore::SetSetting(std::string_view account, std::string_view key, std::string_view value) {
  const auto scope = ScopeOf(account, key);
  if (Setting(account, key) == value) return;
  m_database.Run("INSERT INTO settings VALUES (?1, ?2, ?3) ON CONFLICT DO UPDATE SET value = ?3",
                 {scope, key, value});
  m_scopes.find(scope)->second.insert_or_assign(std::string(key), std::string(value));
}

void DeviceStore::DeleteSetting(std::string_view account, std::string_view key) {
  const auto scope = ScopeOf(account, key);
  if (!Setting(account, key)) return;
  m_database.Run("DELETE FROM settings WHERE scope = ? AND key = ?", {scope, key});
  m_scopes.find(scope)->second.erase(std::string(key));
}

std::vector<std::string> DeviceStore::SubKeys(std::string_view account, std::string_view key) const {
  std::string prefix(key);
  if (!prefix.empty() && prefix != "*" && prefix.back() != '/') prefix += '/';
  const Scope& settings = Settings(ScopeOf(account, key));
  std::vector<std::string> names;
  for (auto row = settings.lower_bound(prefix); row != settings.end(); ++row) {
    if (row->first.compare(0, prefix.size(), prefix) != 0) break;
    const auto end = row->first.find('/', prefix.size());
    std::string name = row->first.substr(prefix.size(), end - prefix.size());
    if (!name.empty() && (names.empty() || names.back() != name)) names.push_back(std::move(name));
  }
  return names;
}

void DeviceStore::RememberAccount(std::string_view name, const std::string* password) {
  Database::Transaction transaction(m_database);
  m_database.Run(
      "INSERT INTO accounts VALUES (?1, NULL, (SELECT COALESCE(MAX(used), 0) + 1 FROM accounts))"
      " ON CONFLICT DO UPDATE SET used = excluded.used",
      {name});
  if (password != nullptr)
    m_database.Run("UPDATE accounts SET password = ?2 WHERE name = ?1", {name, *password});
  transaction.Commit();
  std::error_code ignored;  // the folder only shows that there is an account
  std::filesystem::create_directories(AccountFolder(name), ignored);
  WriteAccountList();
}

void DeviceStore::ForgetPassword(std::string_view name) {
  m_database.Run("UPDATE accounts SET password = NULL WHERE name = ?", {name});
}

std::optional<std::string> DeviceStore::StoredPassword(std::string_view name) const {
  auto rows = m_database.Ask("SELECT password FROM accounts WHERE name = ? AND password IS NOT NULL", {name});
  if (!rows.Next()) return std::nullopt;
  return rows.Text(0);
}

std::vector<std::string> DeviceStore::Accounts() const {
  std::vector<std::string> names;
  auto rows = m_database.Ask("SELECT name FROM accounts ORDER BY used DESC");
  while (rows.Next()) names.push_back(rows.Text(0));
  return names;
}

std::string DeviceStore::DefaultAccount() const {
  auto rows = m_database.Ask("SELECT name, password IS NOT NULL FROM accounts ORDER BY used DESC LIMIT 1");
  return rows.Next() && rows.Number(1) != 0 ? rows.Text(0) : std::string();
}

void DeviceStore::WriteAccountList() const {
  std::ofstream list(m_folder + "/accounts");
  for (const std::string& name : Accounts()) list << name << '\n';
}

}  // namespace simulator
