// The pictures that accounts have until they are given another one.
#pragma once

#include <string>
#include <string_view>

namespace simulator {

// A small JPEG picture, head and shoulders in colours that come from the name: always the same for the same
// name. Empty when there is not enough memory.
std::string PictureOf(std::string_view name);

}  // namespace simulator
