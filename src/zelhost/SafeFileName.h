// Names from outside that become file names.
#pragma once

#include <string>
#include <string_view>

namespace zelhost {

// The name as one harmless path component: a slash, a control character, a leading dot and the percent
// sign itself become percent codes ("%2F"), and what would be longer than 200 bytes is cut and ends in
// "-" and a hash of the whole name instead. Ordinary names stay as they are; an empty one stays empty.
std::string SafeFileName(std::string_view name);

// Where the picture of that person lies: a path of the television.
std::string AvatarPath(std::string_view name);

}  // namespace zelhost
