// The simulated cameras' picture: moving, with a counter, a clock and a name burnt in, so that loss and delay
// can be read from the picture itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace simulator {

// What a test picture tells.
struct BurntIn {
  std::uint32_t counter = 0;
  std::int64_t clock = 0;  // microseconds of CLOCK_MONOTONIC, as all processes of the machine see it
};

// Draws and packs pictures, one after the other.
// Threads: one at a time.
class TestPicture {
 public:
  // Sizes are multiples of 8 from 160 x 120 to 4096 x 4096; throws std::invalid_argument for others. The name
  // is readable as far as it is letters, digits and ".:-_@#".
  explicit TestPicture(const std::string& name, int width = 640, int height = 480);
  ~TestPicture();
  TestPicture(const TestPicture&) = delete;
  TestPicture& operator=(const TestPicture&) = delete;

  // A frame as it travels: four bytes for the engine's time stamp, then the JPEG picture. Valid until the
  // next call.
  std::vector<unsigned char>& Draw(const BurntIn& burnt);

  static constexpr std::size_t kTimeStampSize = 4;

 private:
  struct Canvas;
  std::unique_ptr<Canvas> m_canvas;
  std::vector<unsigned char> m_frame;
};

// Reads counter and clock of a JPEG picture (without the time stamp); nothing when it is no test picture.
std::optional<BurntIn> ReadTestPicture(const unsigned char* jpeg, std::size_t size);

}  // namespace simulator
