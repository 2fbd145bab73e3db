#include "simulator/common/YuvImage.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstring>

#include "simulator/common/PixelFont.h"

namespace simulator {
namespace {

constexpr unsigned char kBlack = 0;
constexpr unsigned char kWhite = 255;
constexpr unsigned char kNoColour = 128;

// The part of an area that a plane sees, at its own resolution.
Area InPlane(const Area& area, int plane) {
  if (plane == 0) return area;
  return {area.x / 2, area.y / 2, area.width / 2, area.height / 2};
}

std::size_t Offset(const Area& area, int row, int stride) {
  return static_cast<std::size_t>(area.y + row) * static_cast<std::size_t>(stride) +
         static_cast<std::size_t>(area.x);
}

const Glyph& GlyphOf(char c) {
  const char capital = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  const auto* found = std::find_if(std::begin(kGlyphs), std::end(kGlyphs),
                                   [capital](const Glyph& glyph) { return glyph.character == capital; });
  return found == std::end(kGlyphs) ? kGlyphs[0] : *found;
}

void FillPlane(std::vector<unsigned char>& plane, const Area& area, int stride, unsigned char value) {
  for (int row = 0; row < area.height; ++row) {
    std::memset(plane.data() + Offset(area, row, stride), value, static_cast<std::size_t>(area.width));
  }
}

}  // namespace

YuvImage::YuvImage(int width, int height) : m_width(width), m_height(height) {
  const auto pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  m_planes[0].assign(pixels, kBlack);
  m_planes[1].assign(pixels / 4, kNoColour);
  m_planes[2].assign(pixels / 4, kNoColour);
}

void YuvImage::Fill(const Area& area, const Colour& colour) {
  const unsigned char values[kPlanes] = {colour.y, colour.u, colour.v};
  for (int plane = 0; plane < kPlanes; ++plane) {
    FillPlane(m_planes[plane], InPlane(area, plane), Stride(plane), values[plane]);
  }
}

void YuvImage::FillBrightness(const Area& area, unsigned char value) {
  FillPlane(m_planes[0], area, m_width, value);
}

void YuvImage::Restore(const YuvImage& from, const Area& area) {
  for (int plane = 0; plane < kPlanes; ++plane) {
    const Area part = InPlane(area, plane);
    for (int row = 0; row < part.height; ++row) {
      const std::size_t offset = Offset(part, row, Stride(plane));
      std::memcpy(m_planes[plane].data() + offset, from.m_planes[plane].data() + offset,
                  static_cast<std::size_t>(part.width));
    }
  }
}

void YuvImage::Write(const std::string& text, int x, int y, int scale) {
  const int advance = (kGlyphWidth + 1) * scale;
  if (y < 0 || y + kGlyphHeight * scale > m_height) return;
  for (const char c : text) {
    if (x < 0 || x + advance > m_width) return;
    const Glyph& glyph = GlyphOf(c);
    for (int row = 0; row < kGlyphHeight; ++row) {
      for (int column = 0; column < kGlyphWidth; ++column) {
        const bool set = ((glyph.rows[row] >> (kGlyphWidth - 1 - column)) & 1) != 0;
        FillBrightness({x + column * scale, y + row * scale, scale, scale}, set ? kWhite : kBlack);
      }
    }
    x += advance;
  }
}

}  // namespace simulator
