#include "Common/DevicePath.h"

#include <cstdlib>

namespace zelto {

std::string DevicePath(const std::string& path) {
  const char* root = std::getenv("ZELTO_DEVICE_ROOT");
  return root == nullptr ? path : root + path;
}

}  // namespace zelto
