#include <gmock/gmock.h>
#include <signal.h>
#include <sys/wait.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <thread>

#include "tests/support/SurvivalCheck.h"
#include "tests/system/SwitchedOnTelevision.h"

using ::testing::HasSubstr;

namespace test {

namespace {

// The engine's own promise to a host that ends it.
constexpr std::chrono::seconds kLongestEnd(8);

// Living or dead and not yet reaped.
bool HasChildren() {
  siginfo_t child;
  return waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
}

class ARuntimeThatFails : public ATelevision {
 protected:
  // The engine ends in time and leaves nothing behind: no process, no key file, no attached segment.
  void EndsCleanly() {
    EXPECT_LT(SwitchOff(), kLongestEnd);
    EXPECT_FALSE(HasChildren());
    EXPECT_FALSE(std::filesystem::exists(Path("/tmp/shmipc2_conn")));
    std::ifstream maps("/proc/self/maps");
    const std::string mapped((std::istreambuf_iterator<char>(maps)), {});
    EXPECT_THAT(mapped, ::testing::Not(HasSubstr("/SYSV")));
  }
  // After whatever happened, another engine in this process works.
  void WorksTheNextTime() {
    unsetenv("ZELHOST_SCENARIO");
    SwitchOnAndWait();
    SignIn();
    EXPECT_EQ(Execute("SetMicVolume", "12"), "1");
    EXPECT_EQ(Execute("GetMicVolume"), "12");
  }
};

}  // namespace

TEST_F(ARuntimeThatFails, BeforeItIsConnectedLeavesTheEngineUnloaded) {
  SwitchOn();
  SignalRuntime(SIGKILL);
  for (int tenths = 0; Execute("GetZeltoState") != kUnloaded && tenths < 300; ++tenths) {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
  }
  EXPECT_EQ(Execute("GetZeltoState"), kUnloaded);
  EXPECT_EQ(Execute("Login", kDemoName, kDemoPassword, "1"), "0");
  EndsCleanly();
  WorksTheNextTime();
}

TEST_F(ARuntimeThatFails, DuringTheHandshakeLeavesTheEngineUsable) {
  FollowScenario("exit frame=1 how=kill\n");
  SwitchOn();
  for (int tenths = 0; Execute("GetZeltoState") != kUnloaded && tenths < 300; ++tenths) {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
  }
  EXPECT_EQ(Execute("GetZeltoState"), kUnloaded);
  EndsCleanly();
  WorksTheNextTime();
}

TEST_F(ARuntimeThatFails, InTheMiddleOfAReplyEndsTheCommandEmpty) {
  SwitchOnAndWait();
  SignIn();
  // The beginning of a frame of 32 bytes, and then the end.
  EXPECT_THAT(Door(R"({"order":"raw","hex":"0000002023"})"), HasSubstr("ok"));
  SignalRuntime(SIGKILL);
  EXPECT_EQ(Execute("GetMicVolume"), "0");
  EXPECT_EQ(Execute("GetMicVolume"), "0");
  EndsCleanly();
  WorksTheNextTime();
}

TEST_F(ARuntimeThatFails, WhileIdleIsNoticedAndTheEngineStaysUsable) {
  SwitchOnAndWait();
  SignIn();
  SignalRuntime(SIGKILL);
  for (int tenths = 0; Execute("GetMicVolume") != "0" && tenths < 100; ++tenths) {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
  }
  EXPECT_EQ(Execute("GetMicVolume"), "0");
  EXPECT_EQ(Execute("GetZeltoState"), kLoaded);
  EndsCleanly();
  WorksTheNextTime();
}

TEST_F(ARuntimeThatFails, ByStoppingWhileACommandWaitsIsKilledWhenTheEngineEnds) {
  SwitchOnAndWait();
  SignIn();
  SignalRuntime(SIGSTOP);
  std::atomic<bool> answered{false};
  std::thread host([&, &engine = Engine()] {
    engine.Execute("GetMicVolume", nullptr, nullptr, nullptr, nullptr);
    answered = true;
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  EXPECT_FALSE(answered);
  EndsCleanly();
  host.join();
  EXPECT_TRUE(answered);
  WorksTheNextTime();
}

TEST_F(ARuntimeThatFails, NeverGrowsTheProcessOverThreeRounds) {
  SwitchOnAndWait();
  SignIn();
  SwitchOff();
  const SurvivalCheck survival;
  for (int round = 0; round < 3; ++round) {
    SwitchOnAndWait();
    SignIn();
    Execute("Logout", "0");
    SwitchOff();
  }
}

}  // namespace test
