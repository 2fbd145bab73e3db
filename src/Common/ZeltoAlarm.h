// The one-shot timer.
#pragma once

#include <atomic>
#include <memory>

#include "Common/Locks.h"
#include "Common/ThreadSafety.h"

// Called with the callback data when an alarm expires; the result is ignored.
using ZeltoAlarmCallback = bool (*)(const void* data);

// Runs a callback once, on a thread of its own, after a delay. It stays created after it has fired, until
// Destroy; an owner that restarts it looks at m_flagCreate and calls Destroy first.
// Threads: any, all operations, also inside the alarm's own callback, which may restart or delete it. No
// lock is held while the callback runs, and Destroy does not wait for a callback that has begun: the
// callback data must outlive it.
class CZeltoAlarm {
 public:
  CZeltoAlarm() = default;
  CZeltoAlarm(const CZeltoAlarm&) = delete;
  CZeltoAlarm& operator=(const CZeltoAlarm&) = delete;
  ~CZeltoAlarm() { Destroy(); }

  // Starts the alarm: `microseconds` are rounded up to whole steps of 20 ms and counted from the thread's
  // start; 0 or less calls back at once; a null callback never calls. `alarm` is the alarm itself. Ends
  // the process when the alarm is created already. When the system refuses a thread the alarm counts as
  // created and never fires.
  void Create(int microseconds, ZeltoAlarmCallback callback, const void* data, void* alarm);

  // Cancels it: when it had not expired before, its callback never runs. Returns at once.
  void Destroy();

  // True between Create and Destroy.
  std::atomic<bool> m_flagCreate{false};

 protected:
  // What one Create starts. The thread shares it with the alarm and touches nothing else, so that the
  // alarm may go, or be created again, while an older thread is on its way out.
  struct Run {
    Run(int microseconds, ZeltoAlarmCallback called, const void* given)
        : m_sec(microseconds), callback(called), data(given) {}

    // Waits for the delay to pass; false when the alarm was cancelled before. After true a cancellation
    // comes too late.
    bool Expire();

    zelto::Mutex lock{zelto::LockRank::Leaf, "alarm"};
    zelto::Condition cancelled;
    bool running ZELTO_GUARDED_BY(lock) = true;  // cleared by Destroy
    const int m_sec;                             // microseconds
    const ZeltoAlarmCallback callback;
    const void* const data;
  };

  void LockMutex(Run& run) ZELTO_ACQUIRE(run.lock);
  void UnlockMutex(Run& run) ZELTO_RELEASE(run.lock);
  static void* t_main(void* run);

 private:
  zelto::Mutex m_createLock{zelto::LockRank::Unranked, "alarm creation"};  // serialises Create and Destroy
  std::shared_ptr<Run> m_run ZELTO_GUARDED_BY(m_createLock);
};
