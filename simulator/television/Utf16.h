#pragma once

#include <string>

namespace television {

// A text of the engine's notices, units that end with 0, as UTF-8; empty for null. Half a surrogate pair
// becomes U+FFFD.
std::string ToUtf8(const unsigned short* text);

}  // namespace television
