#include "Common/Platform.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <sys/ipc.h>
#include <sys/resource.h>
#include <sys/shm.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>

#include <atomic>
#include <cstring>

// A television's process may have a timed wait of its own, which takes what the standard one takes.
extern "C" __attribute__((weak)) int pthread_cond_timedwait_relative(pthread_cond_t*, pthread_mutex_t*,
                                                                     const timespec*);

namespace zelto {

namespace {

constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
constexpr int kHighestNice = -20;

std::int64_t ReadClock(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return now.tv_sec * kNanosecondsPerSecond + now.tv_nsec;
}

timespec ClockAfter(clockid_t clock, std::int64_t nanoseconds) {
  const std::int64_t end = ReadClock(clock) + nanoseconds;
  return {end / kNanosecondsPerSecond, end % kNanosecondsPerSecond};
}

Platform g_operatingSystem;
std::atomic<Platform*> g_system{&g_operatingSystem};

}  // namespace

std::int64_t Platform::Now() { return ReadClock(CLOCK_MONOTONIC); }

std::int64_t Platform::WallClock() { return ReadClock(CLOCK_REALTIME) / 1000; }

void Platform::Sleep(std::int64_t nanoseconds) {
  if (nanoseconds <= 0) return;
  timespec left{nanoseconds / kNanosecondsPerSecond, nanoseconds % kNanosecondsPerSecond};
  while (nanosleep(&left, &left) != 0 && errno == EINTR) {
  }
}

int Platform::CreateThread(pthread_t* handle, void* (*body)(void*), void* argument) {
  return pthread_create(handle, nullptr, body, argument);
}

int Platform::RaiseThreadPriority() {
  setpriority(PRIO_PROCESS, 0, kHighestNice);
  sched_param priority{};
  priority.sched_priority = sched_get_priority_max(SCHED_FIFO);
  sched_setscheduler(0, SCHED_FIFO, &priority);
  return nice(0);
}

int Platform::WaitCondition(pthread_cond_t* condition, pthread_mutex_t* mutex, std::int64_t nanoseconds) {
  if (nanoseconds <= 0) return ETIMEDOUT;
  const timespec end = ClockAfter(CLOCK_MONOTONIC, nanoseconds);
  return pthread_cond_clockwait(condition, mutex, CLOCK_MONOTONIC, &end);
}

int Platform::LockMutex(pthread_mutex_t* mutex, std::int64_t nanoseconds) {
  if (nanoseconds <= 0) return pthread_mutex_trylock(mutex);
#if defined(__SANITIZE_THREAD__)  // which does not know the other call
  const timespec end = ClockAfter(CLOCK_REALTIME, nanoseconds);
  return pthread_mutex_timedlock(mutex, &end);
#else
  const timespec end = ClockAfter(CLOCK_MONOTONIC, nanoseconds);
  return pthread_mutex_clocklock(mutex, CLOCK_MONOTONIC, &end);
#endif
}

int Platform::WaitConditionByWallClock(pthread_cond_t* condition, pthread_mutex_t* mutex,
                                       std::int64_t nanoseconds) {
  const timespec end = ClockAfter(CLOCK_REALTIME, nanoseconds);
  return pthread_cond_timedwait_relative != nullptr ? pthread_cond_timedwait_relative(condition, mutex, &end)
                                                    : pthread_cond_timedwait(condition, mutex, &end);
}

pid_t Platform::WaitPid(pid_t pid, int* status, int options) { return waitpid(pid, status, options); }

int Platform::Kill(pid_t pid, int signal) { return kill(pid, signal); }

int Platform::Socket(int family, int type, int protocol) {
  return socket(family, type | SOCK_CLOEXEC, protocol);
}

int Platform::Connect(int descriptor, const sockaddr* address, socklen_t length) {
  return connect(descriptor, address, length);
}

int Platform::Shutdown(int descriptor, int how) { return shutdown(descriptor, how); }

int Platform::Close(int descriptor) { return close(descriptor); }

ssize_t Platform::Read(int descriptor, void* buffer, std::size_t size) {
  return read(descriptor, buffer, size);
}

ssize_t Platform::WriteSocket(int descriptor, const void* data, std::size_t size) {
  return send(descriptor, data, size, MSG_NOSIGNAL);
}

int Platform::WaitReadable(int descriptor, int milliseconds) {
  pollfd waited{descriptor, POLLIN, 0};
  return poll(&waited, 1, milliseconds);
}

int Platform::Open(const char* path, int flags, mode_t mode) { return open(path, flags | O_CLOEXEC, mode); }

ssize_t Platform::Write(int descriptor, const void* data, std::size_t size) {
  return write(descriptor, data, size);
}

int Platform::Access(const char* path, int mode) { return access(path, mode); }

int Platform::MakeDirectory(const char* path, mode_t mode) { return mkdir(path, mode); }

int Platform::Unlink(const char* path) { return unlink(path); }

bool Platform::ListDirectory(const char* path, std::vector<std::string>& names) {
  names.clear();
  dirent** entries = nullptr;
  const int count = scandir(path, &entries, nullptr, alphasort);
  for (int i = 0; i < count; ++i) {
    names.emplace_back(entries[i]->d_name);
    std::free(entries[i]);
  }
  std::free(entries);
  return count >= 0;
}

void Platform::LimitBlocking(int descriptor, int milliseconds) {
  const timeval limit{milliseconds / 1000, milliseconds % 1000 * 1000};
  setsockopt(descriptor, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

int Platform::LockFile(int descriptor) {
  struct flock whole {};
  whole.l_type = F_WRLCK;
  whole.l_whence = SEEK_SET;
  return fcntl(descriptor, F_SETLK, &whole);
}

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
