#include "Common/ZeltoAlarm.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "Common/Log.h"
#include "Common/Platform.h"
#include "tests/support/FastClock.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"

namespace {

constexpr std::int64_t kStep = 20 * zelto::kNanosecondsPerMillisecond;
constexpr int kMinute = 60'000'000;

// Threads begin only when they are let, so that an alarm can be destroyed before its thread starts.
class LateThreads : public zelto::Platform {
 public:
  LateThreads() { zelto::SetSystem(this); }
  ~LateThreads() override { zelto::SetSystem(nullptr); }

  int CreateThread(pthread_t* handle, void* (*body)(void*), void* argument) override {
    if (m_refuse) return EAGAIN;
    return Platform::CreateThread(handle, &LateThreads::Enter, new Start{this, body, argument});
  }

  std::atomic<bool> m_refuse{false};
  std::atomic<bool> m_go{false};
  std::atomic<int> m_ended{0};

 private:
  struct Start {
    LateThreads* platform;
    void* (*body)(void*);
    void* argument;
  };

  static void* Enter(void* argument) {
    const std::unique_ptr<Start> start(static_cast<Start*>(argument));
    while (!start->platform->m_go) std::this_thread::yield();
    void* const result = start->body(start->argument);
    ++start->platform->m_ended;
    return result;
  }
};

// What a callback is given. It outlives the alarm and every callback.
struct Owner {
  std::unique_ptr<CZeltoAlarm> alarm = std::make_unique<CZeltoAlarm>();
  std::atomic<int> fired{0};
  std::atomic<std::int64_t> firedAt{0};
  int rounds = 0;

  void Start(int microseconds, ZeltoAlarmCallback callback) {
    alarm->Create(microseconds, callback, this, alarm.get());
  }

  void WaitForFirings(int count) const {
    while (fired < count) std::this_thread::yield();
  }
};

Owner* OwnerOf(const void* data) { return static_cast<Owner*>(const_cast<void*>(data)); }

bool Count(const void* data) {
  OwnerOf(data)->firedAt = zelto::System().Now();
  ++OwnerOf(data)->fired;
  return false;
}

bool Restart(const void* data) {
  Owner* const owner = OwnerOf(data);
  owner->alarm->Destroy();
  if (owner->fired + 1 < owner->rounds) owner->Start(1, Restart);
  ++owner->fired;
  return true;
}

bool Delete(const void* data) {
  OwnerOf(data)->alarm.reset();
  ++OwnerOf(data)->fired;
  return true;
}

class AnAlarm : public testing::Test {
 protected:
  test::Watchdog m_watchdog{240};
  test::SurvivalCheck m_survival;
};

TEST_F(AnAlarm, FiresOnceAfterWholeStepsAndNeverEarly) {
  test::SurvivalCheck survival;  // waits for the alarm's thread before the clock goes
  test::FastClock fast(4);
  for (const auto& [microseconds, steps] :
       {std::pair{1, 1}, {20'000, 1}, {20'001, 2}, {400'000, 20}, {0, 0}, {-5, 0}}) {
    Owner owner;
    const std::int64_t before = fast.Now();
    owner.Start(microseconds, Count);
    owner.WaitForFirings(1);
    EXPECT_GE(owner.firedAt - before, steps * kStep) << microseconds;
    EXPECT_TRUE(owner.alarm->m_flagCreate);
    owner.alarm->Destroy();
    EXPECT_FALSE(owner.alarm->m_flagCreate);
    EXPECT_EQ(owner.fired, 1);
  }
  EXPECT_EQ(survival.Differences(), "");
}

TEST_F(AnAlarm, DestroyedBeforeItExpiresNeverFires) {
  Owner owner;
  for (int round = 0; round < 200; ++round) {
    owner.Start(kMinute, Count);
    owner.alarm->Destroy();
  }
  EXPECT_EQ(m_survival.Differences(), "");  // all its threads have ended
  EXPECT_EQ(owner.fired, 0);
}

TEST_F(AnAlarm, DestroyedBeforeItsThreadStartsNeverFires) {
  LateThreads late;
  Owner owner;
  owner.Start(0, Count);
  owner.alarm->Destroy();
  owner.Start(0, Count);
  owner.alarm.reset();
  late.m_go = true;
  while (late.m_ended < 2) std::this_thread::yield();
  EXPECT_EQ(owner.fired, 0);
}

TEST_F(AnAlarm, RestartsItselfInItsCallback200Times) {
  test::SurvivalCheck survival;
  test::FastClock fast(50);
  std::vector<std::unique_ptr<Owner>> owners;
  for (int i = 0; i < 4; ++i) {
    owners.push_back(std::make_unique<Owner>());
    owners.back()->rounds = 200;
    owners.back()->Start(1, Restart);
  }
  for (const auto& owner : owners) owner->WaitForFirings(200);
  EXPECT_EQ(survival.Differences(), "");
  for (const auto& owner : owners) {
    EXPECT_EQ(owner->fired, 200);
    EXPECT_FALSE(owner->alarm->m_flagCreate);
  }
}

TEST_F(AnAlarm, MayBeDeletedByItsOwnCallback) {
  Owner owner;
  owner.Start(1, Delete);
  owner.WaitForFirings(1);
  EXPECT_EQ(m_survival.Differences(), "");
}

// Whoever destroys first decides: after Destroy has returned the count changes only for a callback that had
// begun before.
TEST_F(AnAlarm, EitherFiresOrIsCancelledWhenBothHappenAtOnce) {
  test::SurvivalCheck survival;
  test::FastClock fast(100);
  Owner owner;
  int destroyed = 0;
  for (; destroyed < 200; ++destroyed) {
    owner.Start(20'000, Count);
    fast.Sleep(kStep - kStep / 10 + destroyed % 20 * kStep / 100);
    owner.alarm->Destroy();
  }
  EXPECT_EQ(survival.Differences(), "");
  EXPECT_LE(owner.fired, destroyed);
}

TEST_F(AnAlarm, WithoutCallbackOrThreadFiresNothingAndIsDestroyed) {
  LateThreads late;
  Owner owner;
  late.m_go = true;
  owner.Start(0, nullptr);
  while (late.m_ended < 1) std::this_thread::yield();
  owner.alarm->Destroy();
  late.m_refuse = true;
  owner.Start(0, Count);
  EXPECT_TRUE(owner.alarm->m_flagCreate);
  owner.alarm->Destroy();
  EXPECT_FALSE(owner.alarm->m_flagCreate);
  EXPECT_EQ(owner.fired, 0);
}

TEST_F(AnAlarm, CreatedTwiceEndsTheProcessInEveryBuild) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_DEATH(
      {
        Owner owner;
        owner.Start(kMinute, Count);
        owner.Start(kMinute, Count);
      },
      "m_flagCreate == false");
}

TEST_F(AnAlarm, TracesItsLifeAtDebugLevelFour) {
  zelto::g_debugLevel = 4;
  testing::internal::CaptureStdout();
  {
    const test::SurvivalCheck survival;  // ends with the alarm's thread
    Owner owner;
    owner.Start(kMinute, Count);
    owner.alarm->Destroy();
  }
  const std::string text = testing::internal::GetCapturedStdout();
  zelto::g_debugLevel = 1;
  for (const char* line :
       {"**Start Create Zelto Alarm \n", "] sec : 60000000\n", "**Stop Create Zelto Alarm \n",
        "] m_sec : 60000000\n", "**Start Zelto Alarm \n", "**Start Destroy Zelto Alarm \n",
        "**Wait exit Zelto Alarm \n", "ZeltoAlarm : Thread Lock\n", "ZeltoAlarm : Thread UnLock\n",
        "**Complte exit Zelto Alarm \n", "**Stop Destroy Zelto Alarm \n", "**Cancel Zelto Alarm \n",
        "**Stop Zelto Alarm \n"}) {
    EXPECT_NE(text.find(line), std::string::npos) << line << text;
  }
  EXPECT_EQ(text.find("Callback"), std::string::npos);
}

}  // namespace
