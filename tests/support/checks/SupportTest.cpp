// The checks that other tests rely on notice what they are there for.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include "tests/support/SurvivalCheck.h"
#include "tests/support/Watchdog.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;

TEST(ASurvivalCheck, NamesEverythingThatIsLeftBehindAndNothingOnceItIsGone) {
  char folder[] = "/tmp/zelto-support-XXXXXX";
  const std::string root = mkdtemp(folder);
  test::SurvivalCheck survival({root}, 100);

  const int descriptor = open("/dev/zero", O_RDONLY);
  std::ofstream(root + "/left") << "x";
  const int segment = shmget(IPC_PRIVATE, 4096, IPC_CREAT | 0600);
  void* const attachment = shmat(segment, nullptr, 0);
  const pid_t child = fork();
  if (child == 0) _exit(0);
  std::atomic<bool> stop{false};
  std::thread thread([&] {
    pthread_setname_np(pthread_self(), "lingering");
    while (!stop) std::this_thread::yield();
  });
  EXPECT_THAT(survival.Differences(),
              AllOf(HasSubstr("+1 descriptor /dev/zero"), HasSubstr("+1 file " + root + "/left"),
                    HasSubstr("+1 segment attached /SYSV"), HasSubstr("+1 segment created "),
                    HasSubstr("+1 child "), HasSubstr("+1 thread lingering")));

  stop = true;
  thread.join();
  waitpid(child, nullptr, 0);
  shmdt(attachment);
  shmctl(segment, IPC_RMID, nullptr);
  std::filesystem::remove(root + "/left");
  close(descriptor);
  EXPECT_EQ(survival.Differences(), "");
  std::filesystem::remove(root);
}

TEST(AWatchdog, EndsATestThatHangsAndShowsEveryThread) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_DEATH(
      {
        const test::Watchdog watchdog(1);
        std::thread thread([] {
          pthread_setname_np(pthread_self(), "stuck");
          for (;;) pause();
        });
        thread.join();
      },
      "the watchdog's time is up(.|\n)*stuck");
}

TEST(AWatchdog, DoesNothingToATestThatEnds) {
  { const test::Watchdog watchdog(1); }
  EXPECT_EQ(alarm(0), 0u);
}

}  // namespace
