#pragma once

#include <chrono>

namespace television {

// When things are due that happen at a steady rate: at absolute times, so that a late one does not shift
// those after it. Who is late catches up at twice the pace at most, and gives up what is further behind.
// Threads: one.
class Pace {
 public:
  using Clock = std::chrono::steady_clock;

  explicit Pace(Clock::duration period) : m_period(period) {}

  // The first one is due now.
  void Begin(Clock::time_point now) { m_due = now; }
  // Called when one has happened: when the next one shall.
  Clock::time_point Next(Clock::time_point now);

 private:
  // A device's own buffer bridges about that much; more at once would only overrun the engine's.
  static constexpr int kMostBehind = 20;

  const Clock::duration m_period;
  Clock::time_point m_due{};
};

}  // namespace television
