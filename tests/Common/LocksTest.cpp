#include "Common/Locks.h"

#include <gtest/gtest.h>

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

#endif
