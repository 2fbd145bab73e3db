#pragma once

#include <array>
#include <cstdint>
#include <mutex>
#include <optional>

#include "simulator/common/TestPicture.h"

namespace television {

struct PictureCounts {
  std::uint64_t sent = 0;
  std::uint64_t received = 0;
  std::uint64_t dropped = 0;     // missing between those received, by their counters
  std::uint64_t repeated = 0;    // with a counter that is not above the one before
  std::uint64_t unmarked = 0;    // no test pictures, or old ones
  bool echo = false;             // the last one was one of those sent
  std::int64_t latency = 0;      // microseconds from the burnt-in clock to the arrival: the mean,
  std::int64_t mostLatency = 0;  // and the greatest; through an echo both are round trips
};

// Keeps the books of a call's pictures by what is burnt into them.
// Threads: any.
class PictureLedger {
 public:
  // A call begins: everything is 0.
  void Begin();
  // The camera goes on after a break: what does not arrive until the far end shows its pictures again was not
  // dropped.
  void GoOn();
  void Sent(const simulator::BurntIn& burnt);
  // `arrived`: microseconds of the same clock as the burnt-in one.
  void Received(const std::optional<simulator::BurntIn>& burnt, std::int64_t arrived);
  PictureCounts Counts() const;

 private:
  // More than any picture needs to come back through the echo.
  static constexpr std::size_t kRemembered = 256;

  mutable std::mutex m_mutex;
  PictureCounts m_counts;
  std::array<std::int64_t, kRemembered> m_sentClocks{};  // by counter
  std::optional<std::uint32_t> m_last;                   // counter received
  std::int64_t m_latencies = 0;                          // sum
};

}  // namespace television
