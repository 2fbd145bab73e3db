#pragma once

#include <string>
#include <vector>

#include "simulator/common/TestPicture.h"

namespace television {

// What the television's camera sees: a moving test picture, or the JPEG pictures of a folder in turn.
// Threads: one at a time.
class Camera {
 public:
  // An empty name is the test picture. Throws std::runtime_error when the folder can't be read, holds no JPEG
  // picture (.jpg, .jpeg) or one that is too large for the engine. Of a large folder the first pictures by
  // name are taken.
  explicit Camera(const std::string& folder);

  // The next frame: four bytes for the engine's time stamp, then the JPEG picture. `burnt` goes into the test
  // picture only. Valid until the next call.
  std::vector<unsigned char>& Next(const simulator::BurntIn& burnt);

 private:
  simulator::TestPicture m_testPicture;
  std::vector<std::vector<unsigned char>> m_frames;  // of the folder
  std::size_t m_next = 0;
};

}  // namespace television
