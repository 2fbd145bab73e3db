// The one seam to the operating system: clocks, sleeps, threads, processes, descriptors, shared memory.
// Production code calls System().X(); the base class forwards. Tests install a subclass, so that time
// runs faster and every call can be made to fail.
#pragma once

#include <pthread.h>
#include <sys/shm.h>
#include <sys/socket.h>
#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace zelto {

// What a child process is started with; everything is prepared before the child exists.
struct SpawnRequest {
  std::string executable;                // path as the operating system knows it
  std::vector<std::string> arguments;    // argv, the first is the program's name
  std::vector<std::string> environment;  // whole "NAME=value" list; empty keeps the parent's
  std::string directory;                 // changed to before the execution; empty stays
  bool closeDescriptors = false;         // descriptors 3 to 1023 become close-on-exec in the child
  std::string directoryFailure;          // printed by the child when the directory can't be entered; a
                                         // "%s" in it stands for the system's error text
  std::string executionFailure;          // printed by the child when the execution fails
  int failureStatus = 0;                 // exit status of a child whose execution fails
};

// Threads: all operations may be called from any thread.
class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  // Time that only moves forward, in nanoseconds.
  virtual std::int64_t Now();
  // Wall-clock time, in microseconds since the epoch.
  virtual std::int64_t WallClock();
  // Sleeps at least that many nanoseconds; 0 or less returns at once.
  virtual void Sleep(std::int64_t nanoseconds);

  // pthread_create with default attributes; answers its error number, 0 on success. The caller detaches.
  virtual int CreateThread(pthread_t* handle, void* (*body)(void*), void* argument);
  // Gives the calling thread the highest nice value and the highest real-time priority it can get; what the
  // system refuses is left as it is. Answers the nice value then in force.
  virtual int RaiseThreadPriority();

  // Timed waits on this platform's clock, in nanoseconds; 0 or less does not wait. Both answer 0 or an error
  // number (ETIMEDOUT), as the pthread calls do. For zelto::Mutex and zelto::Condition.
  virtual int WaitCondition(pthread_cond_t* condition, pthread_mutex_t* mutex, std::int64_t nanoseconds);
  virtual int LockMutex(pthread_mutex_t* mutex, std::int64_t nanoseconds);
  // WaitCondition by the wall clock, through the function that a television's process provides for it; a
  // plain timed wait elsewhere.
  virtual int WaitConditionByWallClock(pthread_cond_t* condition, pthread_mutex_t* mutex,
                                       std::int64_t nanoseconds);

  // Starts a process; answers its id, or -1 with errno. Costs the same however large the caller is. The
  // caller's thread waits until the child executes the program or ends with `failureStatus`.
  virtual pid_t Spawn(const SpawnRequest& request);
  virtual pid_t WaitPid(pid_t pid, int* status, int options);
  virtual int Kill(pid_t pid, int signal);

  // Descriptors: as the calls of the same name, EINTR included; descriptors are close-on-exec from their
  // creation, and writing to a closed socket answers EPIPE without a signal.
  virtual int Socket(int family, int type, int protocol);
  virtual int Connect(int descriptor, const sockaddr* address, socklen_t length);
  virtual int Shutdown(int descriptor, int how);
  virtual int Close(int descriptor);
  virtual ssize_t Read(int descriptor, void* buffer, std::size_t size);
  virtual ssize_t WriteSocket(int descriptor, const void* data, std::size_t size);
  // Waits for readability (or end of stream); milliseconds as poll: -1 for ever, 0 at once.
  // Answers 1 ready, 0 timed out, -1 with errno. Any descriptor number is fine.
  virtual int WaitReadable(int descriptor, int milliseconds);
  virtual ssize_t Write(int descriptor, const void* data, std::size_t size);

  // Files, as the calls of the same name.
  virtual int Open(const char* path, int flags, mode_t mode);
  virtual int Access(const char* path, int mode);
  virtual int MakeDirectory(const char* path, mode_t mode);
  virtual int Unlink(const char* path);
  // Fills in the names of a folder's entries in alphabetical order, "." and ".." included. False, without
  // names, when the folder can't be read.
  virtual bool ListDirectory(const char* path, std::vector<std::string>& names);
  // Takes the write lock over the whole file without waiting; -1 with errno when another process has it.
  // It ends with the descriptor.
  virtual int LockFile(int descriptor);
  // How long a connection or a write may block, 0 for ever. Failures are ignored.
  virtual void LimitBlocking(int descriptor, int milliseconds);
  // Writes what the system still holds to the disks.
  virtual void Sync();

  // System V shared memory, as the calls of the same name.
  virtual key_t Ftok(const char* path, int project);
  virtual int ShmGet(key_t key, std::size_t size, int flags);
  virtual void* ShmAt(int id);
  virtual int ShmDt(const void* address);
  virtual int ShmCtl(int id, int command, ::shmid_ds* buffer);
};

// The platform in force.
Platform& System();

// Installs another one (null: the operating system again) and answers the one before. For tests, while
// no engine thread runs.
Platform* SetSystem(Platform* platform);

constexpr std::int64_t kNanosecondsPerMillisecond = 1'000'000;

inline void SleepMilliseconds(std::int64_t milliseconds) {
  System().Sleep(milliseconds * kNanosecondsPerMillisecond);
}

}  // namespace zelto
