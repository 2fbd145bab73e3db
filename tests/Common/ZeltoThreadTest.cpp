#include "Common/ZeltoThread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "tests/Common/NoThreads.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"

namespace {

using testing::MatchesRegex;

class Worker : public zelto::CZeltoThread {
 public:
  ~Worker() override { Stop(); }

  void Stop() {
    m_stop = true;
    if (IsCreated()) Destroy();
    m_stop = false;
  }

  std::atomic<int> m_left{0};
  std::atomic<bool> m_stop{false};
  std::atomic<bool> m_destroyInBody{false};

 private:
  void t_Main() override {
    if (m_destroyInBody) Destroy();
    while (!m_stop) zelto::SleepMilliseconds(1);
    ++m_left;
  }
};

class AThread : public testing::Test {
 protected:
  test::Watchdog m_watchdog{120};
  test::SurvivalCheck m_survival;
  Worker m_worker;
};

TEST_F(AThread, RunsOnceHoweverOftenItIsCreated) {
  testing::internal::CaptureStdout();
  EXPECT_TRUE(m_worker.Create(nullptr));
  EXPECT_FALSE(m_worker.Create("TheWorker"));
  m_worker.Stop();
  EXPECT_EQ(m_worker.m_left, 1);
  EXPECT_THAT(testing::internal::GetCapturedStdout(),
              MatchesRegex("Unkown thread\\(0x[0-9a-f]+\\) is created\n"
                           "\n\nThread\\(0x[0-9a-f]+\\) is already started\n\n\n"
                           "CZeltoThread Destroy: wait thread start\n"
                           "CZeltoThread Destroy: wait thread end\n"
                           "CZeltoThread Destroy: end\n"));
}

TEST_F(AThread, HasLeftItsBodyWhenDestroyReturnsToTwoThreadsInEachOf200Rounds) {
  for (int round = 1; round <= 200; ++round) {
    ASSERT_TRUE(m_worker.Create("contested"));
    ASSERT_TRUE(m_worker.IsCreated());
    m_worker.m_stop = true;
    std::thread other([&] {
      m_worker.Destroy();
      EXPECT_EQ(m_worker.m_left, round);
    });
    m_worker.Destroy();
    EXPECT_EQ(m_worker.m_left, round);
    other.join();
    ASSERT_FALSE(m_worker.IsCreated());
    m_worker.m_stop = false;
  }
}

TEST_F(AThread, StaysCreatedWhenItsBodyHasEndedByItselfWhichIsNotWaitedForInside) {
  m_worker.m_destroyInBody = true;
  m_worker.m_stop = true;
  ASSERT_TRUE(m_worker.Create("short"));
  while (m_worker.m_left == 0) std::this_thread::yield();
  EXPECT_TRUE(m_worker.IsCreated());
  EXPECT_FALSE(m_worker.Create("short"));
  m_worker.Destroy();
  EXPECT_FALSE(m_worker.IsCreated());
}

TEST_F(AThread, RefusedByTheSystemIsStoppedAtOnceAndCanBeCreatedLater) {
  testing::internal::CaptureStdout();
  {
    const test::NoThreads system;
    EXPECT_FALSE(m_worker.Create("Refused"));
  }
  m_worker.Destroy();
  EXPECT_THAT(testing::internal::GetCapturedStdout(),
              MatchesRegex("Refused thread\\(0x[0-9a-f]+\\) creation failed\n"
                           "CZeltoThread Destroy: thread is not created\n"));
  EXPECT_TRUE(m_worker.Create("Granted"));
  m_worker.Stop();
  EXPECT_EQ(m_worker.m_left, 1);
}

}  // namespace
