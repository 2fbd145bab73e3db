// What the simulated service accepts: account names, passwords, e-mail addresses, phone numbers.
// Threads: any; nothing here has a state.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace simulator {

inline constexpr std::size_t kMinName = 4;
inline constexpr std::size_t kMaxName = 32;
inline constexpr std::size_t kMinPassword = 6;
inline constexpr std::size_t kMaxPassword = 20;
inline constexpr std::size_t kMaxEmail = 254;

// Numbers of ACCOUNT_VALIDATERESULT_MAP.
enum class PasswordVerdict : int {
  Good = 1,
  TooShort = 2,
  TooLong = 3,
  BadCharacter = 4,
  Space = 5,
  SameAsName = 6,
  BadFormat = 7,  // not a letter and a digit at least
  BadWord = 8,
  TooSimple = 9,  // few different characters, or a run like "abc123"
};

// Numbers of CONTACT_NORMALIZERESULT_MAP.
enum class NameVerdict : int {
  Good = 1,
  Empty = 2,
  TooLong = 3,
  BadCharacter = 4,
  TooShort = 5,
  BadStart = 6,  // an account name starts with a letter
};

// Numbers of CONTACT_TYPE_MAP.
enum class IdentityType : int { Unknown = 1, Account = 2, Phone = 3 };

// Plain letters in lower case; everything else stays.
std::string Lower(std::string_view text);

PasswordVerdict JudgePassword(std::string_view name, std::string_view password);
bool IsEmail(std::string_view text);

struct NormalizedIdentity {
  NameVerdict verdict;
  std::string identity;  // what could be made of the text, also when it is not good
};

// Account names in lower case without blanks around them; phone numbers as digits behind a plus sign where
// there was one (or two leading zeros). A new account needs an account name.
NormalizedIdentity NormalizeIdentity(std::string_view identity, bool newAccount);
IdentityType TypeOfIdentity(std::string_view identity);

// The status of a capability by the time that is left (ACCOUNT_CAPABILITYSTATUS_MAP): 2 while there is
// plenty, 3 to 5 as the end comes near, 1 when it is over. Seconds since the epoch; 0 never ends.
int CapabilityStatus(std::int64_t expiry, std::int64_t now);

}  // namespace simulator
