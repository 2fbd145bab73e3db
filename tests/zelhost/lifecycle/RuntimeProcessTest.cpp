#include "zelhost/lifecycle/RuntimeProcess.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>

#include "Common/Log.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/FastClock.h"
#include "tests/support/Watchdog.h"
#include "zelhost/EnginePaths.h"

using zelhost::RuntimeProcess;

namespace {

// Counts signals, and refuses threads when told.
class Observer : public test::FastClock {
 public:
  using FastClock::FastClock;
  int Kill(pid_t pid, int signal) override {
    ++m_signals;
    return Platform::Kill(pid, signal);
  }
  int CreateThread(pthread_t* handle, void* (*body)(void*), void* argument) override {
    return m_refuseThreads ? EAGAIN : Platform::CreateThread(handle, body, argument);
  }

  pid_t WaitPid(pid_t pid, int* status, int options) override {
    return m_letNobodyEnd ? 0 : Platform::WaitPid(pid, status, options);
  }

  std::atomic<int> m_signals{0};
  std::atomic<bool> m_letNobodyEnd{false};
  std::atomic<bool> m_refuseThreads{false};
};

class ARuntimeProcess : public testing::Test {
 protected:
  // Whatever a test did, no child is left: not even a dead one.
  ~ARuntimeProcess() override {
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
  }

  std::shared_ptr<RuntimeProcess> Start(const std::string& script = "exec sleep 600") {
    m_device.InstallRuntime(script);
    return RuntimeProcess::Start(zelhost::kRuntimeExecutable, "17");
  }
  // Until the condition holds, in steps of real time.
  template <class Condition>
  static bool Eventually(Condition condition) {
    for (int step = 0; step < 2000; ++step) {
      if (condition()) return true;
      zelto::Platform().Sleep(5 * zelto::kNanosecondsPerMillisecond);
    }
    return false;
  }

  test::Watchdog m_watchdog{60};
  test::DeviceRoot m_device;
  Observer m_platform{20};
};

TEST_F(ARuntimeProcess, IsStartedWithItsCommandLineItsHomeAndNoForeignDescriptors) {
  constexpr int kForeign = 77;
  ASSERT_EQ(dup2(STDERR_FILENO, kForeign), kForeign);  // which a careless host leaves open
  const auto process = Start(
      "{ echo \"$0 $*\"; echo \"$HOME\"; pwd; echo \"$ZELTO_DEVICE_ROOT\"\n"
      "[ -e /proc/$$/fd/77 ] && echo inherited; } > \"$HOME/out\"\n"
      "mv out ready\nexec sleep 600");
  close(kForeign);
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(RuntimeProcess::Current(), process);
  const std::string home = m_device / zelhost::kEngineHome;
  const std::string ready = std::string(zelhost::kEngineHome) + "/ready";
  ASSERT_TRUE(Eventually([&] { return m_device.Has(ready); }));
  EXPECT_EQ(m_device.Read(ready), home + "/zelhost -s " + (m_device / "/dtv/socket") + " -x -o -m 17\n" +
                                      home + "\n" + home + "\n" + m_device.Path() + "\n");
  process->Reap();
}

TEST_F(ARuntimeProcess, IsKilledAfterASecondWhenItIgnoresTheStopRequest) {
  const auto process = Start("trap '' TERM\ntouch deaf\nexec sleep 600");
  ASSERT_NE(process, nullptr);
  ASSERT_TRUE(Eventually([&] { return m_device.Has(std::string(zelhost::kEngineHome) + "/deaf"); }));
  process->RequestStop();
  const std::int64_t before = m_platform.Now();
  process->Reap();
  EXPECT_GE(m_platform.Now() - before, 1'000 * zelto::kNanosecondsPerMillisecond);
  EXPECT_FALSE(process->IsRunning());
  EXPECT_EQ(process->GetPid(), 0);
  EXPECT_EQ(RuntimeProcess::Current(), nullptr);
}

TEST_F(ARuntimeProcess, IsKilledThoughStoppedAndItsConnectionBroken) {
  const auto process = Start();
  ASSERT_NE(process, nullptr);
  std::atomic<int> broken{0};
  process->SetConnectionBreaker([&] { ++broken; });
  kill(process->GetPid(), SIGSTOP);
  process->KillIn(3'000);
  process->KillIn(600'000);  // never prolongs
  EXPECT_TRUE(Eventually([&] { return !process->IsRunning(); }));
  EXPECT_TRUE(Eventually([&] { return broken == 1; }));
  // A connection that comes up after the kill must not be waited for either.
  process->SetConnectionBreaker([&] { broken += 10; });
  EXPECT_EQ(broken, 11);
  process->SetConnectionBreaker(nullptr);
}

TEST_F(ARuntimeProcess, LivesOnWhenTheKillIsCancelledInTime) {
  const auto process = Start();
  ASSERT_NE(process, nullptr);
  process->KillIn(2'000);
  process->CancelKill();
  zelto::SleepMilliseconds(4'000);
  EXPECT_TRUE(process->IsRunning());
  process->KillIn(100);
  EXPECT_TRUE(Eventually([&] { return !process->IsRunning(); }));
}

TEST_F(ARuntimeProcess, IsKilledAtOnceWhenNobodyCanWatchTheTime) {
  const auto process = Start();
  ASSERT_NE(process, nullptr);
  m_platform.m_refuseThreads = true;
  process->KillIn(600'000);
  EXPECT_TRUE(Eventually([&] { return !process->IsRunning(); }));
}

TEST_F(ARuntimeProcess, IsNeverSignalledOnceItIsNoChildAnyMore) {
  const auto process = Start();
  ASSERT_NE(process, nullptr);
  const pid_t pid = process->GetPid();
  kill(pid, SIGKILL);
  ASSERT_EQ(waitpid(pid, nullptr, 0), pid);  // a host that collects its children
  process->RequestStop();
  process->Kill();
  process->Reap();
  EXPECT_EQ(m_platform.m_signals, 0);
}

TEST_F(ARuntimeProcess, IsStartedAndEndedUnderAHostThatIgnoresItsChildren) {
  const auto before = std::signal(SIGCHLD, SIG_IGN);
  auto process = Start();
  ASSERT_NE(process, nullptr);
  EXPECT_TRUE(process->IsRunning());
  process->RequestStop();
  process->Reap();
  EXPECT_FALSE(process->IsRunning());
  std::signal(SIGCHLD, before);
}

TEST_F(ARuntimeProcess, IsNotLeftBehindByAnOwnerWhoForgetsIt) {
  auto process = Start("trap '' TERM\nexec sleep 600");
  ASSERT_NE(process, nullptr);
  const pid_t pid = process->GetPid();
  process->KillIn(600'000);
  process.reset();
  EXPECT_EQ(kill(pid, 0), -1);
  EXPECT_EQ(RuntimeProcess::Current(), nullptr);
}

TEST_F(ARuntimeProcess, IsCollectedByTheNextOneWhenTheSystemDoesNotLetItEndInTime) {
  auto process = Start();
  ASSERT_NE(process, nullptr);
  const pid_t pid = process->GetPid();
  m_platform.m_letNobodyEnd = true;
  process->Reap();
  process.reset();
  m_platform.m_letNobodyEnd = false;
  ASSERT_TRUE(Eventually([&] {
    siginfo_t ended{};
    return waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           ended.si_pid == pid;
  }));
  process = Start();
  EXPECT_EQ(waitpid(pid, nullptr, WNOHANG), -1);
  process.reset();
}

}  // namespace
