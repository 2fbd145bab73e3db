// Numbers as the host and the managers write them.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace zelto {

// The number at the start of a text; 0 for a text without one and for null. Numbers beyond the type's
// range become its nearest.
inline int DecimalValue(const char* text) {
  if (text == nullptr) return 0;
  const long value = std::strtol(text, nullptr, 10);
  return static_cast<int>(
      std::clamp<long>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

}  // namespace zelto
