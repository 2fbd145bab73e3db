// A scripted tour through the engine's life, run under all kinds of faults on a fast clock: load, start, the
// tour's steps, unload.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <mutex>
#include <string>
#include <vector>

#include "tests/faults/TourClock.h"
#include "tests/support/Watchdog.h"
#include "tests/system/SwitchedOnTelevision.h"

namespace test {

struct TourStep {
  const char* command;  // of the engine; null: only waits for the event
  const char* parameters[4];
  const char* answer;           // null: any
  int event;                    // that follows, 0: none
  const char* order = nullptr;  // for the runtime's test door, before the command
};

// Sign in, settings, sign out.
extern const std::vector<TourStep> kSignInTour;
// Sign in, a call of each kind, sign out.
extern const std::vector<TourStep> kCallTour;
// Sign in, a call to the echo, sign out.
extern const std::vector<TourStep> kEchoTour;

// Whether the loops take every frame, however long that takes.
inline bool IsThorough() { return std::getenv("ZELTO_ALL_FAULTS") != nullptr; }

class ATour : public ATelevision {
 protected:
  // The runtime's own waits go with the fast clock: they are `runtimePace` times as short.
  explicit ATour(const std::vector<TourStep>& steps = kSignInTour, const char* runtimePace = "10");
  ~ATour() override;

  // What the fault that the runtime has been told does to a tour; the less is left of it, the less patience.
  enum class Damage {
    None,      // every step gets its answer and its event
    SomeGone,  // steps may fail, but each returns
    Hanging,   // once the fault has struck, commands wait for ever
  };

  // Loads, takes every step and unloads. A step's event is waited for as long as the runtime lives and the
  // engine is loaded; a tour whose command hangs is ended from outside, as a television that is switched off.
  // Answers whether every step got its answer and its event.
  bool Run(Damage damage = Damage::None);

  // What the last tour that was not whole missed first.
  const std::string& FirstMiss() const { return m_firstMiss; }
  // Whether every command of the last tour returned by itself.
  bool Returned() const { return m_returned; }
  // The frames, both directions together, that the runtime counted during the last tour.
  int Frames() const { return m_frames; }
  // Whether the fault was yet to strike when the last tour was over; a runtime that has died cannot tell.
  bool FaultStillWaits() const { return m_faultWaits; }

  // On the thread that takes the steps: before a step's command, and between the command and its event.
  virtual void Before(IMoIPEngine&, const TourStep&) {}
  virtual void Meanwhile(IMoIPEngine&, const TourStep&) {}

  // For the runtime's test door. A runtime that has died takes none.
  void Order(const char* order);

  // Fault-free, after whatever came before: everything works.
  void VerifySurvival();

 private:
  bool TakeSteps(IMoIPEngine& engine);
  bool Miss(const std::string& step, const std::string& how);
  bool Reaches(int event);
  void AskRuntime();

  const std::vector<TourStep>& m_steps;
  // Loading waits 6 s for the runtime; on this clock that is a fraction of one.
  // Never freed: an alarm that is late may look at it when the engine and the test have gone.
  TourClock& m_clock = TourClock::Make(40);
  Watchdog m_watchdog{IsThorough() ? 3600u : 280u};
  std::mutex m_answerMutex;                 // held while an answer is read
  std::atomic<bool> m_switchingOff{false};  // a television that is switched off asks and reads nothing more
  std::chrono::milliseconds m_longestWait{0};  // for an event of the first tour without faults
  bool m_wasWhole = false;
  std::chrono::milliseconds m_longestEvent{0};
  pid_t m_runtime = 0;
  bool m_returned = false;
  int m_frames = 0;
  bool m_faultWaits = false;
  std::string m_firstMiss;
};

}  // namespace test
