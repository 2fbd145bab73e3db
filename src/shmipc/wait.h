// Waiting for the other process: in growing steps.
#pragma once

#include <cstdint>

namespace shmipc {

// Timeouts in milliseconds.
constexpr int kForever = -1;
constexpr int kLongestTimeout = 2000;

constexpr int kTimedOut = -4;

// Steps double from 65 microseconds, which a fast partner needs, to 4 milliseconds, which an idle
// processor can bear.
constexpr int kFirstExponent = 16;
constexpr int kLastExponent = 22;

// The patience of one operation, which looks after every step whether what it waits for has come about. It
// looks at that itself, not for a change of a word: other threads of this process can bring a word all the
// way round to where it was.
class Wait {
 public:
  // `floor`: the shortest step in nanoseconds, 0 for none.
  explicit Wait(int timeout, std::int64_t floor = 0) : m_timeout(timeout), m_floor(floor) {}

  // Sleeps one step: 0, or kTimedOut, without sleeping, when all steps together have made the timeout.
  int Step();

 private:
  std::int64_t Length(std::int64_t cap) const;

  const int m_timeout;
  const std::int64_t m_floor;
  int m_exponent = kFirstExponent;
  std::int64_t m_slept = 0;
};

}  // namespace shmipc
