#include "simulator/runtime/service/AccountRules.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>

namespace simulator {
namespace {

constexpr std::size_t kMinDifferent = 4;
constexpr std::size_t kMinDigits = 3;
constexpr std::size_t kMaxDigits = 16;
constexpr std::string_view kBadWords[] = {"zelto", "password", "secret"};

constexpr std::int64_t kDay = 24 * 60 * 60;

struct CapabilityRow {
  std::int64_t left;  // seconds, at most
  int status;
};

// clang-format off
constexpr CapabilityRow kCapabilityRows[] = {
    {0,         1},  // over
    {1 * kDay,  5},  // ends within a day
    {7 * kDay,  4},  // within a week
    {30 * kDay, 3},  // within a month
};
// clang-format on

bool IsLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }
bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }
char Lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

std::string_view Trim(std::string_view text) {
  const auto begin = text.find_first_not_of(" \t");
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

bool IsRun(std::string_view text) {
  const auto step = [&](char difference) {
    return std::adjacent_find(text.begin(), text.end(),
                              [difference](char a, char b) { return b - a != difference; }) == text.end();
  };
  return step(1) || step(-1);
}

bool IsSimple(std::string_view password) {
  if (std::set<char>(password.begin(), password.end()).size() < kMinDifferent) return true;
  // Letters and digits apart, so that "abc123" is as simple as it looks.
  std::string letters, digits;
  for (const char c : password) (IsDigit(c) ? digits : letters) += Lower(c);
  return IsRun(letters) && IsRun(digits);
}

bool IsHostName(std::string_view host) {
  if (host.find('.') == std::string_view::npos) return false;
  while (true) {
    const auto label = host.substr(0, host.find('.'));
    if (label.empty() || label.front() == '-' || label.back() == '-') return false;
    if (!std::all_of(label.begin(), label.end(),
                     [](char c) { return IsLetter(c) || IsDigit(c) || c == '-'; })) {
      return false;
    }
    if (label.size() == host.size()) return label.size() > 1;
    host.remove_prefix(label.size() + 1);
  }
}

// Digits of a phone number without what people put between them; empty when it is none.
std::string PhoneDigits(std::string_view text) {
  std::string number;
  for (const char c : text) {
    if (IsDigit(c) || (c == '+' && number.empty())) {
      number += c;
    } else if (std::string_view(" -()/.").find(c) == std::string_view::npos) {
      return {};
    }
  }
  if (number.rfind("00", 0) == 0) number.replace(0, 2, "+");
  const auto digits = static_cast<std::size_t>(std::count_if(number.begin(), number.end(), IsDigit));
  return digits < kMinDigits || digits > kMaxDigits ? std::string() : number;
}

NameVerdict JudgeName(std::string_view name) {
  if (name.empty()) return NameVerdict::Empty;
  if (name.size() > kMaxName) return NameVerdict::TooLong;
  if (!std::all_of(name.begin(), name.end(), [](char c) {
        return IsLetter(c) || IsDigit(c) || std::string_view("._-").find(c) != std::string_view::npos;
      })) {
    return NameVerdict::BadCharacter;
  }
  if (!IsLetter(name.front())) return NameVerdict::BadStart;
  return name.size() < kMinName ? NameVerdict::TooShort : NameVerdict::Good;
}

}  // namespace

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return Lower(c); });
  return lower;
}

PasswordVerdict JudgePassword(std::string_view name, std::string_view password) {
  if (password.size() < kMinPassword) return PasswordVerdict::TooShort;
  if (password.size() > kMaxPassword) return PasswordVerdict::TooLong;
  if (password.find(' ') != std::string_view::npos) return PasswordVerdict::Space;
  if (!std::all_of(password.begin(), password.end(), [](char c) { return c > ' ' && c < '\x7f'; })) {
    return PasswordVerdict::BadCharacter;
  }
  const std::string lower = Lower(password);
  if (lower == Lower(name)) return PasswordVerdict::SameAsName;
  const auto holds = [&](std::string_view word) { return lower.find(word) != std::string::npos; };
  if (std::any_of(std::begin(kBadWords), std::end(kBadWords), holds)) return PasswordVerdict::BadWord;
  if (IsSimple(password)) return PasswordVerdict::TooSimple;
  const bool mixed = std::any_of(password.begin(), password.end(), IsLetter) &&
                     std::any_of(password.begin(), password.end(), IsDigit);
  return mixed ? PasswordVerdict::Good : PasswordVerdict::BadFormat;
}

bool IsEmail(std::string_view text) {
  const auto at = text.find('@');
  if (at == 0 || at == std::string_view::npos || text.size() > kMaxEmail) return false;
  const auto user = text.substr(0, at);
  const auto known = [](char c) {
    return IsLetter(c) || IsDigit(c) ||
           std::string_view(".!#$%&'*+-/=?^_`{|}~").find(c) != std::string_view::npos;
  };
  if (user.front() == '.' || user.back() == '.' || user.find("..") != std::string_view::npos) return false;
  return std::all_of(user.begin(), user.end(), known) && IsHostName(text.substr(at + 1));
}

NormalizedIdentity NormalizeIdentity(std::string_view identity, bool newAccount) {
  const auto trimmed = Trim(identity);
  if (!newAccount) {
    std::string phone = PhoneDigits(trimmed);
    if (!phone.empty()) return {NameVerdict::Good, std::move(phone)};
  }
  std::string name = Lower(trimmed);
  const NameVerdict verdict = JudgeName(name);
  return {verdict, std::move(name)};
}

IdentityType TypeOfIdentity(std::string_view identity) {
  const auto trimmed = Trim(identity);
  if (!PhoneDigits(trimmed).empty()) return IdentityType::Phone;
  return JudgeName(trimmed) == NameVerdict::Good ? IdentityType::Account : IdentityType::Unknown;
}

int CapabilityStatus(std::int64_t expiry, std::int64_t now) {
  constexpr int kPlenty = 2;
  if (expiry == 0) return kPlenty;
  for (const CapabilityRow& row : kCapabilityRows) {
    if (expiry - now <= row.left) return row.status;
  }
  return kPlenty;
}

}  // namespace simulator
