#include "Common/Locks.h"

#include <cerrno>

#include "Common/Platform.h"

#ifdef ZELTO_DEBUG_LOCKS
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#endif

namespace zelto {

#ifdef ZELTO_DEBUG_LOCKS

namespace {

// More than the order has ranks, so a thread that keeps the order never fills it.
constexpr std::size_t kMaximumHeld = 8;

struct HeldLock {
  LockRank rank;
  const char* name;
};

struct HeldLocks {
  HeldLock locks[kMaximumHeld];
  std::size_t count;
};

thread_local HeldLocks t_held{};

}  // namespace

void NoteLockWanted(LockRank rank, const char* name) {
  if (rank == LockRank::Unranked) return;
  for (std::size_t i = 0; i < t_held.count; ++i) {
    const HeldLock& held = t_held.locks[i];
    if (held.rank < rank) continue;
    std::fprintf(stderr, "lock order: \"%s\" (rank %d) wanted while \"%s\" (rank %d) is held\n", name,
                 static_cast<int>(rank), held.name, static_cast<int>(held.rank));
    std::abort();
  }
}

void NoteLocked(LockRank rank, const char* name) {
  if (rank == LockRank::Unranked || t_held.count == kMaximumHeld) return;
  t_held.locks[t_held.count++] = {rank, name};
}

void NoteUnlocked(LockRank rank, const char* name) {
  for (std::size_t i = t_held.count; i > 0; --i) {
    if (t_held.locks[i - 1].rank != rank || t_held.locks[i - 1].name != name) continue;
    std::memmove(&t_held.locks[i - 1], &t_held.locks[i], (t_held.count - i) * sizeof(HeldLock));
    --t_held.count;
    return;
  }
}

#endif

bool Mutex::LockWithin(std::int64_t nanoseconds) {
  NoteLockWanted(m_rank, m_name);
  if (System().LockMutex(&m_mutex, nanoseconds) != 0) return false;
  NoteLocked(m_rank, m_name);
  return true;
}

void Condition::Wait(Mutex& mutex) { pthread_cond_wait(&m_condition, mutex.Native()); }

bool Condition::WaitFor(Mutex& mutex, std::int64_t nanoseconds) {
  return System().WaitCondition(&m_condition, mutex.Native(), nanoseconds) != ETIMEDOUT;
}

bool Condition::WaitByWallClock(Mutex& mutex, std::int64_t nanoseconds) {
  return System().WaitConditionByWallClock(&m_condition, mutex.Native(), nanoseconds) != ETIMEDOUT;
}

}  // namespace zelto
