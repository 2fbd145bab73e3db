#include "Common/Platform.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"

namespace {

class AChild : public testing::Test {
 protected:
  AChild() {
    char folder[] = "/tmp/zelto-child-XXXXXX";
    m_folder = mkdtemp(folder);
  }
  ~AChild() override { std::filesystem::remove_all(m_folder); }

  zelto::SpawnRequest Shell(const std::string& command) const {
    zelto::SpawnRequest request;
    request.executable = "/bin/sh";
    request.arguments = {"sh", "-c", "{ " + command + "; } > " + m_folder + "/said"};
    return request;
  }

  static int StatusOf(const zelto::SpawnRequest& request) {
    const pid_t pid = zelto::System().Spawn(request);
    EXPECT_GT(pid, 0);
    int status = -1;
    EXPECT_EQ(zelto::System().WaitPid(pid, &status, 0), pid);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  std::string Said(const zelto::SpawnRequest& request) const {
    EXPECT_EQ(StatusOf(request), 0);
    std::ifstream file(m_folder + "/said");
    return {std::istreambuf_iterator<char>(file), {}};
  }

  std::string m_folder;
  test::Watchdog m_watchdog{120};
  test::SurvivalCheck m_survival;
};

TEST_F(AChild, GetsItsArgumentsEnvironmentAndDirectory) {
  zelto::SpawnRequest request = Shell("echo $0 $HOME $OTHER; pwd");
  request.arguments[0] = "ignored";
  request.arguments.push_back("name");
  request.environment = {"HOME=/x y", "OTHER=%s"};
  request.directory = "/proc";
  EXPECT_EQ(Said(request), "name /x y %s\n/proc\n");
  setenv("ZELTO_TEST_INHERITED", "yes", 1);
  EXPECT_EQ(Said(Shell("echo $ZELTO_TEST_INHERITED")), "yes\n");
  unsetenv("ZELTO_TEST_INHERITED");
}

TEST_F(AChild, SaysWhatFailsAndEndsWithTheStatusAskedFor) {
  zelto::SpawnRequest request = Shell("true");
  request.executable = m_folder + "/missing";
  request.directory = m_folder + "/nowhere";
  request.directoryFailure = "error chdir : %s\n";
  request.executionFailure = "Cannot execute!\n";
  testing::internal::CaptureStdout();
  EXPECT_EQ(StatusOf(request), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "error chdir : No such file or directory\nCannot execute!\n");
  request.failureStatus = 7;
  EXPECT_EQ(StatusOf(request), 7);
}

TEST_F(AChild, InheritsNoDescriptorWhenAskedTo) {
  const int inherited = open("/dev/null", O_RDONLY);
  const std::string command = "test -e /proc/self/fd/" + std::to_string(inherited) + " && echo open; true";
  zelto::SpawnRequest request = Shell(command);
  EXPECT_EQ(Said(request), "open\n");
  request.closeDescriptors = true;
  EXPECT_EQ(Said(request), "");
  EXPECT_EQ(fcntl(inherited, F_GETFD), 0);  // the parent's own stays as it was
  close(inherited);
}

std::atomic<int> g_handled{0};

TEST_F(AChild, HasNoHandlersAndNoBlockedSignalsOfTheParentWhichKeepsBoth) {
  void (*before)(int) = std::signal(SIGUSR1, [](int) { ++g_handled; });
  EXPECT_EQ(StatusOf(Shell("kill -USR1 $$")), -1);  // ended by the signal
  std::raise(SIGUSR1);
  EXPECT_EQ(g_handled, 1);
  std::signal(SIGUSR1, before);
}

TEST_F(AChild, StartsFromManyThreadsAtOnce) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&] {
      zelto::SpawnRequest request;
      request.executable = "/bin/sh";
      request.arguments = {"sh", "-c", "exit 5"};
      for (int round = 0; round < 10; ++round) EXPECT_EQ(StatusOf(request), 5);
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(ThePlatform, RaisesNoSignalForAClosedSocketAndClosesDescriptorsOnExecution) {
  int pair[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, pair), 0);
  close(pair[1]);
  EXPECT_EQ(zelto::System().WriteSocket(pair[0], "x", 1), -1);
  EXPECT_EQ(errno, EPIPE);
  close(pair[0]);
  const int socket = zelto::System().Socket(AF_UNIX, SOCK_STREAM, 0);
  const int file = zelto::System().Open("/dev/null", O_RDONLY, 0);
  EXPECT_EQ(fcntl(socket, F_GETFD), FD_CLOEXEC);
  EXPECT_EQ(fcntl(file, F_GETFD), FD_CLOEXEC);
  zelto::System().Close(socket);
  zelto::System().Close(file);
}

TEST(ThePlatform, WaitsForDescriptorsWhateverTheirNumber) {
  int pair[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, pair), 0);
  const int high = fcntl(pair[0], F_DUPFD_CLOEXEC, 1500);
  if (high < 0) GTEST_SKIP() << "no descriptors that high";
  EXPECT_EQ(zelto::System().WaitReadable(high, 0), 0);
  ASSERT_EQ(write(pair[1], "x", 1), 1);
  EXPECT_EQ(zelto::System().WaitReadable(high, -1), 1);
  for (const int descriptor : {high, pair[0], pair[1]}) close(descriptor);
}

}  // namespace
