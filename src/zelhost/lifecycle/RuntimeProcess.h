#pragma once

#include <sys/types.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "Common/Locks.h"
#include "Common/ZeltoThread.h"

namespace zelhost {

// One run of the runtime's process, from its start until it has been reaped. There is at most one at a
// time; it can be killed from any thread without waiting for whoever talks to it.
// Threads: any. The process id is only used while the process is known to be this one's child, so that
// a number which the system has given to another process meanwhile is never signalled.
class RuntimeProcess : private zelto::CZeltoThread {
 public:
  // Starts the executable (a path of the television) and makes it the current one. `clockDifference` is
  // the last argument of its command line. Null when it could not be started or has ended at once.
  static std::shared_ptr<RuntimeProcess> Start(const std::string& executable,
                                               const std::string& clockDifference);
  // The one that runs, or null.
  static std::shared_ptr<RuntimeProcess> Current();

  // Kills and reaps what is left, and ends the guard. A process that the system does not let end even then
  // is reaped when the next one starts or goes.
  ~RuntimeProcess() override;

  // 0 once it has been reaped.
  pid_t GetPid() const { return m_pid.load(); }
  // False once the process has ended; reaps it then.
  bool IsRunning();
  // SIGTERM.
  void RequestStop();
  // SIGKILL, and breaks the connection, so that nobody goes on waiting for an answer.
  void Kill();

  // From now on the process is killed when that time has passed before CancelKill(). A later call may
  // shorten it, never prolong it. Without a thread to watch the time it is killed at once.
  void KillIn(int milliseconds);
  void CancelKill() { m_deadline = kNever; }

  // What Kill() does to the connection besides; called on any thread, null for nothing. Once it has been
  // replaced, no thread is inside the former one. After a Kill() it is called right here.
  void SetConnectionBreaker(std::function<void()> breaker);

  // Waits for the end as long as a runtime may take, about a second, then kills it; reaps it either way.
  void Reap();

 private:
  static constexpr std::int64_t kNever = INT64_MAX;

  explicit RuntimeProcess(pid_t pid) : m_pid(pid) {}
  void t_Main() override;
  void Signal(int signal);
  void BreakConnection() ZELTO_REQUIRES(m_breakerLock);
  bool HasEnded() ZELTO_REQUIRES(m_lock);
  bool WaitForEnd();

  zelto::Mutex m_lock{zelto::LockRank::Leaf, "runtime process"};
  std::atomic<pid_t> m_pid;  // changed under the lock
  zelto::Mutex m_breakerLock{zelto::LockRank::Leaf, "connection breaker"};
  std::function<void()> m_breaker ZELTO_GUARDED_BY(m_breakerLock);
  bool m_killed ZELTO_GUARDED_BY(m_breakerLock) = false;
  zelto::Mutex m_guardLock{zelto::LockRank::Unranked, "runtime guard"};
  bool m_guarded ZELTO_GUARDED_BY(m_guardLock) = false;
  std::atomic<std::int64_t> m_deadline{kNever};  // when the guard kills, on the platform's clock
  std::atomic<bool> m_stopGuard{false};
};

}  // namespace zelhost
