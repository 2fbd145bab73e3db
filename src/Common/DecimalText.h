// Numbers as the host and the managers write them.
#pragma once

namespace zelto {

// The number at the start of a text, by the rules of strtol: 0 for a text without one and for null; a number
// beyond the type's range becomes its nearest.
int DecimalValue(const char* text);
// The nearest int.
int NearestInt(long long value);

}  // namespace zelto
