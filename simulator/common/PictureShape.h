// How large a picture is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace simulator {

struct PictureShape {
  std::uint32_t width = 0;
  std::uint32_t height = 0;

  bool operator==(const PictureShape& other) const { return width == other.width && height == other.height; }
};

// Reads a JPEG picture's header only; nothing when it is none. Threads: any.
std::optional<PictureShape> ReadPictureShape(const unsigned char* jpeg, std::size_t size);

}  // namespace simulator
