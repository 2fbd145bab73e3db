// Waiting for the other process: by looking at a word in growing steps.
#pragma once

#include <cstdint>

namespace shmipc {

// Timeouts in milliseconds.
constexpr int kForever = -1;
constexpr int kLongestTimeout = 2000;

constexpr int kTimedOut = -4;

// The patience of one operation. It may have to wait for several changes of a word before it finds what it
// needs; whatever the other side makes of the word, the waits together end soon after the timeout.
class Wait {
 public:
  // `floor`: the shortest step in nanoseconds, 0 for none.
  explicit Wait(int timeout, std::int64_t floor = 0) : m_timeout(timeout), m_floor(floor) {}

  // Returns when the word differs from `seen`: 0, or kTimedOut.
  int ForChange(const std::uint32_t& word, std::uint32_t seen);

 private:
  bool IsOver();
  int InSteps(const std::uint32_t& word, std::uint32_t seen, std::int64_t total) const;
  std::int64_t Step(int exponent, std::int64_t cap) const;

  const int m_timeout;
  const std::int64_t m_floor;
  std::int64_t m_start = -1;  // on the platform's clock, once the first wait has begun
};

}  // namespace shmipc
