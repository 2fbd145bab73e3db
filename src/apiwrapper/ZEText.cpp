#include "apiwrapper/ZEText.h"

namespace zetext {
namespace {

#if defined(__SSE2__)
// Bit i is set when byte i of the 16 is special.
unsigned int SpecialMask16(const char* bytes) {
  const __m128i block = Load16(bytes);
  const __m128i commas = _mm_cmpeq_epi8(block, _mm_set1_epi8(','));
  const __m128i quotes = _mm_cmpeq_epi8(block, _mm_set1_epi8('"'));
  const __m128i backslashes = _mm_cmpeq_epi8(block, _mm_set1_epi8('\\'));
  const __m128i nuls = _mm_cmpeq_epi8(block, _mm_setzero_si128());
  const __m128i any = _mm_or_si128(_mm_or_si128(commas, quotes), _mm_or_si128(backslashes, nuls));
  return static_cast<unsigned int>(_mm_movemask_epi8(any));
}
#endif

// Calls visit(index) for every special byte in order, and nothing between them: ordinary bytes pass by
// sixteen at a time.
template <class Visit>
void ForEachSpecial(std::string_view bytes, Visit&& visit) {
  std::size_t i = 0;
#if defined(__SSE2__)
  const auto visitAll = [&](std::size_t start, unsigned int mask) {
    for (; mask != 0; mask &= mask - 1) visit(start + LowestBit(mask));
  };
  for (; i + 16 <= bytes.size(); i += 16) visitAll(i, SpecialMask16(bytes.data() + i));
  if (i != bytes.size() && bytes.size() >= 16) {
    // The rest, as the upper part of the last sixteen.
    const std::size_t start = bytes.size() - 16;
    visitAll(i, SpecialMask16(bytes.data() + start) >> (i - start));
    return;
  }
#endif
  for (; i < bytes.size(); ++i) {
    if (IsSpecial(bytes[i])) visit(i);
  }
}

}  // namespace

std::size_t EscapedSize(std::string_view bytes) {
  std::size_t size = bytes.size();
  ForEachSpecial(bytes, [&](std::size_t) { ++size; });
  return size;
}

char* Escape(char* out, std::string_view bytes) {
  std::size_t copied = 0;
  ForEachSpecial(bytes, [&](std::size_t i) {
    out = Copy(out, bytes.substr(copied, i - copied));
    *out++ = '\\';
    *out++ = bytes[i] == '\0' ? '0' : bytes[i];
    copied = i + 1;
  });
  return Copy(out, bytes.substr(copied));
}

char* Unescape(char* out, std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\' && ++i == text.size()) break;
    *out++ = text[i];
  }
  return out;
}

}  // namespace zetext
