// The recursive mutex that serialises every command, every manager operation and every use of the root
// object. It outlives every engine, so that a thread still waiting for it never waits on freed memory.
#pragma once

#include <atomic>
#include <mutex>

#include "Common/ThreadSafety.h"
#include "Common/ZeltoMutex.h"

namespace zelhost {

// Threads: any. Every waiter names itself, so that a stuck one can be told from the log.
class ZELTO_CAPABILITY("service-host mutex") ServiceHostMutex {
 public:
  // The only one.
  static ServiceHostMutex& Get();

  ServiceHostMutex(const ServiceHostMutex&) = delete;
  ServiceHostMutex& operator=(const ServiceHostMutex&) = delete;

  // Waits as long as it takes; while it waits, one line in ten seconds says who waits for whom.
  // `who` names the operation in that line and must be a literal.
  void Lock(const char* who) ZELTO_ACQUIRE();
  // False when it could not be had within that time.
  bool LockWithin(const char* who, int milliseconds) ZELTO_TRY_ACQUIRE(true);
  // The line that Lock prints. For who waits in steps of LockWithin, every kReportEvery milliseconds.
  void ReportWait(const char* who, int milliseconds) const;
  static constexpr int kReportEvery = 10'000;  // often enough to notice, rare enough for a log
  // The caller holds it; other callers change nothing.
  void Unlock() ZELTO_RELEASE();

  // Whether the calling thread holds it; asserted at the protocol's entry points in debug builds.
  bool IsHeldByCaller() const { return m_mutex.IsOwner(); }

 private:
  ServiceHostMutex();
  bool Take(const char* who, int milliseconds);

  zelto::CZeltoMutex m_mutex{zelto::LockRank::ServiceHost, "service host"};
  std::atomic<const char*> m_holder{""};  // what the holder's outermost level is about
};

// Holds the service-host mutex for the guard's lifetime.
class ZELTO_SCOPED_CAPABILITY ServiceHostLock {
 public:
  explicit ServiceHostLock(const char* who) ZELTO_ACQUIRE(ServiceHostMutex::Get()) {
    ServiceHostMutex::Get().Lock(who);
  }
  // Takes over a level that the caller has locked.
  explicit ServiceHostLock(std::adopt_lock_t) ZELTO_REQUIRES(ServiceHostMutex::Get()) {}
  ~ServiceHostLock() ZELTO_RELEASE() { ServiceHostMutex::Get().Unlock(); }
  ServiceHostLock(const ServiceHostLock&) = delete;
  ServiceHostLock& operator=(const ServiceHostLock&) = delete;
};

}  // namespace zelhost
