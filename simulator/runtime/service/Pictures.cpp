#include "simulator/runtime/service/Pictures.h"

#include <iterator>

namespace simulator {

std::string_view PictureOf(std::string_view name) {
  static const std::string_view kPictures[] = {
      {reinterpret_cast<const char*>(kBluePicture), sizeof kBluePicture},
      {reinterpret_cast<const char*>(kGreenPicture), sizeof kGreenPicture},
  };
  unsigned sum = 0;
  for (const char c : name) sum += static_cast<unsigned char>(c);
  return kPictures[sum % std::size(kPictures)];
}

}  // namespace simulator
