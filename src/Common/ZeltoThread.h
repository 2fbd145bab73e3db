// The base of every long-running worker thread.
#pragma once

#include <pthread.h>

#include <atomic>

#include "Common/Locks.h"
#include "Common/ThreadSafety.h"

namespace zelto {

// Runs t_Main on a detached thread of its own. The owner asks the body to stop (with a flag of the
// subclass) and then calls Destroy, before the object goes.
// Threads: Create and Destroy from any thread but the body's; SetHighPriorty on the body's.
class CZeltoThread {
 public:
  CZeltoThread() = default;
  CZeltoThread(const CZeltoThread&) = delete;
  CZeltoThread& operator=(const CZeltoThread&) = delete;
  virtual ~CZeltoThread() = default;

  // Starts the thread; `name` serves the log only and may be null. False when it is created already, or
  // when the system refuses a thread: the object is then as before and may be created again.
  bool Create(const char* name);

  // Returns once the body has returned, at once when there is none. The object may be created again. On
  // the body's own thread, where it would wait for itself, it says so and does nothing.
  void Destroy();

  // Raises the calling thread to real-time priority as far as the system allows.
  void SetHighPriorty();

  // Between a successful Create and the end of Destroy, whether the body still runs or not.
  bool IsCreated() const { return m_created.load(); }

 protected:
  virtual void t_Main() = 0;

  void Start();                             // the body's thread: from its first step to its last
  void End() ZELTO_REQUIRES(m_createLock);  // waits for the last step

 private:
  static void* Enter(void* thread);
  bool StartBody(const char* name) ZELTO_REQUIRES(m_createLock);
  void SetRunning(bool running);

  pthread_t m_thread{};
  Mutex m_createLock{LockRank::Unranked, "thread creation"};  // serialises Create and Destroy
  Mutex m_runLock{LockRank::Leaf, "thread body"};
  Condition m_ended;
  std::atomic<bool> m_created{false};
  bool m_running ZELTO_GUARDED_BY(m_runLock) = false;  // from Create until the body has returned
  std::atomic<pthread_t> m_bodyThread{0};
};

}  // namespace zelto
