#include "Common/Platform.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <string>

#include "tests/support/SurvivalCheck.h"

namespace {

class AChild : public testing::Test {
 protected:
  static zelto::SpawnRequest Shell(const std::string& command) {
    zelto::SpawnRequest request;
    request.executable = "/bin/sh";
    request.arguments = {"sh", "-c", command};
    return request;
  }

  // The exit status, -1 for a child that a signal has ended.
  static int StatusOf(const zelto::SpawnRequest& request) {
    const pid_t pid = zelto::System().Spawn(request);
    int status = -1;
    EXPECT_EQ(zelto::System().WaitPid(pid, &status, 0), pid);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  test::SurvivalCheck m_survival;
};

TEST_F(AChild, SaysWhatFailsAndEndsWithTheStatusAskedFor) {
  zelto::SpawnRequest request = Shell("true");
  request.executable = "/nowhere/program";
  request.directory = "/nowhere";
  request.directoryFailure = "error chdir : %s\n";
  request.executionFailure = "Cannot execute!\n";
  request.failureStatus = 7;
  testing::internal::CaptureStdout();
  EXPECT_EQ(StatusOf(request), 7);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "error chdir : No such file or directory\nCannot execute!\n");
}

std::atomic<int> g_handled{0};

TEST_F(AChild, HasNoHandlersAndNoBlockedSignalsOfTheParentWhichKeepsBoth) {
  void (*before)(int) = std::signal(SIGUSR1, [](int) { ++g_handled; });
  EXPECT_EQ(StatusOf(Shell("kill -USR1 $$")), -1);
  std::raise(SIGUSR1);
  EXPECT_EQ(g_handled, 1);
  std::signal(SIGUSR1, before);
}

TEST(ThePlatform, RaisesNoSignalForAClosedSocketAndClosesFilesOnExecution) {
  int pair[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, pair), 0);
  close(pair[1]);
  EXPECT_EQ(zelto::System().WriteSocket(pair[0], "x", 1), -1);
  EXPECT_EQ(errno, EPIPE);
  close(pair[0]);
  const int file = zelto::System().Open("/dev/null", O_RDONLY, 0);
  EXPECT_EQ(fcntl(file, F_GETFD), FD_CLOEXEC);
  zelto::System().Close(file);
}

}  // namespace
