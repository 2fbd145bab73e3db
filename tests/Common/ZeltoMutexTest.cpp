#include "Common/ZeltoMutex.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

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
    return OnAnotherThread([&] { return m_mutex.LockWithin(-1) && m_mutex.Unlock(); });
  }

  zelto::CZeltoMutex m_mutex;
};

TEST_F(ARecursiveMutex, IsFreeAfterAsManyUnlocksOfItsHolderAsLocks) {
  EXPECT_TRUE(m_mutex.Lock());
  EXPECT_TRUE(m_mutex.Lock());
  EXPECT_TRUE(m_mutex.LockWithin(0));
  EXPECT_TRUE(m_mutex.Unlock());
  EXPECT_TRUE(m_mutex.Unlock());
  EXPECT_FALSE(OnAnotherThread([&] { return m_mutex.Unlock() || m_mutex.IsOwner(); }));
  EXPECT_TRUE(m_mutex.IsOwner());
  EXPECT_FALSE(IsFree());
  EXPECT_TRUE(m_mutex.Unlock());
  EXPECT_FALSE(m_mutex.IsOwner());
  EXPECT_TRUE(IsFree());
  EXPECT_FALSE(m_mutex.Unlock());
}

TEST_F(ARecursiveMutex, DestroyedWhileHeldRefusesEverybodyUntilItIsCreatedAgain) {
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
  testing::internal::CaptureStdout();
  EXPECT_FALSE(m_mutex.Lock());
  EXPECT_FALSE(m_mutex.LockWithin(kMinute));
  EXPECT_FALSE(m_mutex.Unlock());
  const std::string line = "CZeltoMutex Lock: mutex is not created\n";
  EXPECT_EQ(testing::internal::GetCapturedStdout(), line + line + line);
  m_mutex.Create();
  EXPECT_TRUE(IsFree());
}

}  // namespace
