// Work on raw bytes that the value types share: looking for characters in blocks, escaping, ranges.
// Threads: any.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zetext {

constexpr std::size_t kBlock = 64;

inline unsigned int LowestBit(std::uint64_t mask) { return static_cast<unsigned int>(__builtin_ctzll(mask)); }

// Bit i is set when byte i of the 64 equals the wanted character; for machines without vector registers.
inline std::uint64_t EqualMaskPortable(const char* block, char wanted) {
  constexpr std::uint64_t kLow7 = 0x7F7F7F7F7F7F7F7FU;
  const std::uint64_t pattern = 0x0101010101010101U * static_cast<unsigned char>(wanted);
  std::uint64_t mask = 0;
  for (unsigned int i = 0; i < kBlock; i += 8) {
    std::uint64_t word;
    std::memcpy(&word, block + i, sizeof word);
#if __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
    word = __builtin_bswap64(word);
#endif
    word ^= pattern;
    // The top bit of every byte that is zero, then the eight of them side by side.
    const std::uint64_t zeros = ~(((word & kLow7) + kLow7) | word | kLow7);
    mask |= ((zeros >> 7) * 0x0102040810204080U >> 56) << i;
  }
  return mask;
}

#if defined(__SSE2__)
inline __m128i Load16(const char* bytes) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)); }

inline std::uint64_t EqualMask(const char* block, char wanted) {
  const __m128i pattern = _mm_set1_epi8(wanted);
  const auto part = [&](unsigned int at) {
    const int mask = _mm_movemask_epi8(_mm_cmpeq_epi8(Load16(block + at), pattern));
    return static_cast<std::uint64_t>(static_cast<unsigned int>(mask)) << at;
  };
  return part(0) | part(16) | part(32) | part(48);
}
#else
inline std::uint64_t EqualMask(const char* block, char wanted) { return EqualMaskPortable(block, wanted); }
#endif

// What the escaped form of bytes puts a backslash before. Text holds no NUL, so one rule serves text and
// binary data alike.
inline bool IsSpecial(char c) { return c == ',' || c == '"' || c == '\\' || c == '\0'; }

// Length of the escaped form.
std::size_t EscapedSize(std::string_view bytes);
// Writes the escaped form and answers the place behind it.
char* Escape(char* out, std::string_view bytes);

// Drops every backslash and keeps the character after it; one at the very end is dropped too. Answers the
// place behind what was written. `out` may be where the text stands.
char* Unescape(char* out, std::string_view text);

// Foreign bytes as a text: it ends before the first NUL.
inline std::string_view BeforeNul(std::string_view bytes) { return bytes.substr(0, bytes.find('\0')); }

inline char* Copy(char* out, std::string_view bytes) {
  if (!bytes.empty()) std::memcpy(out, bytes.data(), bytes.size());
  return out + bytes.size();
}

// key="value" and one blank, the value written by write(char*), which answers the place behind it.
template <class Write>
char* WritePair(char* out, std::string_view key, Write&& write) {
  out = Copy(out, key);
  *out++ = '=';
  *out++ = '"';
  out = write(out);
  *out++ = '"';
  *out++ = ' ';
  return out;
}
// What WritePair adds to key and value.
constexpr std::size_t kPairFrame = 4;

// The rule of ZEString::substr.
inline std::string_view Range(std::string_view text, std::int64_t from, std::int64_t to) {
  const auto length = static_cast<std::int64_t>(text.size());
  if (length == 0) return text;
  if (from < 0) from = 0;
  if (to >= length) to = length - 1;
  if (to < 0) to += length - 1;
  if (to < from) std::swap(from, to);
  // Swapped bounds can lie outside of the text on either side.
  if (from < 0) from = 0;
  if (to >= length) to = length - 1;
  return {text.data() + from, static_cast<std::size_t>(to - from + 1)};
}

}  // namespace zetext
