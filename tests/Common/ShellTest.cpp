#include "Common/Shell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "Common/Platform.h"
#include "tests/support/SurvivalCheck.h"

namespace {

namespace fs = std::filesystem;

// Fails or interrupts the calls that shell and copies make.
class UnreliablePlatform : public zelto::Platform {
 public:
  UnreliablePlatform() { zelto::SetSystem(this); }
  ~UnreliablePlatform() override { zelto::SetSystem(nullptr); }

  pid_t Spawn(const zelto::SpawnRequest& request) override {
    return m_refuseSpawn ? -1 : Platform::Spawn(request);
  }

  pid_t WaitPid(pid_t pid, int* status, int options) override {
    return Interrupted() ? -1 : Platform::WaitPid(pid, status, options);
  }

  ssize_t Read(int descriptor, void* buffer, std::size_t size) override {
    return Interrupted() ? -1 : Platform::Read(descriptor, buffer, size);
  }

  ssize_t Write(int descriptor, const void* data, std::size_t size) override {
    if (m_full) {
      errno = ENOSPC;
      return -1;
    }
    return Interrupted() ? -1 : Platform::Write(descriptor, data, std::min<std::size_t>(size, 1000));
  }

  bool m_refuseSpawn = false;
  bool m_full = false;

 private:
  bool Interrupted() {
    errno = EINTR;
    return ++m_calls % 2 == 1;
  }

  int m_calls = 0;
};

TEST(AShellCommand, AnswersTheRawWaitStatus) {
  const test::SurvivalCheck survival;
  EXPECT_EQ(zelto::ExecuteShell("exit 0"), 0);
  const int status = zelto::ExecuteShell("exit 3");
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 3);
  EXPECT_TRUE(WIFSIGNALED(zelto::ExecuteShell("kill -9 $$")));
  EXPECT_EQ(zelto::ExecuteShell(nullptr), -1);
}

TEST(AShellCommand, SurvivesInterruptionsOfItsWait) {
  const test::SurvivalCheck survival;
  UnreliablePlatform unreliable;
  EXPECT_EQ(zelto::ExecuteShell("exit 0"), 0);
}

TEST(AShellCommand, AnswersMinusOneWhenNoProcessCanBeStarted) {
  UnreliablePlatform unreliable;
  unreliable.m_refuseSpawn = true;
  testing::internal::CaptureStderr();
  EXPECT_EQ(zelto::ExecuteShell("exit 0"), -1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "vfork fail\n");
}

TEST(AShellCommand, AnswersMinusOneWhenTheHostIgnoresItsChildren) {
  const test::SurvivalCheck survival;
  void (*before)(int) = std::signal(SIGCHLD, SIG_IGN);
  testing::internal::CaptureStderr();
  EXPECT_EQ(zelto::ExecuteShell("exit 0 # %s%n"), -1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "waitpid fail - Command : exit 0 # %s%n\n");
  std::signal(SIGCHLD, before);
}

class ACopy : public testing::Test {
 protected:
  ACopy() {
    char folder[] = "/tmp/zelto-copy-XXXXXX";
    m_root = mkdtemp(folder);
    setenv("ZELTO_DEVICE_ROOT", m_root.c_str(), 1);
  }
  ~ACopy() override {
    unsetenv("ZELTO_DEVICE_ROOT");
    fs::remove_all(m_root);
  }

  void Write(const std::string& path, const std::string& text) const { std::ofstream(m_root + path) << text; }

  std::string Read(const std::string& path) const {
    std::ifstream file(m_root + path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  std::string Printed(const std::string& source, const std::string& destination, int expected) const {
    testing::internal::CaptureStdout();
    EXPECT_EQ(zelto::copy(source, destination), expected);
    return testing::internal::GetCapturedStdout();
  }

  std::string m_root;
};

TEST_F(ACopy, IsWholeBelowTheDeviceRootWhateverTheSizeAndTheInterruptions) {
  const test::SurvivalCheck survival;
  std::string large(200'000, '\0');
  for (std::size_t i = 0; i < large.size(); ++i) large[i] = static_cast<char>(i * 7);
  Write("/large", large);
  Write("/empty", "");
  Write("/old", "longer than nothing");
  UnreliablePlatform unreliable;
  EXPECT_EQ(Printed("/large", "/copy", 0), "");
  EXPECT_EQ(Printed("/empty", "/old", 0), "");
  EXPECT_EQ(Read("/copy"), large);
  EXPECT_TRUE(fs::exists(m_root + "/old"));
  EXPECT_EQ(Read("/old"), "");
}

TEST_F(ACopy, FailsWithAReasonAndWithoutAnOpenFile) {
  const test::SurvivalCheck survival;
  Write("/there", "text");
  EXPECT_EQ(Printed("", "/x", -1), "[ZELTO_FATAL]\n src or dest is not valid \n");
  EXPECT_EQ(Printed("/x", "", -1), "[ZELTO_FATAL]\n src or dest is not valid \n");
  EXPECT_EQ(Printed("/missing", "/x", -1), "[ZELTO_FATAL]\n Sourcefile Doesn't exist\n");
  EXPECT_EQ(Printed("/there", "/missing/x", -1), "[ZELTO_FATAL]\n Destiantion file Doesn't exist\n");
  EXPECT_NE(Printed("/", "/x", -1), "");  // a folder can be opened but not read
  UnreliablePlatform unreliable;
  unreliable.m_full = true;
  EXPECT_NE(Printed("/there", "/x", -1), "");
}

}  // namespace
