// One scripted tour through the engine's life, run under all kinds of faults on a fast clock: load, start,
// sign in, settings, sign out, unload.
#pragma once

#include <atomic>
#include <string>

#include "tests/support/FastClock.h"
#include "tests/support/Watchdog.h"
#include "tests/system/SwitchedOnTelevision.h"

namespace test {

class ATour : public ATelevision {
 protected:
  // Loads, takes every step and unloads. A step's event is waited for as long as the runtime lives and the
  // engine is loaded; a tour whose command hangs is ended from outside, as a television that is switched off.
  // Answers whether every step got its answer and its event.
  bool Run();
  // The frames, both directions together, that the runtime counted during the last whole tour.
  int Frames() const { return m_frames; }

  // Fault-free, after whatever came before: everything works.
  void VerifySurvival();

 private:
  bool TakeSteps(IMoIPEngine& engine);
  bool Reaches(int event) const;
  bool IsAlive() const;

  // Loading waits 6 s for the runtime; on this clock that is a fraction of one.
  FastClock m_clock{40};
  Watchdog m_watchdog{240};
  std::atomic<bool> m_switchingOff{false};  // a television that is switched off asks nothing more
  pid_t m_runtime = 0;
  int m_frames = 0;
};

}  // namespace test
