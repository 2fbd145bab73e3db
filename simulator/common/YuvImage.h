// A picture as JPEG holds it: brightness for every pixel, colour for every square of four.
#pragma once

#include <string>
#include <vector>

namespace simulator {

struct Colour {
  unsigned char y, u, v;
};

// In pixels; all four even, and inside the image.
struct Area {
  int x, y, width, height;
};

// Threads: none of its own.
class YuvImage {
 public:
  static constexpr int kPlanes = 3;

  // Both even. The image is black.
  YuvImage(int width, int height);

  int Width() const { return m_width; }
  int Height() const { return m_height; }
  const unsigned char* Plane(int plane) const { return m_planes[plane].data(); }
  int Stride(int plane) const { return plane == 0 ? m_width : m_width / 2; }

  void Fill(const Area& area, const Colour& colour);
  // Brightness alone, for what is black and white on grey.
  void FillBrightness(const Area& area, unsigned char value);
  // Copies the same area of an image of the same size.
  void Restore(const YuvImage& from, const Area& area);
  // White on black, every pixel of the font `scale` pixels wide, small letters as capitals; what passes the
  // image's edge is left out. Touches the brightness only.
  void Write(const std::string& text, int x, int y, int scale);

 private:
  int m_width;
  int m_height;
  std::vector<unsigned char> m_planes[kPlanes];
};

}  // namespace simulator
