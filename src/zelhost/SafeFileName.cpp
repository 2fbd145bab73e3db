#include "zelhost/SafeFileName.h"

#include <cstdint>
#include <cstdio>

#include "zelhost/EnginePaths.h"

namespace zelhost {

namespace {

constexpr std::size_t kLongestName = 200;  // leaves room for an extension below the usual 255
constexpr std::size_t kHashDigits = 16;
constexpr unsigned char kLastControl = 0x1F;
constexpr unsigned char kDelete = 0x7F;

bool NeedsCode(std::string_view name, std::size_t at) {
  const auto c = static_cast<unsigned char>(name[at]);
  return c <= kLastControl || c == kDelete || c == '/' || c == '%' || (c == '.' && at == 0);
}

// FNV-1a: the same name gets the same file in every run.
std::string HashOf(std::string_view name) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  char digits[kHashDigits + 1];
  std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hash));
  return digits;
}

}  // namespace

std::string SafeFileName(std::string_view name) {
  std::string safe;
  safe.reserve(name.size());
  for (std::size_t at = 0; at < name.size(); ++at) {
    if (NeedsCode(name, at)) {
      char code[4];
      std::snprintf(code, sizeof code, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(name[at])));
      safe += code;
    } else {
      safe += name[at];
    }
  }
  if (safe.size() <= kLongestName) return safe;
  return safe.substr(0, kLongestName - kHashDigits - 1) + "-" + HashOf(name);
}

std::string AvatarPath(std::string_view name) {
  return std::string(kAvatarFolder) + "/" + SafeFileName(name) + ".jpg";
}

}  // namespace zelhost
