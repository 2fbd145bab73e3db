#include "Common/DecimalText.h"

#include <algorithm>
#include <limits>

namespace zelto {
namespace {

constexpr bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

int NearestInt(long long value) {
  constexpr long long kLeast = std::numeric_limits<int>::min();
  constexpr long long kMost = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(value, kLeast, kMost));
}

// By hand, since most parameters of most commands pass through here and few are longer than two digits.
int DecimalValue(const char* text) {
  if (text == nullptr) return 0;
  constexpr long long kEnough = 1LL << 40;  // beyond any int; further digits change nothing
  while (IsBlank(*text)) ++text;
  const bool isNegative = *text == '-';
  if (isNegative || *text == '+') ++text;
  long long value = 0;
  for (; IsDigit(*text); ++text) value = std::min(value * 10 + (*text - '0'), kEnough);
  return NearestInt(isNegative ? -value : value);
}

}  // namespace zelto
