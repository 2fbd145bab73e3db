#include "Common/Shell.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cerrno>
#include <csignal>
#include <string>

#include "Common/Platform.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/SurvivalCheck.h"

namespace {

// Interrupts every second call that shell and copies make, and fails them when told.
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
    if (Interrupted()) return -1;
    if (!m_full) return Platform::Write(descriptor, data, std::min<std::size_t>(size, 1000));
    errno = ENOSPC;
    return -1;
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

class AHelper : public testing::Test {
 protected:
  test::SurvivalCheck m_survival;
  test::DeviceRoot m_device;
  UnreliablePlatform m_system;
};

TEST_F(AHelper, RunByTheShellAnswersTheRawWaitStatus) {
  EXPECT_EQ(zelto::ExecuteShell("exit 0"), 0);
  EXPECT_EQ(zelto::ExecuteShell("exit 3"), W_EXITCODE(3, 0));
  EXPECT_TRUE(WIFSIGNALED(zelto::ExecuteShell("kill -9 $$")));
}

TEST_F(AHelper, RunByTheShellAnswersMinusOneWhenItCannotBeStartedOrWaitedFor) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(zelto::ExecuteShell(nullptr), -1);
  void (*before)(int) = std::signal(SIGCHLD, SIG_IGN);
  EXPECT_EQ(zelto::ExecuteShell("exit 0 # %s%n"), -1);
  std::signal(SIGCHLD, before);
  m_system.m_refuseSpawn = true;
  EXPECT_EQ(zelto::ExecuteShell("exit 0"), -1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "waitpid fail - Command : exit 0 # %s%n\n"
            "vfork fail\n");
}

TEST_F(AHelper, ThatCopiesIsWholeBelowTheDeviceRootWhateverTheSizeAndTheInterruptions) {
  std::string large(200'000, '\0');
  for (std::size_t i = 0; i < large.size(); ++i) large[i] = static_cast<char>(i * 7);
  m_device.Write("/large", large);
  m_device.Write("/empty", "");
  m_device.Write("/old", "longer than nothing");
  EXPECT_EQ(zelto::copy("/large", "/copy"), 0);
  EXPECT_EQ(zelto::copy("/empty", "/old"), 0);
  EXPECT_EQ(m_device.Read("/copy"), large);
  EXPECT_TRUE(m_device.Has("/old"));
  EXPECT_EQ(m_device.Read("/old"), "");
}

TEST_F(AHelper, ThatCannotCopySaysWhyAndLeavesNoFileOpen) {
  m_device.Write("/there", "text");
  const struct {
    const char *source, *destination, *reason;
  } copies[] = {{"", "/x", "src or dest is not valid "},
                {"/x", "", "src or dest is not valid "},
                {"/missing", "/x", "Sourcefile Doesn't exist"},
                {"/there", "/missing/x", "Destiantion file Doesn't exist"},
                {"/", "/x", "Copy broke off"},  // a folder can be opened but not read
                {"/there", "/x", "Copy broke off"}};
  m_system.m_full = true;
  for (const auto& copy : copies) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(zelto::copy(copy.source, copy.destination), -1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "[ZELTO_FATAL]\n " + std::string(copy.reason) + "\n");
  }
}

}  // namespace
