// What microphone and camera of a television give the engine.
#pragma once

#include <vector>

#include "Common/IMoIPEngine.h"

namespace test {

constexpr int kSoundRecord = 0;
constexpr int kPictureRecord = 16;

// Threads: one at a time.
class HostMedia {
 public:
  // A packet of sound and a picture, and waits as long as the sound would take on a clock ten times as fast.
  void SendTo(IMoIPEngine& engine);

 private:
  std::vector<unsigned char> m_sound = std::vector<unsigned char>(960, 0x55);
  std::vector<unsigned char> m_picture = std::vector<unsigned char>(20'000, 0xAA);
};

}  // namespace test
