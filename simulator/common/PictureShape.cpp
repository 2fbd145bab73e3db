#include "simulator/common/PictureShape.h"

#include <turbojpeg.h>

#include <memory>

namespace simulator {
namespace {

struct Destroy {
  void operator()(void* handle) const { tjDestroy(handle); }
};

}  // namespace

std::optional<PictureShape> ReadPictureShape(const unsigned char* jpeg, std::size_t size) {
  // A new one for every picture: one that met a damaged picture may refuse sound ones from then on.
  const std::unique_ptr<void, Destroy> decompressor(tjInitDecompress());
  int width = 0, height = 0, sampling = 0, colours = 0;
  if (decompressor == nullptr ||
      tjDecompressHeader3(decompressor.get(), jpeg, size, &width, &height, &sampling, &colours) != 0) {
    return std::nullopt;
  }
  return PictureShape{static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)};
}

}  // namespace simulator
