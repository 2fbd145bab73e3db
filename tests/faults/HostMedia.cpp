#include "tests/faults/HostMedia.h"

#include <chrono>
#include <thread>

namespace test {

void HostMedia::SendTo(IMoIPEngine& engine) {
  const CAVData sound{kSoundRecord, 0, static_cast<unsigned>(m_sound.size()), m_sound.data()};
  const CAVData picture{kPictureRecord, 0, static_cast<unsigned>(m_picture.size()), m_picture.data()};
  engine.OnData(&sound);
  engine.OnData(&picture);
  std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

}  // namespace test
