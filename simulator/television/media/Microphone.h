#pragma once

#include <sndfile.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "simulator/television/media/SoundFormat.h"

namespace television {

// What the television's microphone hears: a WAV file, over and over, or a tone.
// Threads: one at a time.
class Microphone {
 public:
  using Packet = std::array<Sample, kPacketSamples>;

  // An empty name is the tone. Throws std::runtime_error when the file can't be read, is empty or has another
  // rate than 48,000 samples a second. Several channels become one, their mean.
  explicit Microphone(const std::string& file);

  // Back to the beginning.
  void Rewind();
  // The next 10 ms; valid until the next call.
  Packet& Next();

 private:
  void ReadFile();
  void MakeTone();

  std::unique_ptr<SNDFILE, int (*)(SNDFILE*)> m_file;
  std::size_t m_channels = 1;
  std::vector<Sample> m_interleaved;
  std::size_t m_position = 0;  // samples since the beginning
  Packet m_packet{};
};

}  // namespace television
