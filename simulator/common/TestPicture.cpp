#include "simulator/common/TestPicture.h"

#include <turbojpeg.h>

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdio>
#include <stdexcept>

#include "simulator/common/YuvImage.h"

namespace simulator {
namespace {

// A cell is one block of the JPEG picture: its mean survives any quality, and a reader that decodes an
// eighth of the size gets exactly one pixel of each.
constexpr int kCell = 8;
constexpr int kCounterBits = 32;
constexpr int kClockBits = 64;
constexpr int kCheckBits = 32;
constexpr int kCells = kCounterBits + kClockBits + kCheckBits;
constexpr unsigned char kZero = 0;
constexpr unsigned char kOne = 255;
// What lies between was never drawn as a cell.
constexpr unsigned char kHighestZero = 64;
constexpr unsigned char kLowestOne = 192;

// Room for the cells, the lines of text and something to see.
constexpr int kLeastWidth = 160;
constexpr int kLeastHeight = 120;
constexpr int kMost = 4096;

constexpr int kQuality = 80;

using Code = std::array<bool, kCells>;

struct Destroy {
  void operator()(void* handle) const { tjDestroy(handle); }
};
using Handle = std::unique_ptr<void, Destroy>;

// Tells a code from anything else that happens to be black and white.
std::uint32_t CheckOf(const BurntIn& burnt) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
  std::uint64_t mixed = (burnt.counter + 1) * kFactor;
  mixed = (mixed ^ (mixed >> 29) ^ static_cast<std::uint64_t>(burnt.clock)) * kFactor;
  return static_cast<std::uint32_t>((mixed ^ (mixed >> 31)) >> 16);
}

void PutBits(Code& code, int at, int count, std::uint64_t value) {
  for (int i = 0; i < count; ++i) {
    code[static_cast<std::size_t>(at + i)] = ((value >> (count - 1 - i)) & 1) != 0;
  }
}

std::uint64_t TakeBits(const Code& code, int at, int count) {
  std::uint64_t value = 0;
  for (int i = 0; i < count; ++i) value = value << 1 | (code[static_cast<std::size_t>(at + i)] ? 1u : 0u);
  return value;
}

Code CodeOf(const BurntIn& burnt) {
  Code code;
  PutBits(code, 0, kCounterBits, burnt.counter);
  PutBits(code, kCounterBits, kClockBits, static_cast<std::uint64_t>(burnt.clock));
  PutBits(code, kCounterBits + kClockBits, kCheckBits, CheckOf(burnt));
  return code;
}

std::optional<BurntIn> FromCode(const Code& code) {
  BurntIn burnt;
  burnt.counter = static_cast<std::uint32_t>(TakeBits(code, 0, kCounterBits));
  burnt.clock = static_cast<std::int64_t>(TakeBits(code, kCounterBits, kClockBits));
  if (TakeBits(code, kCounterBits + kClockBits, kCheckBits) != CheckOf(burnt)) return std::nullopt;
  return burnt;
}

// The code fills rows of cells from the top.
Area CellArea(int cell, int width) {
  const int inRow = width / kCell;
  return {cell % inRow * kCell, cell / inRow * kCell, kCell, kCell};
}

bool IsPossible(int width, int height) {
  return width >= kLeastWidth && height >= kLeastHeight && width <= kMost && height <= kMost;
}

int EvenAtMost(int value) { return value / 2 * 2; }

// clang-format off
constexpr Colour kBars[] = {
    {235, 128, 128},  // white
    {210,  16, 146},  // yellow
    {170, 166,  16},  // cyan
    {145,  54,  34},  // green
    {106, 202, 222},  // magenta
    { 81,  90, 240},  // red
    { 41, 240, 110},  // blue
    { 16, 128, 128},  // black
};
// clang-format on
constexpr int kBarCount = sizeof kBars / sizeof *kBars;
constexpr Colour kMoverColour = {128, 128, 128};

}  // namespace

// From the top: the code, colour bars with something that moves across them, the name, counter and clock.
struct TestPicture::Canvas {
  Canvas(const std::string& name, int width, int height)
      : image(width, height), background(width, height), compressor(tjInitCompress()) {
    const int codeRows = (kCells + width / kCell - 1) / (width / kCell);
    scale = std::min(width / kLeastWidth, height / kLeastHeight);
    textTop = height - 20 * scale;
    bars = {0, codeRows * kCell, width, EvenAtMost(textTop - scale) - codeRows * kCell};
    for (int i = 0; i < kBarCount; ++i) {
      const int left = EvenAtMost(width * i / kBarCount);
      const int right = EvenAtMost(width * (i + 1) / kBarCount);
      background.Fill({left, bars.y, right - left, bars.height}, kBars[i]);
    }
    background.Write(name, 2 * scale, textTop, scale);
    image = background;
    packed.resize(tjBufSize(width, height, TJSAMP_420));
    if (compressor == nullptr) throw std::runtime_error("no JPEG compressor");
  }

  void Draw(const BurntIn& burnt) {
    const Code code = CodeOf(burnt);
    for (int i = 0; i < kCells; ++i) {
      image.FillBrightness(CellArea(i, image.Width()), code[static_cast<std::size_t>(i)] ? kOne : kZero);
    }
    image.Restore(background, mover);
    mover = MoverAt(burnt.counter);
    image.Fill(mover, kMoverColour);
    WriteNumbers(burnt);
  }

  // To and fro over the bars, at a speed that the eye follows.
  Area MoverAt(std::uint32_t counter) const {
    const int size = EvenAtMost(12 * scale);
    const auto range = static_cast<std::uint32_t>(bars.width - size);
    const std::uint32_t way = static_cast<std::uint32_t>(
        std::uint64_t{counter} * 2 * static_cast<unsigned>(scale) % (2 * std::uint64_t{range}));
    const int x = static_cast<int>(way < range ? way : 2 * range - way);
    return {EvenAtMost(x), EvenAtMost(bars.y + (bars.height - size) / 2), size, size};
  }

  void WriteNumbers(const BurntIn& burnt) {
    const std::uint64_t milliseconds = static_cast<std::uint64_t>(burnt.clock) / 1000;
    const std::uint64_t seconds = milliseconds / 1000;
    char text[64];
    std::snprintf(text, sizeof text, "#%010" PRIu32 " %03u:%02u:%02u.%03u", burnt.counter,
                  static_cast<unsigned>(seconds / 3600 % 1000), static_cast<unsigned>(seconds / 60 % 60),
                  static_cast<unsigned>(seconds % 60), static_cast<unsigned>(milliseconds % 1000));
    image.Write(text, 2 * scale, textTop + 10 * scale, scale);
  }

  // The size of what now stands in `packed`; 0 when it could not be packed.
  std::size_t Pack() {
    const unsigned char* planes[YuvImage::kPlanes];
    int strides[YuvImage::kPlanes];
    for (int i = 0; i < YuvImage::kPlanes; ++i) {
      planes[i] = image.Plane(i);
      strides[i] = image.Stride(i);
    }
    unsigned char* to = packed.data();
    unsigned long size = packed.size();
    const int result =
        tjCompressFromYUVPlanes(compressor.get(), planes, image.Width(), strides, image.Height(), TJSAMP_420,
                                &to, &size, kQuality, TJFLAG_NOREALLOC | TJFLAG_FASTDCT);
    return result == 0 ? size : 0;
  }

  YuvImage image;
  YuvImage background;  // without what changes
  Handle compressor;
  std::vector<unsigned char> packed;
  int scale = 1;  // pixels per pixel of the font
  int textTop = 0;
  Area bars{};
  Area mover{};
};

TestPicture::TestPicture(const std::string& name, int width, int height) {
  if (!IsPossible(width, height) || width % kCell != 0 || height % kCell != 0) {
    throw std::invalid_argument("no test picture of " + std::to_string(width) + "x" + std::to_string(height));
  }
  m_canvas = std::make_unique<Canvas>(name, width, height);
}

TestPicture::~TestPicture() = default;

std::vector<unsigned char>& TestPicture::Draw(const BurntIn& burnt) {
  m_canvas->Draw(burnt);
  const std::size_t size = m_canvas->Pack();
  m_frame.resize(kTimeStampSize + size);
  std::copy_n(m_canvas->packed.begin(), size, m_frame.begin() + kTimeStampSize);
  return m_frame;
}

std::optional<BurntIn> ReadTestPicture(const unsigned char* jpeg, std::size_t size) {
  // A new one for every picture: one that met a damaged picture may refuse sound ones from then on.
  const Handle decompressor(tjInitDecompress());
  int width = 0, height = 0, sampling = 0, colours = 0;
  if (jpeg == nullptr || decompressor == nullptr ||
      tjDecompressHeader3(decompressor.get(), jpeg, size, &width, &height, &sampling, &colours) != 0 ||
      !IsPossible(width, height)) {
    return std::nullopt;
  }
  // At an eighth of the size only each block's mean is worked out, and grey needs no colour.
  const int columns = (width + kCell - 1) / kCell;
  const int rows = (height + kCell - 1) / kCell;
  std::vector<unsigned char> means(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
  if (tjDecompress2(decompressor.get(), jpeg, size, means.data(), columns, 0, rows, TJPF_GRAY,
                    TJFLAG_STOPONWARNING | TJFLAG_LIMITSCANS) != 0) {
    return std::nullopt;
  }
  Code code;
  for (int i = 0; i < kCells; ++i) {
    const Area area = CellArea(i, width);
    const unsigned char mean = means[static_cast<std::size_t>(area.y / kCell * columns + area.x / kCell)];
    if (mean > kHighestZero && mean < kLowestOne) return std::nullopt;
    code[static_cast<std::size_t>(i)] = mean >= kLowestOne;
  }
  return FromCode(code);
}

}  // namespace simulator
