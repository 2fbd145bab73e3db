#include "Common/Platform.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>

namespace zelto {

namespace {

constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
constexpr int kFirstInheritedDescriptor = 3;
constexpr int kLastInheritedDescriptor = 1023;

std::int64_t ReadClock(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return now.tv_sec * kNanosecondsPerSecond + now.tv_nsec;
}

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

// The child shares no lock with a living thread, so it writes past the buffered stream.
void Say(const std::string& text) { (void)!write(STDOUT_FILENO, text.data(), text.size()); }

// Runs in the child between fork and exec: only calls that are safe there.
[[noreturn]] void BecomeProgram(const SpawnRequest& request, char* const* arguments, char* const* environment) {
  if (request.closeDescriptors) {
    for (int descriptor = kFirstInheritedDescriptor; descriptor <= kLastInheritedDescriptor; ++descriptor) {
      fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
  }
  if (!request.directory.empty() && chdir(request.directory.c_str()) != 0) Say(request.directoryFailure);
  execve(request.executable.c_str(), arguments, environment);
  Say(request.executionFailure);
  _exit(0);
}

Platform g_operatingSystem;
std::atomic<Platform*> g_system{&g_operatingSystem};

}  // namespace

std::int64_t Platform::Now() { return ReadClock(CLOCK_MONOTONIC); }

std::int64_t Platform::WallClock() { return ReadClock(CLOCK_REALTIME) / 1000; }

void Platform::Sleep(std::int64_t nanoseconds) {
  if (nanoseconds <= 0) return;
  timespec left{nanoseconds / kNanosecondsPerSecond, nanoseconds % kNanosecondsPerSecond};
  while (nanosleep(&left, &left) != 0 && errno == EINTR) {}
}

int Platform::CreateThread(pthread_t* handle, void* (*body)(void*), void* argument) {
  return pthread_create(handle, nullptr, body, argument);
}

pid_t Platform::Spawn(const SpawnRequest& request) {
  const std::vector<char*> arguments = Pointers(request.arguments);
  const std::vector<char*> environment = Pointers(request.environment);
  char* const* variables = request.environment.empty() ? environ : environment.data();
  const pid_t pid = fork();
  if (pid == 0) BecomeProgram(request, arguments.data(), variables);
  return pid;
}

pid_t Platform::WaitPid(pid_t pid, int* status, int options) { return waitpid(pid, status, options); }

int Platform::Kill(pid_t pid, int signal) { return kill(pid, signal); }

int Platform::Socket(int family, int type, int protocol) { return socket(family, type | SOCK_CLOEXEC, protocol); }

int Platform::Connect(int descriptor, const sockaddr* address, socklen_t length) {
  return connect(descriptor, address, length);
}

int Platform::Shutdown(int descriptor, int how) { return shutdown(descriptor, how); }

int Platform::Close(int descriptor) { return close(descriptor); }

ssize_t Platform::Read(int descriptor, void* buffer, std::size_t size) { return read(descriptor, buffer, size); }

ssize_t Platform::WriteSocket(int descriptor, const void* data, std::size_t size) {
  return send(descriptor, data, size, MSG_NOSIGNAL);
}

int Platform::WaitReadable(int descriptor, int milliseconds) {
  pollfd waited{descriptor, POLLIN, 0};
  return poll(&waited, 1, milliseconds);
}

int Platform::Open(const char* path, int flags, mode_t mode) { return open(path, flags | O_CLOEXEC, mode); }

void Platform::Sync() { sync(); }

key_t Platform::Ftok(const char* path, int project) { return ftok(path, project); }

int Platform::ShmGet(key_t key, std::size_t size, int flags) { return shmget(key, size, flags); }

void* Platform::ShmAt(int id) { return shmat(id, nullptr, 0); }

int Platform::ShmDt(const void* address) { return shmdt(address); }

int Platform::ShmCtl(int id, int command, ::shmid_ds* buffer) { return shmctl(id, command, buffer); }

Platform& System() { return *g_system.load(std::memory_order_acquire); }

Platform* SetSystem(Platform* platform) {
  return g_system.exchange(platform == nullptr ? &g_operatingSystem : platform);
}

}  // namespace zelto
