#include "tests/support/Watchdog.h"

#include <dirent.h>
#include <execinfo.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace test {

namespace {

constexpr int kDumpSignal = SIGUSR2;
constexpr int kFrames = 64;

void Say(const char* text, std::size_t size) { (void)!write(STDERR_FILENO, text, size); }
void Say(const char* text) { Say(text, std::strlen(text)); }

void SayName(const char* task) {
  char path[300];
  std::snprintf(path, sizeof path, "/proc/self/task/%s/comm", task);
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  char name[32];
  const ssize_t size = read(file, name, sizeof name);
  if (size > 0) Say(name, static_cast<std::size_t>(size));
  close(file);
}

// Runs on the thread that is asked for its stack.
void DumpOwnStack(int) {
  void* frames[kFrames];
  backtrace_symbols_fd(frames, backtrace(frames, kFrames), STDERR_FILENO);
}

void DumpThread(const char* task) {
  Say("\nthread ");
  Say(task);
  Say(": ");
  SayName(task);
  syscall(SYS_tgkill, getpid(), std::atoi(task), kDumpSignal);
  const timespec pause{0, 50'000'000};  // one thread's stack after the other
  nanosleep(&pause, nullptr);
}

void DumpAllAndAbort(int) {
  Say("\nthe watchdog's time is up\n");
  DIR* const tasks = opendir("/proc/self/task");
  for (const dirent* task = nullptr; tasks != nullptr && (task = readdir(tasks)) != nullptr;) {
    if (task->d_name[0] != '.') DumpThread(task->d_name);
  }
  std::signal(SIGABRT, SIG_DFL);
  std::abort();
}

void Handle(int signal, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  sigaction(signal, &action, nullptr);
}

}  // namespace

Watchdog::Watchdog(unsigned seconds) {
  void* frame = nullptr;
  backtrace(&frame, 1);  // loads what it needs, which a handler could not
  Handle(kDumpSignal, DumpOwnStack);
  Handle(SIGALRM, DumpAllAndAbort);
  alarm(seconds);
}

Watchdog::~Watchdog() {
  alarm(0);
  Handle(SIGALRM, SIG_DFL);
  Handle(kDumpSignal, SIG_DFL);
}

}  // namespace test
