#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include "simulator/television/media/Pace.h"

namespace television {

// Does something at a steady rate, on a thread of its own, while it is switched on.
// Threads: any, except that the destructor must not run on the metronome's own.
class Metronome {
 public:
  // Off at first. `begin` runs on the own thread before the first beat after each switching on.
  Metronome(Pace::Clock::duration period, std::function<void()> begin, std::function<void()> beat);
  // Waits for a beat that is under way.
  ~Metronome();
  Metronome(const Metronome&) = delete;
  Metronome& operator=(const Metronome&) = delete;

  // Returns at once: a beat that is under way ends after it.
  void Switch(bool on);

 private:
  void Run();

  const Pace::Clock::duration m_period;
  const std::function<void()> m_begin;
  const std::function<void()> m_beat;
  std::mutex m_mutex;
  std::condition_variable m_changed;
  bool m_on = false;
  unsigned m_round = 0;  // counts the switchings on
  bool m_ending = false;
  std::thread m_thread;
};

}  // namespace television
