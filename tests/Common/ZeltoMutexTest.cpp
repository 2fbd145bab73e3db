#include "Common/ZeltoMutex.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "tests/support/FastClock.h"

namespace {

constexpr int kMinute = 60'000;

class ARecursiveMutex : public testing::Test {
 protected:
  ARecursiveMutex() { m_mutex.Create(); }

  template <typename Function>
  static bool OnAnotherThread(Function function) {
    bool result = false;
    std::thread([&] { result = function(); }).join();
    return result;
  }

  bool IsFree() {
    return OnAnotherThread([&] { return m_mutex.LockWithin(0) && m_mutex.Unlock(); });
  }

  zelto::CZeltoMutex m_mutex;
};

TEST_F(ARecursiveMutex, IsFreeAfterAsManyUnlocksAsLocks) {
  EXPECT_TRUE(m_mutex.Lock());
  EXPECT_TRUE(m_mutex.Lock());
  EXPECT_TRUE(m_mutex.LockWithin(0));
  EXPECT_TRUE(m_mutex.IsOwner());
  EXPECT_TRUE(m_mutex.Unlock());
  EXPECT_TRUE(m_mutex.Unlock());
  EXPECT_FALSE(IsFree());
  EXPECT_TRUE(m_mutex.Unlock());
  EXPECT_FALSE(m_mutex.IsOwner());
  EXPECT_TRUE(IsFree());
  EXPECT_FALSE(m_mutex.Unlock());
}

TEST_F(ARecursiveMutex, IsLeftAloneByAnUnlockOfAThreadThatDoesNotHoldIt) {
  ASSERT_TRUE(m_mutex.Lock());
  EXPECT_FALSE(OnAnotherThread([&] { return m_mutex.Unlock() || m_mutex.IsOwner(); }));
  EXPECT_TRUE(m_mutex.IsOwner());
  EXPECT_FALSE(IsFree());
  EXPECT_TRUE(m_mutex.Unlock());
}

TEST_F(ARecursiveMutex, IsWaitedForNoLongerThanAskedFor) {
  test::FastClock fast(1000);
  ASSERT_TRUE(m_mutex.Lock());
  const std::int64_t before = fast.Now();
  EXPECT_FALSE(OnAnotherThread([&] { return m_mutex.LockWithin(kMinute); }));
  EXPECT_GE(fast.Now() - before, kMinute * zelto::kNanosecondsPerMillisecond);
  EXPECT_TRUE(m_mutex.Unlock());
}

TEST_F(ARecursiveMutex, KeepsThreadsApart) {
  int counter = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < 2000; ++round) {
        ASSERT_TRUE(m_mutex.Lock());
        ASSERT_TRUE(m_mutex.LockWithin(kMinute));
        ++counter;
        ASSERT_TRUE(m_mutex.Unlock());
        ASSERT_TRUE(m_mutex.Unlock());
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(counter, 8000);
}

TEST_F(ARecursiveMutex, RefusesEverybodyOutsideOfItsCreation) {
  m_mutex.Destroy();
  testing::internal::CaptureStdout();
  EXPECT_FALSE(m_mutex.Lock());
  EXPECT_FALSE(m_mutex.LockWithin(kMinute));
  EXPECT_FALSE(m_mutex.Unlock());
  const std::string line = "CZeltoMutex Lock: mutex is not created\n";
  EXPECT_EQ(testing::internal::GetCapturedStdout(), line + line + line);
  EXPECT_TRUE(m_mutex.Create());
  EXPECT_TRUE(m_mutex.Lock());
  EXPECT_TRUE(m_mutex.Unlock());
}

TEST_F(ARecursiveMutex, DestroyedWhileHeldRefusesThoseWhoWaitAndCanBeCreatedAgain) {
  ASSERT_TRUE(m_mutex.Lock());
  ASSERT_TRUE(m_mutex.Lock());
  std::atomic<bool> started{false};
  bool locked = true;
  std::thread waiting([&] {
    started = true;
    locked = m_mutex.Lock();
  });
  while (!started) std::this_thread::yield();
  m_mutex.Destroy();
  EXPECT_FALSE(m_mutex.IsOwner());
  EXPECT_FALSE(m_mutex.Unlock());
  waiting.join();
  EXPECT_FALSE(locked);
  m_mutex.Create();
  EXPECT_TRUE(IsFree());
}

}  // namespace
