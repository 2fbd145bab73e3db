#include "Common/Locks.h"

#include <gtest/gtest.h>

#include <thread>

#include "Common/Platform.h"
#include "tests/support/FastClock.h"

using zelto::kNanosecondsPerMillisecond;

namespace {

constexpr std::int64_t kLong = 60'000 * kNanosecondsPerMillisecond;

}  // namespace

TEST(AHeldMutex, IsRefusedWhenTheTimeIsUpAndGivenOnceItIsFree) {
  test::FastClock fast(1000);
  zelto::Mutex mutex(zelto::LockRank::Leaf, "held");
  mutex.Lock();
  std::thread([&] {
    EXPECT_FALSE(mutex.LockWithin(0));
    EXPECT_FALSE(mutex.LockWithin(-1));
    EXPECT_FALSE(mutex.LockWithin(kLong));
  }).join();
  std::thread waiting([&] {
    const bool given = mutex.LockWithin(kLong * 1000);
    EXPECT_TRUE(given);
    if (given) mutex.Unlock();
  });
  mutex.Unlock();
  waiting.join();
}

TEST(ACondition, EndsAWaitByANotificationOrByTheClock) {
  test::FastClock fast(1000);
  zelto::Mutex mutex(zelto::LockRank::Leaf, "condition");
  zelto::Condition changed;
  bool flag = false;
  std::thread waiting([&] {
    zelto::MutexLock lock(mutex);
    const std::int64_t before = fast.Now();
    while (changed.WaitFor(mutex, kLong)) {
    }
    EXPECT_GE(fast.Now() - before, kLong);
    while (!flag) changed.Wait(mutex);
  });
  {
    zelto::MutexLock lock(mutex);
    flag = true;
  }
  changed.NotifyAll();
  waiting.join();
}

#ifdef ZELTO_DEBUG_LOCKS

TEST(TheLockOrder, EndsTheProcessWithBothNamesWhenItIsBroken) {
  zelto::Mutex queue(zelto::LockRank::Queue, "the queue");
  zelto::Mutex ring(zelto::LockRank::Ring, "the ring");
  zelto::Mutex otherRing(zelto::LockRank::Ring, "another ring");
  const zelto::MutexLock lock(ring);
  EXPECT_DEATH(zelto::MutexLock broken(queue),
               "\"the queue\" .rank 3. wanted while \"the ring\" .rank 4. is held");
  EXPECT_DEATH(zelto::MutexLock broken(otherRing), "\"another ring\" .* while \"the ring\"");
}

TEST(TheLockOrder, HoldsForWhatIsStillHeldAndNotForUnrankedLocks) {
  zelto::Mutex host(zelto::LockRank::ServiceHost, "host");
  zelto::Mutex queue(zelto::LockRank::Queue, "queue");
  zelto::Mutex ring(zelto::LockRank::Ring, "ring");
  zelto::Mutex unranked(zelto::LockRank::Unranked, "unranked");
  host.Lock();
  queue.Lock();
  host.Unlock();  // not in the order of a stack
  ring.Lock();
  unranked.Lock();
  ring.Unlock();
  queue.Unlock();
  host.Lock();  // nothing of a rank is held any more
  host.Unlock();
  unranked.Unlock();
}

#endif
