#include "simulator/television/Utf16.h"

#include <cstdint>

namespace television {

namespace {

constexpr std::uint32_t kHighSurrogates = 0xd800;
constexpr std::uint32_t kLowSurrogates = 0xdc00;
constexpr std::uint32_t kSurrogateMask = 0xfc00;
constexpr std::uint32_t kReplacement = 0xfffd;
constexpr unsigned kBitsPerByte = 6;  // of a character, in each byte after the first

// The character at the text, which is moved behind it.
std::uint32_t Next(const unsigned short*& text) {
  const std::uint32_t unit = *text++;
  if ((unit & kSurrogateMask) == kLowSurrogates) return kReplacement;
  if ((unit & kSurrogateMask) != kHighSurrogates) return unit;
  if ((*text & kSurrogateMask) != kLowSurrogates) return kReplacement;
  return 0x10000 + ((unit - kHighSurrogates) << 10) + (*text++ - kLowSurrogates);
}

void Append(std::string& utf8, std::uint32_t character) {
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
    return;
  }
  const unsigned following = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
  const std::uint32_t lead = 0xff00u >> (following + 1) & 0xff;
  utf8 += static_cast<char>(lead | character >> (following * kBitsPerByte));
  for (unsigned left = following; left-- > 0;)
    utf8 += static_cast<char>(0x80 | (character >> (left * kBitsPerByte) & 0x3f));
}

}  // namespace

std::string ToUtf8(const unsigned short* text) {
  std::string utf8;
  while (text != nullptr && *text != 0) Append(utf8, Next(text));
  return utf8;
}

}  // namespace television
