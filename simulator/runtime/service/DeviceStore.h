// What this device remembers: settings, and the accounts that have signed in here.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/runtime/service/Database.h"

namespace simulator {

// Kept in HOME/.Zelto: the database in its folder "data", and beside it a folder for each account that has
// signed in here and the list "accounts" of their names for people, the last one first. Whoever judges by
// the number of entries sees at least three as soon as there is an account, and fewer before.
// What an operation has stored is there after a sudden death. Throws DatabaseError when nothing can be kept.
// Threads: none of its own.
class DeviceStore {
 public:
  // The folder HOME/.Zelto; it is created, with everything above it.
  explicit DeviceStore(const std::string& folder);

  const std::string& Folder() const { return m_folder; }
  // Where databases lie.
  static std::string DataFolder(const std::string& folder) { return folder + "/data"; }
  // The account's own folder. Names that are no file names are percent-encoded.
  std::string AccountFolder(std::string_view name) const;

  // Settings. Keys that begin with "*" belong to the device, others to the account given (empty: nobody is
  // signed in, the device keeps them).
  std::optional<std::string> Setting(std::string_view account, std::string_view key) const;
  void SetSetting(std::string_view account, std::string_view key, std::string_view value);
  void DeleteSetting(std::string_view account, std::string_view key);
  // The names one level below a key, sorted: "UI/Login" for the key "*UI" lists "Login".
  std::vector<std::string> SubKeys(std::string_view account, std::string_view key) const;

  // Remembers that an account signed in, and its password unless that is null.
  void RememberAccount(std::string_view name, const std::string* password);
  void ForgetPassword(std::string_view name);
  std::optional<std::string> StoredPassword(std::string_view name) const;
  // The last one first.
  std::vector<std::string> Accounts() const;
  // The account that signed in last, if its password is stored; else empty.
  std::string DefaultAccount() const;

 private:
  using Scope = std::map<std::string, std::string, std::less<>>;

  static std::string_view ScopeOf(std::string_view account, std::string_view key);
  const Scope& Settings(std::string_view scope) const;
  void WriteAccountList() const;

  std::string m_folder;
  mutable Database m_database;
  mutable std::map<std::string, Scope, std::less<>> m_scopes;  // read once, then kept up to date
};

}  // namespace simulator
