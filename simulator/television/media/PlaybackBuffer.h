#pragma once

#include <chrono>
#include <cstddef>

namespace television {

// The buffer of a sound device, which plays what it was given in real time.
// Threads: one at a time.
class PlaybackBuffer {
 public:
  using Clock = std::chrono::steady_clock;

  // Takes bytes and answers how many wait to be played then.
  std::size_t Add(std::size_t bytes, Clock::time_point now);
  // How many wait to be played.
  std::size_t Waiting(Clock::time_point now) const;

 private:
  Clock::time_point m_empty{};  // when all will have been played
};

}  // namespace television
