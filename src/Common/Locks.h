// The engine's plain mutex, its scoped guard, its condition, and the order in which locks are taken.
#pragma once

#include <pthread.h>

#include <cstdint>

#include "Common/ThreadSafety.h"

namespace zelto {

// The one lock order: a thread that holds a lock takes only locks of a higher rank. Builds with
// ZELTO_DEBUG_LOCKS keep each thread's ranks and end the process when the order is broken, naming both.
enum class LockRank {
  Unranked = 0,     // outside the order: held while waiting for another thread, which is asked to stop first
  ServiceHost = 1,  // serialises commands, managers and the protocol; recursive
  Callback = 2,     // serialises every call into the host
  Queue = 3,        // the event queue
  Ring = 4,         // a media ring
  Leaf = 5,         // guards a few fields; nothing else is taken while it is held
};

// Rank bookkeeping of the calling thread; empty without ZELTO_DEBUG_LOCKS. For lock classes only.
// NoteLockWanted is called before waiting, NoteLocked once held. A recursive lock notes its outermost
// level only. `name` must live as long as it is noted.
#ifdef ZELTO_DEBUG_LOCKS
void NoteLockWanted(LockRank rank, const char* name);
void NoteLocked(LockRank rank, const char* name);
void NoteUnlocked(LockRank rank, const char* name);
#else
inline void NoteLockWanted(LockRank, const char*) {}
inline void NoteLocked(LockRank, const char*) {}
inline void NoteUnlocked(LockRank, const char*) {}
#endif

// A non-recursive mutex. `name` must live as long as the mutex; it appears in diagnoses.
// Threads: any; unlocked by the thread that locked it.
class ZELTO_CAPABILITY("mutex") Mutex {
 public:
  Mutex(LockRank rank, const char* name) : m_rank(rank), m_name(name) {}
  Mutex(const Mutex&) = delete;
  Mutex& operator=(const Mutex&) = delete;
  ~Mutex() { pthread_mutex_destroy(&m_mutex); }

  void Lock() ZELTO_ACQUIRE() {
    NoteLockWanted(m_rank, m_name);
    pthread_mutex_lock(&m_mutex);
    NoteLocked(m_rank, m_name);
  }
  void Unlock() ZELTO_RELEASE() {
    NoteUnlocked(m_rank, m_name);
    pthread_mutex_unlock(&m_mutex);
  }
  // False when another thread holds it.
  bool TryLock() ZELTO_TRY_ACQUIRE(true) {
    if (pthread_mutex_trylock(&m_mutex) != 0) return false;
    NoteLocked(m_rank, m_name);
    return true;
  }
  // False, without the lock, when it could not be had within that time. 0 or less does not wait.
  bool LockWithin(std::int64_t nanoseconds) ZELTO_TRY_ACQUIRE(true);
  pthread_mutex_t* Native() { return &m_mutex; }  // for condition variables

 private:
  pthread_mutex_t m_mutex = PTHREAD_MUTEX_INITIALIZER;
  const LockRank m_rank;
  const char* const m_name;
};

// Holds a mutex for the guard's lifetime.
class ZELTO_SCOPED_CAPABILITY MutexLock {
 public:
  explicit MutexLock(Mutex& mutex) ZELTO_ACQUIRE(mutex) : m_mutex(mutex) { m_mutex.Lock(); }
  ~MutexLock() ZELTO_RELEASE() { m_mutex.Unlock(); }
  MutexLock(const MutexLock&) = delete;
  MutexLock& operator=(const MutexLock&) = delete;

 private:
  Mutex& m_mutex;
};

// Wakes threads that wait for a change of what a mutex guards. Waits may end early: the caller waits in a
// loop over the guarded fields.
// Threads: any; a wait needs the mutex held, a notification does not.
class Condition {
 public:
  Condition() = default;
  Condition(const Condition&) = delete;
  Condition& operator=(const Condition&) = delete;
  ~Condition() { pthread_cond_destroy(&m_condition); }

  void Wait(Mutex& mutex) ZELTO_REQUIRES(mutex);
  // Waits at most that long on the platform's clock (Platform::Now). False when the time ran out.
  bool WaitFor(Mutex& mutex, std::int64_t nanoseconds) ZELTO_REQUIRES(mutex);
  // The same by the wall clock, as Platform::WaitConditionByWallClock.
  bool WaitByWallClock(Mutex& mutex, std::int64_t nanoseconds) ZELTO_REQUIRES(mutex);
  void NotifyAll() { pthread_cond_broadcast(&m_condition); }

 private:
  pthread_cond_t m_condition = PTHREAD_COND_INITIALIZER;
};

}  // namespace zelto
