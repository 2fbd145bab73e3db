// The recursive mutex of the service host and of the host's callbacks.
#pragma once

#include <pthread.h>

#include <atomic>
#include <cstdint>

#include "Common/Locks.h"
#include "Common/ThreadSafety.h"

namespace zelto {

// A lock that its holder may take again; it is free once it was unlocked as often as it was locked. It is
// usable between Create and Destroy only: before and after, Lock and Unlock print
// "CZeltoMutex Lock: mutex is not created" and answer false.
// Threads: any, all operations. The object must outlive every thread that may still wait for it.
class CZeltoMutex {
 public:
  // `name` appears in diagnoses and must live as long as the mutex.
  explicit CZeltoMutex(LockRank rank = LockRank::Unranked, const char* name = "CZeltoMutex");
  CZeltoMutex(const CZeltoMutex&) = delete;
  CZeltoMutex& operator=(const CZeltoMutex&) = delete;
  ~CZeltoMutex() = default;

  // Always true.
  bool Create();
  // From now on nobody gets the lock; a thread that waits for it is refused as soon as the present holder
  // lets go, and the holder's next Unlock, though answered with false, releases it.
  void Destroy();

  // Waits as long as it takes. False when it is not created.
  bool Lock() ZELTO_NO_THREAD_SAFETY_ANALYSIS;
  // False, without waiting, when another thread holds it or it is not created.
  bool TryLock() ZELTO_NO_THREAD_SAFETY_ANALYSIS;
  // Waits at most that long (0 or less does not wait). False when it is not created or the time ran out.
  bool LockWithin(int milliseconds) ZELTO_NO_THREAD_SAFETY_ANALYSIS;
  // False when it is not created or the caller does not hold it; nothing changes then.
  bool Unlock();

  // Whether the calling thread holds it.
  bool IsOwner() const;

 private:
  bool IsHolder() const { return m_owner.load(std::memory_order_relaxed) == pthread_self(); }
  bool TakeAgain();
  // Which of these let go of m_lock depends on the thread that calls, which no analysis follows.
  bool BecomeOwner() ZELTO_NO_THREAD_SAFETY_ANALYSIS;
  void Release() ZELTO_NO_THREAD_SAFETY_ANALYSIS;

  std::atomic<pthread_t> m_owner{0};  // 0 when free; only the owner writes it, holding m_lock
  Mutex m_lock;
  std::int32_t m_count = 0;  // touched by the owner only
  std::atomic<bool> m_created{false};
};

}  // namespace zelto
