#include "simulator/runtime/service/Pictures.h"

#include <turbojpeg.h>

#include <array>
#include <cstdint>
#include <vector>

namespace simulator {
namespace {

constexpr int kSide = 96;
constexpr int kQuality = 80;

using Colour = std::array<unsigned char, 3>;

bool IsInside(int x, int y, int centreX, int centreY, int radiusX, int radiusY) {
  const int dx = (x - centreX) * radiusY;
  const int dy = (y - centreY) * radiusX;
  return dx * dx + dy * dy < radiusX * radiusX * radiusY * radiusY;
}

std::uint32_t Hash(std::string_view text) {
  std::uint32_t hash = 2166136261u;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
  return hash;
}

std::vector<unsigned char> Draw(const Colour& wall, const Colour& person) {
  std::vector<unsigned char> pixels;
  pixels.reserve(kSide * kSide * wall.size());
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) {
      const bool head = IsInside(x, y, kSide / 2, 36, 17, 20);
      const bool shoulders = IsInside(x, y, kSide / 2, kSide, 36, 36);
      const Colour& colour = head || shoulders ? person : wall;
      pixels.insert(pixels.end(), colour.begin(), colour.end());
    }
  }
  return pixels;
}

}  // namespace

std::string PictureOf(std::string_view name) {
  const std::uint32_t hash = Hash(name);
  const auto shade = [hash](int bits, int base) {
    return static_cast<unsigned char>(base + static_cast<int>(hash >> bits & 0x7f));
  };
  const Colour wall = {shade(0, 16), shade(7, 16), shade(14, 16)};
  const Colour person = {shade(3, 128), shade(10, 128), shade(17, 128)};
  const std::vector<unsigned char> pixels = Draw(wall, person);

  std::string picture;
  tjhandle compressor = tjInitCompress();
  if (compressor == nullptr) return picture;
  unsigned char* jpeg = nullptr;
  unsigned long size = 0;
  if (tjCompress2(compressor, pixels.data(), kSide, 0, kSide, TJPF_RGB, &jpeg, &size, TJSAMP_420, kQuality,
                  0) == 0) {
    picture.assign(reinterpret_cast<const char*>(jpeg), size);
  }
  tjFree(jpeg);
  tjDestroy(compressor);
  return picture;
}

}  // namespace simulator
