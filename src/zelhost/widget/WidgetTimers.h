// The timers of the widget's on-screen display.
#pragma once

#include <array>

#include "Common/Locks.h"
#include "Common/ZeltoAlarm.h"

// Ten one-shot timers, ids 0 to 9. One that runs out queues the engine event WIDGET_OSD_TIMER_EXPIRED + id,
// whoever is still there to hear it. A timer counts as running from its start until it is stopped, also
// after it has run out.
// Every operation answers false for another id, and then does nothing.
// Threads: any.
class WidgetTimers {
 public:
  static constexpr int kTimers = 10;

  WidgetTimers() = default;
  WidgetTimers(const WidgetTimers&) = delete;
  WidgetTimers& operator=(const WidgetTimers&) = delete;
  // Stops them all.
  ~WidgetTimers();

  // Starts a timer, or starts a running one over; false for a running one. A delay beyond the alarm's
  // reach (35 minutes) is shortened to it.
  bool Start(int milliseconds, int id);
  // The same; true in either case.
  bool Restart(int milliseconds, int id);
  bool Stop(int id);

 private:
  static bool IsTimer(int id) { return id >= 0 && id < kTimers; }
  // Answers whether the timer ran before.
  bool Arm(int milliseconds, int id);

  zelto::Mutex m_lock{zelto::LockRank::Unranked, "widget timers"};  // serialises an end and a new start
  std::array<CZeltoAlarm, kTimers> m_timers ZELTO_GUARDED_BY(m_lock);
};
