#include "Common/DevicePath.h"

#include <cstdlib>

namespace zelto {

std::string DevicePath(const std::string& path) {
  const char* root = std::getenv("ZELTO_DEVICE_ROOT");
  return root == nullptr ? path : root + path;
}

std::string ShellPath(const std::string& path) {
  static constexpr char kPlain[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789/._-+,:@";
  const std::string word = DevicePath(path);
  if (!word.empty() && word.find_first_not_of(kPlain) == std::string::npos) return word;
  std::string quoted = "'";
  for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

}  // namespace zelto
