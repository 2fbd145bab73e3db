// Does something at an even pace.
#pragma once

#include <cstdint>
#include <functional>

#include "Common/Locks.h"
#include "simulator/runtime/media/MediaThread.h"

namespace simulator {

// Threads: one of its own, between Start and Stop, on which the step runs.
class Pacer {
 public:
  // A step every `period` nanoseconds.
  Pacer(const char* name, std::int64_t period, std::function<void()> step);
  Pacer(const Pacer&) = delete;
  Pacer& operator=(const Pacer&) = delete;
  ~Pacer();

  // The first step comes at once. Does nothing while it runs.
  void Start();
  // No step runs any more.
  void Stop();

 private:
  void Run();
  // False when it is to end.
  bool WaitUntil(std::int64_t due);

  const char* const m_name;
  const std::int64_t m_period;
  const std::function<void()> m_step;
  MediaThread m_thread;
  zelto::Mutex m_lock{zelto::LockRank::Leaf, "pacer"};
  zelto::Condition m_changed;
  bool m_running ZELTO_GUARDED_BY(m_lock) = false;
};

}  // namespace simulator
