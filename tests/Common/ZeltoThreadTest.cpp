#include "Common/ZeltoThread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <thread>

#include "Common/Platform.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

class Worker : public zelto::CZeltoThread {
 public:
  ~Worker() override { Stop(); }

  void Stop() {
    m_stop = true;
    if (IsCreated()) Destroy();
    m_stop = false;
  }

  std::atomic<int> m_entered{0};
  std::atomic<int> m_left{0};
  std::atomic<bool> m_stop{false};
  std::atomic<bool> m_destroyInBody{false};

 private:
  void t_Main() override {
    ++m_entered;
    if (m_destroyInBody) Destroy();
    while (!m_stop) zelto::SleepMilliseconds(1);
    ++m_left;
  }
};

class ThreadlessPlatform : public zelto::Platform {
 public:
  int CreateThread(pthread_t*, void* (*)(void*), void*) override { return EAGAIN; }
};

class AThread : public testing::Test {
 protected:
  test::Watchdog m_watchdog{120};
  test::SurvivalCheck m_survival;
};

TEST_F(AThread, RunsOnceHoweverOftenItIsCreated) {
  Worker worker;
  testing::internal::CaptureStdout();
  EXPECT_TRUE(worker.Create("TheWorker"));
  EXPECT_FALSE(worker.Create("TheWorker"));
  worker.Stop();
  EXPECT_EQ(worker.m_entered, 1);
  EXPECT_THAT(testing::internal::GetCapturedStdout(),
              MatchesRegex("TheWorker thread\\(0x[0-9a-f]+\\) is created\n"
                           "\n\nThread\\(0x[0-9a-f]+\\) is already started\n\n\n"
                           "CZeltoThread Destroy: wait thread start\n"
                           "CZeltoThread Destroy: wait thread end\n"
                           "CZeltoThread Destroy: end\n"));
}

TEST_F(AThread, HasLeftItsBodyWhenDestroyReturnsInEachOf200Rounds) {
  Worker worker;
  testing::internal::CaptureStdout();
  for (int round = 1; round <= 200; ++round) {
    ASSERT_TRUE(worker.Create(nullptr));
    ASSERT_TRUE(worker.IsCreated());
    worker.Stop();
    ASSERT_FALSE(worker.IsCreated());
    ASSERT_EQ(worker.m_left, round);
  }
  EXPECT_THAT(testing::internal::GetCapturedStdout(), HasSubstr("Unkown thread("));
}

TEST_F(AThread, StaysCreatedWhenItsBodyHasEndedByItself) {
  Worker worker;
  worker.m_stop = true;
  ASSERT_TRUE(worker.Create("short"));
  while (worker.m_left == 0) std::this_thread::yield();
  EXPECT_TRUE(worker.IsCreated());
  EXPECT_FALSE(worker.Create("short"));
  worker.Destroy();
  EXPECT_FALSE(worker.IsCreated());
}

TEST_F(AThread, IsStoppedByTwoThreadsAtOnce) {
  for (int round = 0; round < 20; ++round) {
    Worker worker;
    ASSERT_TRUE(worker.Create("contested"));
    worker.m_stop = true;
    std::thread other([&] { worker.Destroy(); });
    worker.Destroy();
    other.join();
    EXPECT_EQ(worker.m_left, 1);
  }
}

TEST_F(AThread, IsNotWaitedForByItself) {
  Worker worker;
  worker.m_destroyInBody = true;
  ASSERT_TRUE(worker.Create("selfish"));
  worker.Stop();
  EXPECT_EQ(worker.m_left, 1);
}

TEST_F(AThread, RefusedByTheSystemIsStoppedAtOnceAndCanBeCreatedLater) {
  Worker worker;
  ThreadlessPlatform threadless;
  zelto::SetSystem(&threadless);
  testing::internal::CaptureStdout();
  EXPECT_FALSE(worker.Create("Refused"));
  worker.Destroy();
  zelto::SetSystem(nullptr);
  EXPECT_THAT(testing::internal::GetCapturedStdout(),
              MatchesRegex("Refused thread\\(0x[0-9a-f]+\\) creation failed\n"
                           "CZeltoThread Destroy: thread is not created\n"));
  EXPECT_TRUE(worker.Create("Granted"));
  worker.Stop();
  EXPECT_EQ(worker.m_left, 1);
}

}  // namespace
