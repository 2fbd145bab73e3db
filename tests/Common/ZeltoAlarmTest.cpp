#include "Common/ZeltoAlarm.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include "tests/Common/NoThreads.h"
#include "tests/support/FastClock.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"

namespace {

constexpr std::int64_t kStep = 20 * zelto::kNanosecondsPerMillisecond;
constexpr int kMinute = 60'000'000;

// Keeps what its threads should run until it is told, so that an alarm can be destroyed before its thread
// starts.
class LateThreads : public zelto::Platform {
 public:
  LateThreads() { zelto::SetSystem(this); }
  ~LateThreads() override { zelto::SetSystem(nullptr); }

  int CreateThread(pthread_t* handle, void* (*body)(void*), void* argument) override {
    m_late.push_back([=] { body(argument); });
    return Platform::CreateThread(
        handle, [](void* nothing) { return nothing; }, nullptr);
  }
  void RunLate() const {
    for (const auto& body : m_late) body();
  }

 private:
  std::vector<std::function<void()>> m_late;
};

// What a callback is given. It outlives the alarm and every callback.
struct Owner {
  std::unique_ptr<CZeltoAlarm> alarm = std::make_unique<CZeltoAlarm>();
  std::atomic<int> fired{0};
  std::atomic<std::int64_t> firedAt{0};

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

// Restarts its alarm, and the 200th time deletes it.
bool Restart(const void* data) {
  Owner* const owner = OwnerOf(data);
  owner->alarm->Destroy();
  if (owner->fired + 1 < 200) {
    owner->Start(1, Restart);
  } else {
    owner->alarm.reset();
  }
  ++owner->fired;
  return true;
}

class AnAlarm : public testing::Test {
 protected:
  test::Watchdog m_watchdog{240};
  test::SurvivalCheck m_survival;
};

TEST_F(AnAlarm, FiresOnceAfterWholeStepsAndNeverEarly) {
  for (const auto& [microseconds, steps] :
       {std::pair{1, 1}, {20'000, 1}, {20'001, 2}, {400'000, 20}, {0, 0}, {-5, 0}}) {
    Owner owner;
    const std::int64_t before = zelto::System().Now();
    owner.Start(microseconds, Count);
    owner.WaitForFirings(1);
    EXPECT_GE(owner.firedAt - before, steps * kStep) << microseconds;
    EXPECT_TRUE(owner.alarm->m_flagCreate);
    owner.alarm->Destroy();
    EXPECT_FALSE(owner.alarm->m_flagCreate);
    EXPECT_EQ(owner.fired, 1);
  }
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
  late.RunLate();
  EXPECT_EQ(owner.fired, 0);
}

TEST_F(AnAlarm, RestartsItselfInItsCallback200TimesUntilItIsDeletedThere) {
  test::FastClock fast(50);
  std::vector<std::unique_ptr<Owner>> owners;
  for (int i = 0; i < 4; ++i) {
    owners.push_back(std::make_unique<Owner>());
    owners.back()->Start(1, Restart);
  }
  for (const auto& owner : owners) owner->WaitForFirings(200);
  EXPECT_EQ(m_survival.Differences(), "");
  for (const auto& owner : owners) EXPECT_EQ(owner->fired, 200);
}

TEST_F(AnAlarm, WithoutCallbackOrThreadFiresNothingAndIsDestroyed) {
  Owner owner;
  {
    LateThreads late;
    owner.Start(0, nullptr);
    late.RunLate();
    owner.alarm->Destroy();
  }
  const test::NoThreads system;
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

}  // namespace
