// The fast clock of the tours, which leaves the machine the time that it really takes.
#pragma once

#include <atomic>

#include "tests/support/FastClock.h"

namespace test {

// Whether the process lives, and is not just waiting to be reaped.
bool Lives(pid_t process);

// What the engine allows the system for starting or ending a process becomes a few milliseconds on a fast
// clock. So a runtime that lives is waited for until it listens, and one that was killed until it has ended;
// nothing waits for the machine's disks.
class TourClock : public FastClock {
 public:
  using FastClock::FastClock;

  // A clock that stays for the life of the process, also when another one has taken its place.
  static TourClock& Make(std::int64_t factor);

  pid_t Spawn(const zelto::SpawnRequest& request) override;
  int Connect(int descriptor, const sockaddr* address, socklen_t length) override;
  int Kill(pid_t pid, int signal) override;
  pid_t WaitPid(pid_t pid, int* status, int options) override;
  void Sync() override {}

  // The process that was started last: the runtime, right after a load.
  pid_t Started() const { return m_started; }

 private:
  std::atomic<pid_t> m_started{0};
  std::atomic<pid_t> m_killed{0};
};

}  // namespace test
