#include "zelhost/lifecycle/ZelhostLifeCycle.h"

#include <fcntl.h>
#include <unistd.h>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "Common/AccountManager.h"
#include "Common/CallManager.h"
#include "Common/ChatManager.h"
#include "Common/ContactManager.h"
#include "Common/DevicePath.h"
#include "Common/HistoryManager.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "Common/Shell.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/ZESocketTransport.h"
#include "zelhost/EnginePaths.h"
#include "zelhost/Television.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/lifecycle/LifeCycleLimits.h"
#include "zelhost/lifecycle/RuntimeProcess.h"
#include "zelhost/media/ZelhostIPCManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelhost::RuntimeProcess;
using zelhost::ServiceHostLock;
using zelhost::ServiceHostMutex;

namespace {

bool IsExecutable(const std::string& path) {
  const std::string place = zelto::DevicePath(path);
  const int file = zelto::System().Open(place.c_str(), O_RDONLY, 0);
  if (file < 0) {
    ZELTO_FATAL("file open error [%s] : can not open %s\n", std::strerror(errno), path.c_str());
    return false;
  }
  zelto::System().Close(file);
  if (zelto::System().Access(place.c_str(), X_OK) == 0) return true;
  ZELTO_FATAL("can't access [%s] %s\n", std::strerror(errno), path.c_str());
  return false;
}

// How many seconds the television's clock is ahead of this machine's; never negative.
std::string ClockDifference() {
  const std::string answer = CZeltoManager::CallCommonControl("GetEpochTime");
  const long long host = std::strtoll(answer.c_str(), nullptr, 10);
  const long long local = zelto::System().WallClock() / 1'000'000;
  const long long difference = host > local ? host - local : 0;
  ZELTO_FATAL("GetEpochTime=%lld, LinuxTime=%lld, diff=%lld\n", host, local, difference);
  return std::to_string(difference);
}

void RemoveFolder(const char* folder) { zelto::ExecuteShell(("rm -rf " + zelto::ShellPath(folder)).c_str()); }

bool HoldsServiceHost() { return ServiceHostMutex::Get().IsHeldByCaller(); }

}  // namespace

CZelhostLifeCycle::CZelhostLifeCycle() { Zelto::s_lockIsHeld = HoldsServiceHost; }

CZelhostLifeCycle::~CZelhostLifeCycle() = default;

// Whoever unloads keeps the mutex until nothing runs any more, so a load never meets a half-unloaded
// service; only the unloading thread itself, through the host, can find it so.
bool CZelhostLifeCycle::Load() {
  ZELTO_DEBUG("Load Start");
  ServiceHostLock lock("Load");
  ZELTO_DEBUG("Load Start lock");
  if (m_state == ZELTO_LOADED) return false;
  const std::string executable = zelhost::HostSaysYes("SupportDoubleTalk") ? zelhost::kDoubleTalkExecutable
                                                                           : zelhost::kRuntimeExecutable;
  if (!IsExecutable(executable) || m_state != ZELTO_UNLOADED) return false;

  ZELTO_DEBUG("Change state to ZELTO_LOADING");
  m_state = ZELTO_LOADING;
  CZelhostIPCManager::GetInstance()->Initialize();
  if (StartZelHost(executable) != 0) {
    if (m_pollThread != 0) ZELTO_FATAL("Already poll event thread is running");
    if (IsCreated()) StopPollThread();
    if (!Create("MoIPPollEventThread")) ZELTO_FATAL("Nobody will listen to zelhost until the next unload");
  } else {
    ZELTO_FATAL("Fail to fork zelhost");
  }
  SetAvataPath();
  return true;
}

pid_t CZelhostLifeCycle::StartZelHost(const std::string& executable) {
  m_process = RuntimeProcess::Start(executable, ClockDifference());
  return m_process == nullptr ? 0 : m_process->GetPid();
}

void CZelhostLifeCycle::SetAvataPath() {
  const std::string folder = zelto::DevicePath(zelhost::kAvatarFolder);
  const int opened = zelto::System().Open(folder.c_str(), O_RDONLY | O_DIRECTORY, 0);
  if (opened >= 0) {
    zelto::System().Close(opened);
  } else if (zelto::System().MakeDirectory(folder.c_str(), 0777) != 0) {
    ZELTO_FATAL("fail to mkdir at %s : %s\n", zelhost::kAvatarFolder, std::strerror(errno));
  }
}

// The deadline covers the wait for the mutex as well as the runtime's answers on the way out.
bool CZelhostLifeCycle::Unload() {
  ZELTO_FATAL("CZelhostZeltoManager::Unload() ");
  if (m_pollThread == pthread_self()) {
    ZELTO_FATAL("Unload refused: the poll thread can't end itself");
    return false;
  }
  BeginShutdown();
  ServiceHostLock lock("Unload");
  EndCallAndSignOut();
  m_state = ZELTO_UNLOADING;
  StopPollThread();
  KillZelto();
  CZelhostIPCManager::GetInstance()->Destroy();
  CContactManager::DeleteInstance();
  CAccountManager::DeleteInstance();
  CChatManager::DeleteInstance();
  CHistoryManager::DeleteInstance();
  CCallManager::DeleteInstance();
  zelto::ExecuteShell(("rm -f " + zelto::ShellPath(zelhost::kChannelKeyFile)).c_str());
  zelto::System().Sync();
  m_state = ZELTO_UNLOADED;
  return true;
}

void CZelhostLifeCycle::EndCallAndSignOut() {
  if (CCallManager::HasManager() && CCallManager::GetInstance()->IsInCall()) {
    CCallManager::GetInstance()->CallEnd(true);
  }
  if (CAccountManager::HasManager() && CAccountManager::GetInstance()->GetLoginState() != 0) {
    CAccountManager::GetInstance()->Logout(false);
  }
}

void CZelhostLifeCycle::StopPollThread() {
  m_stop = true;
  if (IsCreated()) CZeltoThread::Destroy();
  m_stop = false;
}

void CZelhostLifeCycle::KillZelto() {
  if (m_process != nullptr) m_process->KillIn(zelhost::kPatienceWhenUnloading);
  if (m_root != nullptr) {
    m_root->Stop(true);
    DeleteRoot();
  } else if (m_process != nullptr) {
    m_process->RequestStop();
  }
  m_transport.reset();
  if (m_process == nullptr) return;
  m_process->CancelKill();
  m_process->Reap();
  m_process.reset();
}

void CZelhostLifeCycle::DeleteRoot() {
  if (m_process != nullptr) m_process->SetConnectionBreaker(nullptr);
  m_root->cleanup();
  g_lpZelto = nullptr;
  m_root.reset();
}

void CZelhostLifeCycle::BeginShutdown() {
  if (const auto process = RuntimeProcess::Current()) process->KillIn(zelhost::kPatienceWhenUnloading);
}

void CZelhostLifeCycle::KillRuntime() {
  if (const auto process = RuntimeProcess::Current()) process->Kill();
}

bool CZelhostLifeCycle::GetAutoStart() {
  ServiceHostLock lock("GetAutoStart");
  const bool automatic = CZeltoManager::CallCommonControl("GetAutoStart") == "1";
  ZELTO_DEBUG("%s (%d)", "GetAutoStart", automatic);
  return automatic;
}

bool CZelhostLifeCycle::ResetDB() {
  ServiceHostLock lock("ResetDB");
  if (m_state != ZELTO_UNLOADED) {
    ZELTO_FATAL("zelhost is running.. ");
    return false;
  }
  RemoveFolder(zelhost::kDatabaseFolder);
  zelto::System().Sync();
  return true;
}

void CZelhostLifeCycle::InitZeltoDB() {
  ServiceHostLock lock("InitZeltoDB");
  ZELTO_DEBUG("Reset Zelto DB.. all saved info will be lost");
  RemoveFolder(zelhost::kDatabaseFolder);
  RemoveFolder(zelhost::kSnapshotFolder);
  zelto::System().Sync();
}

int CZelhostLifeCycle::InitPersonalData() { return CZelhostLocalSetting::CheckInitPersonalData(); }

void CZelhostLifeCycle::BringUpManagers() {
  CCallManager::GetInstance();
  CAccountManager::GetInstance();
  CContactManager::GetInstance();
  CHistoryManager::GetInstance();
  CChatManager::GetInstance();
}
