// Why an account is signed out: the numbers of ACCOUNT_LOGOUTREASON_MAP and what they mean here.
#pragma once

namespace simulator {

enum class LogoutReason : int {
  None = 0,
  Requested = 1,
  UnknownAccount = 2,
  WrongPassword = 3,
  SignedInElsewhere = 4,
  ServiceUnreachable = 5,
  TooManyAttempts = 6,
  PasswordChanged = 7,
  NoStoredPassword = 8,
  BadName = 9,
  BadPassword = 10,
  NameTaken = 11,
  BadEmail = 12,
  // With these four the engine resets the database.
  DiskFull = 18,
  DatabaseUnreadable = 19,
  DatabaseDamaged = 20,
  DatabaseFailed = 21,
};

struct LogoutReasonRow {
  LogoutReason reason;
  const char* name;  // as the door and scenario files write it
};

// clang-format off
inline constexpr LogoutReasonRow kLogoutReasons[] = {
    {LogoutReason::Requested,          "requested"},
    {LogoutReason::UnknownAccount,     "unknown-account"},
    {LogoutReason::WrongPassword,      "wrong-password"},
    {LogoutReason::SignedInElsewhere,  "elsewhere"},
    {LogoutReason::ServiceUnreachable, "unreachable"},
    {LogoutReason::TooManyAttempts,    "too-many-attempts"},
    {LogoutReason::PasswordChanged,    "password-changed"},
    {LogoutReason::NoStoredPassword,   "no-stored-password"},
    {LogoutReason::BadName,            "bad-name"},
    {LogoutReason::BadPassword,        "bad-password"},
    {LogoutReason::NameTaken,          "name-taken"},
    {LogoutReason::BadEmail,           "bad-email"},
    {LogoutReason::DiskFull,           "disk-full"},
    {LogoutReason::DatabaseUnreadable, "database-unreadable"},
    {LogoutReason::DatabaseDamaged,    "database-damaged"},
    {LogoutReason::DatabaseFailed,     "database-failed"},
};
// clang-format on

}  // namespace simulator
