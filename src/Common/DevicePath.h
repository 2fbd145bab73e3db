// Where the television's absolute paths lie on this machine.
#pragma once

#include <string>

namespace zelto {

// Puts the value of the environment variable ZELTO_DEVICE_ROOT before an absolute path of the
// television; unset or empty leaves the path as it is. Called right where a path goes to the operating
// system, nowhere else: texts that the engine answers or stores keep the television's own paths.
// The variable is read at every call, so that engines in one process can be given roots in turn.
std::string DevicePath(const std::string& path);

// The same path as a word of a shell command; quoted only where it holds more than plain characters.
std::string ShellPath(const std::string& path);

}  // namespace zelto
