#pragma once

#include <sndfile.h>

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "simulator/television/media/PlaybackBuffer.h"
#include "simulator/television/media/SoundFormat.h"
#include "simulator/television/media/Worker.h"

namespace television {

// What the television's speaker plays, kept in a WAV file when one is named.
// Threads: any; samples come from one thread at a time.
class Speaker {
 public:
  // Throws std::runtime_error when the file can't be written. An empty name keeps nothing.
  explicit Speaker(const std::string& file);

  // Takes samples (whole ones; a half one at the end is left out) and answers how many bytes the sound device
  // still has to play. Copies and returns; the file is written by a thread of its own.
  std::size_t Play(const unsigned char* data, std::size_t size);
  // Samples that the file's thread could not take because it was too far behind.
  std::uint64_t Lost() const;

 private:
  using Sound = std::vector<Sample>;

  void Write(const Sound& sound);

  std::unique_ptr<SNDFILE, int (*)(SNDFILE*)> m_file;
  mutable std::mutex m_mutex;
  PlaybackBuffer m_buffer;
  std::uint64_t m_lost = 0;
  std::unique_ptr<Worker<Sound>> m_writer;  // none without a file
};

}  // namespace television
