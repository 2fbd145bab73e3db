// Many calls in one process.
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "tests/faults/HostMedia.h"
#include "tests/faults/TourClock.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"
#include "tests/system/SwitchedOnTelevision.h"

namespace test {

namespace {

constexpr int kInProgress = 263;
constexpr int kIncomingCall = 267;
constexpr int kMembersCleared = 280;
constexpr int kIncomingConference = 289;

// A sanitizer keeps freed memory back for a while, and is slow.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int kCalls = 200;
constexpr bool kMeasuresMemory = false;
#else
constexpr int kCalls = 1000;
constexpr bool kMeasuresMemory = true;
#endif
constexpr int kWarmUp = 10;
constexpr int kBusyCalls = 24;
// An allocator's pools settle only in time; a hundred bytes kept per call would still show.
constexpr long kGrowth = 100 * 1024;

struct CallStep {
  const char* order;  // for the runtime's test door; null: none
  const char* command;
  const char* parameters[2];
  int event;
};

// clang-format off
const std::vector<CallStep> kCallKinds[] = {
    {{nullptr, "CreateCall", {"sndtest", "1"}, kInProgress},
     {nullptr, "CallEnd", {"0"}, kMembersCleared}},
    {{R"({"order":"call","from":"maria","video":1})", nullptr, {}, kIncomingCall},
     {nullptr, "AnswerWithVideo", {}, kInProgress},
     {R"({"order":"hangup"})", nullptr, {}, kMembersCleared}},
    {{R"({"order":"call","from":"maria","conference":1})", nullptr, {}, kIncomingConference},
     {nullptr, "AnswerWithVoice", {}, kInProgress},
     {nullptr, "CallEnd", {"0"}, kMembersCleared}},
    {{R"({"order":"call","from":"hugo"})", nullptr, {}, kIncomingCall},
     {nullptr, "RejectCall", {}, kMembersCleared}},
};
// Asked by others while calls come and go.
constexpr const char* kQuestions[] = {"GetCallInfo", "GetCallMemberIdentity", "IsInCall", "IsCallInProgress", "GetMicVolume"};
// clang-format on

// Resident, anonymous: without what is mapped from files or shared.
long ResidentBytes() {
  std::ifstream status("/proc/self/statm");
  long size = 0;
  long resident = 0;
  long shared = 0;
  status >> size >> resident >> shared;
  return (resident - shared) * sysconf(_SC_PAGESIZE);
}

class CallsWithoutEnd : public ATelevision {
 protected:
  CallsWithoutEnd() { setenv("ZELHOST_PACE", "100", 1); }
  ~CallsWithoutEnd() override {
    SwitchOff();
    unsetenv("ZELHOST_PACE");
  }
  void SetUp() override {
    SwitchOnAndWait();
    SignIn();
    ASSERT_EQ(Execute("SetZeltoWidgetState", "1"), "1");
  }

  // Others' commands may run meanwhile, so no answers are read.
  void Call(int number) {
    for (const CallStep& step : kCallKinds[static_cast<std::size_t>(number) % std::size(kCallKinds)]) {
      if (step.order != nullptr) Door(step.order);
      if (step.command != nullptr) Ask(step.command, step.parameters[0], step.parameters[1]);
      ASSERT_TRUE(Arrives(step.event)) << (step.command != nullptr ? step.command : step.order);
    }
    Ask("UnblockIncomingCall", "0");
  }
  // What is remembered of each call is the runtime's to keep.
  void ForgetCalls() {
    for (int tries = 0; Execute("GetNumOfHistories") != "0" && tries < 100; ++tries)
      Execute("DeleteHistory", "0");
  }
  void Ask(const char* command, const char* first = nullptr, const char* second = nullptr) {
    Engine().Execute(command, first, second, nullptr, nullptr);
  }

 private:
  TourClock& m_clock = TourClock::Make(40);
  Watchdog m_watchdog{280};
};

// Does something over and over, on a thread of its own.
class Restless {
 public:
  explicit Restless(std::function<void()> action)
      : m_thread([this, action = std::move(action)] {
          while (!m_ends) action();
        }) {}
  Restless(const Restless&) = delete;
  Restless& operator=(const Restless&) = delete;
  ~Restless() {
    m_ends = true;
    m_thread.join();
  }

 private:
  std::atomic<bool> m_ends{false};
  std::thread m_thread;
};

}  // namespace

TEST_F(CallsWithoutEnd, LeaveTheProcessAsItWasAfterTheTenth) {
  for (int number = 0; number < kWarmUp && !HasFailure(); ++number) Call(number);
  ForgetCalls();
  const SurvivalCheck survival;
  const long before = ResidentBytes();
  for (int number = kWarmUp; number < kCalls && !HasFailure(); ++number) {
    SCOPED_TRACE(number);
    Call(number);
    if (number % kWarmUp == 0) ForgetCalls();
  }
  ForgetCalls();
  const long growth = ResidentBytes() - before;
  EXPECT_TRUE(!kMeasuresMemory || growth < kGrowth) << growth;
}

TEST_F(CallsWithoutEnd, ComeAndGoWhileEveryThreadIsBusy) {
  std::atomic<int> heard{0};
  m_host.SetMediaSink([&heard](const CAVData&, unsigned*) { ++heard; });
  std::atomic<int> asked{0};
  {
    HostMedia media;
    const Restless data([&] { media.SendTo(Engine()); });
    const Restless timers([&, timer = 0]() mutable {
      Ask("OSDTimerExpired", std::to_string(timer = (timer + 1) % 10).c_str());
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    });
    const Restless questions([&] {
      for (const char* question : kQuestions) Ask(question, "0");
      ++asked;
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    });
    for (int number = 0; number < kBusyCalls && !HasFailure(); ++number) {
      SCOPED_TRACE(number);
      Call(number);
    }
  }
  EXPECT_GT(asked, kBusyCalls);
  EXPECT_GT(heard, kBusyCalls);
  EXPECT_EQ(Execute("IsInCall"), "0");
  SwitchOff();  // the sink goes
}

}  // namespace test
