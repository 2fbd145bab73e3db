#include "zelhost/lifecycle/RuntimeProcess.h"

#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include <algorithm>
#include <vector>

#include "Common/DevicePath.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "zelhost/EnginePaths.h"

namespace zelhost {

namespace {

constexpr int kStep = 10;             // milliseconds between two looks at a clock, a flag or the process
constexpr int kLooksForTheEnd = 101;  // about a second: what a runtime may take to end

zelto::Mutex g_currentLock{zelto::LockRank::Leaf, "current runtime"};
std::weak_ptr<RuntimeProcess> g_current ZELTO_GUARDED_BY(g_currentLock);

void MakeCurrent(const std::shared_ptr<RuntimeProcess>& process) {
  zelto::MutexLock lock(g_currentLock);
  g_current = process;
}

// Killed ones that the system did not let end in time, as with a disk that does not answer: whoever starts
// or ends the next one collects them.
std::vector<pid_t> g_late ZELTO_GUARDED_BY(g_currentLock);

void LeaveToTheNext(pid_t pid) {
  zelto::MutexLock lock(g_currentLock);
  g_late.push_back(pid);
}

void ReapLateOnes() {
  zelto::MutexLock lock(g_currentLock);
  const auto hasEnded = [](pid_t pid) {
    int status = 0;
    return zelto::System().WaitPid(pid, &status, WNOHANG) != 0;
  };
  g_late.erase(std::remove_if(g_late.begin(), g_late.end(), hasEnded), g_late.end());
}

// The engine's own variables with the engine's home as the runtime's.
std::vector<std::string> ChildEnvironment(const std::string& home) {
  std::vector<std::string> variables;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    if (std::strncmp(*variable, "HOME=", 5) != 0) variables.emplace_back(*variable);
  }
  variables.push_back("HOME=" + home);
  return variables;
}

zelto::SpawnRequest MakeRequest(const std::string& executable, const std::string& clockDifference) {
  zelto::SpawnRequest request;
  request.executable = zelto::DevicePath(executable);
  request.arguments = {request.executable, "-s", zelto::DevicePath(kProtocolSocket), "-x", "-o", "-m",
                       clockDifference};
  request.directory = zelto::DevicePath(kEngineHome);
  request.environment = ChildEnvironment(request.directory);
  request.closeDescriptors = true;
  request.directoryFailure = "error chdir : %s\n";
  if (zelto::LogEnabled(zelto::LogLevel::Debug))
    request.executionFailure = "[ZELTO_DEBUG]Cannot execute ZelHost!\n";
  return request;
}

}  // namespace

std::shared_ptr<RuntimeProcess> RuntimeProcess::Start(const std::string& executable,
                                                      const std::string& clockDifference) {
  ZELTO_DEBUG("[StartZelhost] Enter execv (cmd:%s) \n", executable.c_str());
  ReapLateOnes();
  const pid_t pid = zelto::System().Spawn(MakeRequest(executable, clockDifference));
  if (pid <= 0) return nullptr;
  const std::shared_ptr<RuntimeProcess> process(new RuntimeProcess(pid));
  ZELTO_DEBUG("[StartZelHost] Enter waitpid");
  if (!process->IsRunning()) {
    ZELTO_FATAL("Error in ZelHost!!!");
    return nullptr;
  }
  MakeCurrent(process);
  return process;
}

std::shared_ptr<RuntimeProcess> RuntimeProcess::Current() {
  zelto::MutexLock lock(g_currentLock);
  return g_current.lock();
}

RuntimeProcess::~RuntimeProcess() {
  m_stopGuard = true;
  CZeltoThread::Destroy();
  ReapLateOnes();
  if (!IsRunning()) return;
  Kill();
  if (!WaitForEnd()) LeaveToTheNext(m_pid);
}

// A host that ignores or collects its children takes the status away: no such child means ended.
bool RuntimeProcess::HasEnded() {
  if (m_pid == 0) return true;
  int status = 0;
  if (zelto::System().WaitPid(m_pid, &status, WNOHANG) == 0) return false;
  m_pid = 0;
  return true;
}

bool RuntimeProcess::IsRunning() {
  zelto::MutexLock lock(m_lock);
  return !HasEnded();
}

void RuntimeProcess::Signal(int signal) {
  zelto::MutexLock lock(m_lock);
  if (!HasEnded()) zelto::System().Kill(m_pid, signal);
}

void RuntimeProcess::RequestStop() { Signal(SIGTERM); }

void RuntimeProcess::Kill() {
  Signal(SIGKILL);
  zelto::MutexLock lock(m_breakerLock);
  m_killed = true;
  BreakConnection();
}

void RuntimeProcess::BreakConnection() {
  if (m_breaker) m_breaker();
}

void RuntimeProcess::SetConnectionBreaker(std::function<void()> breaker) {
  zelto::MutexLock lock(m_breakerLock);
  m_breaker = std::move(breaker);
  if (m_killed) BreakConnection();
}

void RuntimeProcess::KillIn(int milliseconds) {
  const std::int64_t deadline = zelto::System().Now() + milliseconds * zelto::kNanosecondsPerMillisecond;
  std::int64_t present = m_deadline.load();
  while (deadline < present && !m_deadline.compare_exchange_weak(present, deadline)) {
  }
  zelto::MutexLock lock(m_guardLock);
  if (!m_guarded) m_guarded = CZeltoThread::Create("MoIPRuntimeGuard");
  if (!m_guarded) Kill();
}

void RuntimeProcess::t_Main() {
  while (!m_stopGuard) {
    if (zelto::System().Now() >= m_deadline) {
      ZELTO_FATAL("zelhost doesn't answer, killing it");
      Kill();
      return;
    }
    zelto::SleepMilliseconds(kStep);
  }
}

bool RuntimeProcess::WaitForEnd() {
  for (int look = 0; look < kLooksForTheEnd; ++look) {
    if (!IsRunning()) return true;
    ZELTO_DEBUG("waiting zelhost killed");
    zelto::SleepMilliseconds(kStep);
  }
  return false;
}

void RuntimeProcess::Reap() {
  if (!WaitForEnd()) {
    ZELTO_FATAL("zelhost ignores the stop request, killing it");
    Kill();
    if (!WaitForEnd()) ZELTO_FATAL("zelhost can't be killed");
  }
  MakeCurrent(nullptr);
}

}  // namespace zelhost
