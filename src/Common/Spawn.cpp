// Platform::Spawn: how a child process comes to be.
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>
#include <vector>

#include "Common/Platform.h"

namespace zelto {

namespace {

constexpr int kFirstInheritedDescriptor = 3;
constexpr int kLastInheritedDescriptor = 1023;

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

// Everything below down to Spawn runs in the child while it borrows the parent's memory: no allocation, no
// lock, no buffered stream, nothing of the parent changed.

void Say(const char* text, std::size_t size) { (void)!write(STDOUT_FILENO, text, size); }

void SayDirectoryFailure(const std::string& text, int error) {
  const std::size_t place = text.find("%s");
  if (place == std::string::npos) return Say(text.data(), text.size());
  const char* reason = strerrordesc_np(error);
  Say(text.data(), place);
  Say(reason, std::strlen(reason));
  Say(text.data() + place + 2, text.size() - place - 2);
}

// The parent's handlers must not run in the child; the execution would reset them anyway.
void DropSignalHandlers() {
  for (int signal = 1; signal < NSIG; ++signal) {
    struct sigaction action {};
    if (sigaction(signal, nullptr, &action) != 0) continue;
    if ((action.sa_flags & SA_SIGINFO) == 0 && (action.sa_handler == SIG_IGN || action.sa_handler == SIG_DFL))
      continue;
    action = {};
    action.sa_handler = SIG_DFL;
    sigaction(signal, &action, nullptr);
  }
}

// What the child needs, prepared before it exists.
struct Child {
  const SpawnRequest& request;
  char* const* arguments;
  char* const* environment;
  sigset_t signals;  // as the parent's thread had them
};

[[noreturn]] void BecomeProgram(const Child& child) {
  const SpawnRequest& request = child.request;
  DropSignalHandlers();
  sigprocmask(SIG_SETMASK, &child.signals, nullptr);
  if (request.closeDescriptors) {
    for (int descriptor = kFirstInheritedDescriptor; descriptor <= kLastInheritedDescriptor; ++descriptor) {
      fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
  }
  if (!request.directory.empty() && chdir(request.directory.c_str()) != 0) {
    SayDirectoryFailure(request.directoryFailure, errno);
  }
  execve(request.executable.c_str(), child.arguments, child.environment);
  Say(request.executionFailure.data(), request.executionFailure.size());
  _exit(request.failureStatus);
}

// A frame of its own, which the child does not outlive and the parent's variables do not share.
__attribute__((noinline)) pid_t Launch(const Child& child) {
  const pid_t pid = vfork();
  if (pid == 0) BecomeProgram(child);
  return pid;
}

}  // namespace

// vfork: the parent's memory is neither copied nor marked, whatever its size. No signal handler of the
// parent runs in the child, since all signals wait until the child has dropped the handlers.
pid_t Platform::Spawn(const SpawnRequest& request) {
  const std::vector<char*> arguments = Pointers(request.arguments);
  const std::vector<char*> environment = Pointers(request.environment);
  Child child{request, arguments.data(), request.environment.empty() ? environ : environment.data(), {}};
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &child.signals);
  const pid_t pid = Launch(child);
  const int error = errno;
  pthread_sigmask(SIG_SETMASK, &child.signals, nullptr);
  errno = error;
  return pid;
}

}  // namespace zelto
