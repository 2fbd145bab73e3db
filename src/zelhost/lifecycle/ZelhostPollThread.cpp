// The life cycle's own thread: from the launched runtime to the end of its events.
#include "Common/Log.h"
#include "Common/Platform.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/ZESocketTransport.h"
#include "zelhost/EnginePaths.h"
#include "zelhost/Television.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/lifecycle/FilteredProperties.h"
#include "zelhost/lifecycle/LifeCycleLimits.h"
#include "zelhost/lifecycle/RuntimeProcess.h"
#include "zelhost/lifecycle/ZelhostLifeCycle.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelhost::ServiceHostLock;
using zelhost::ServiceHostMutex;

namespace {

constexpr char kSourceFile[] = "zelhost/ZelhostZeltoManager";  // as messages name it
constexpr char kUiVersion[] = "10070/1.0.0.0/";
constexpr char kUiVersionWithCamera[] = "10071/1.0.0.0/";  // the camera is built into the television

const char* StartError(int result) {
  switch (result) {
    case Zelto::ERROR_API_MISMATCH:
      return "ERROR_API_MISMATCH";
    case Zelto::ERROR_INVALID_UI_VERSION:
      return "ERROR_INVALID_UI_VERSION";
    case Zelto::ERROR_START_FAILED:
      return "ERROR_START_FAILED";
    default:
      return "ERROR_UNKNOWN";
  }
}

}  // namespace

template <class Step>
bool CZelhostLifeCycle::UnlessStopping(const char* who, Step step) {
  int waited = 0;
  while (!m_stop) {
    if (!ServiceHostMutex::Get().LockWithin(who, zelhost::kStep)) {
      waited += zelhost::kStep;
      if (waited % ServiceHostMutex::kReportEvery == 0) ServiceHostMutex::Get().ReportWait(who, waited);
      continue;
    }
    ServiceHostLock lock(std::adopt_lock);
    if (m_stop) return false;
    step();
    return true;
  }
  return false;
}

bool CZelhostLifeCycle::WaitUnlessStopping(int milliseconds) {
  for (int waited = 0; waited < milliseconds && !m_stop; waited += zelhost::kStep) {
    zelto::SleepMilliseconds(zelhost::kStep);
  }
  return !m_stop;
}

// Whoever asks the thread to stop takes everything down, so nothing is cleaned up here in that case.
void CZelhostLifeCycle::t_Main() {
  m_pollThread = pthread_self();
  bool loaded = false;
  if (PreInit()) {
    loaded = UnlessStopping("starting the managers", [this] {
      m_state = ZELTO_LOADED;
      BringUpManagers();
      CZeltoManager::SendEvent(CZeltoManager::ZELTO_RUNTIME_READY, 0);
    });
  } else {
    UnlessStopping("ending a runtime that did not start", [this]() ZELTO_REQUIRES(ServiceHostMutex::Get()) {
      ZELTO_FATAL("fail to connect zelhost");
      m_state = ZELTO_UNLOADED;
      KillZelto();
    });
  }
  if (loaded) RunPollLoop();
  m_pollThread = 0;
}

bool CZelhostLifeCycle::PreInit() {
  if (!WaitUnlessStopping(zelhost::kStartUpTime) || !Connect()) return false;
  bool started = false;
  UnlessStopping("starting the runtime",
                 [&]() ZELTO_REQUIRES(ServiceHostMutex::Get()) { started = StartRuntime(); });
  return started;
}

// False only when asked to stop: after the last attempt the start is tried in any case.
bool CZelhostLifeCycle::Connect() {
  if (!UnlessStopping("creating the root object",
                      [this]() ZELTO_REQUIRES(ServiceHostMutex::Get()) { CreateRoot(); })) {
    return false;
  }
  for (int attempt = 1; attempt <= zelhost::kConnectAttempts; ++attempt) {
    bool connected = false;
    const bool lastAttempt = attempt == zelhost::kConnectAttempts;
    const bool tried = UnlessStopping("connecting", [&]() ZELTO_REQUIRES(ServiceHostMutex::Get()) {
      ZELTO_DEBUG("m_pZelto->init() called");
      connected = m_root->init();
      if (connected || lastAttempt) return;
      ZELTO_FATAL("m_pZelto->init() failed.. cleanup()");
      m_root->cleanup();
    });
    if (!tried) return false;
    if (connected || lastAttempt) return true;
    if (!WaitUnlessStopping(zelhost::kBetweenAttempts)) return false;
  }
  return true;
}

void CZelhostLifeCycle::CreateRoot() {
  if (m_transport == nullptr) m_transport = std::make_unique<ZESocketTransport>(zelhost::kProtocolSocket);
  if (m_root == nullptr) m_root = std::make_unique<CZelto>(m_transport.get(), false, ZEString());
  g_lpZelto = m_root.get();
}

bool CZelhostLifeCycle::StartRuntime() {
  // Whatever holds the other end open, a kill of the runtime ends every wait for it.
  if (m_process != nullptr && m_transport->getSocket() >= 0) {
    m_process->SetConnectionBreaker(
        [socket = m_transport->getSocket()] { zelto::System().Shutdown(socket, SHUT_RDWR); });
  }
  if (!CZelhostLocalSetting::IsInitialized()) CZelhostLocalSetting::Initialize();
  const bool camera = zelhost::HostSaysYes("IsEmbeddedCamera");
  const int result = m_root->Start(true, camera ? kUiVersionWithCamera : kUiVersion);
  zelto::Print("Zelto Engine start UI VERSION: %s\n", kUiVersion);
  if (result != Zelto::START_SUCCESS) {
    ZELTO_FATAL("Zelto::Start(), %s at %s:%d\n", StartError(result), kSourceFile, __LINE__);
    return false;
  }
  ZELTO_DEBUG("filter out");
  FilterOutProperties();
  ZELTO_DEBUG("PreInit done");
  return true;
}

void CZelhostLifeCycle::FilterOutProperties() {
  const zelhost::FilteredRange* row = std::begin(zelhost::kFilteredProperties);
  while (row != std::end(zelhost::kFilteredProperties)) {
    const Zelto::OBJECTTYPE type = row->type;
    ZEIntList properties;
    for (; row != std::end(zelhost::kFilteredProperties) && row->type == type; ++row) {
      for (int property = row->first; property <= row->last; ++property) properties.append(property);
    }
    m_root->FilterOutProps(type, properties);
  }
}

// After a poll error nothing can be heard any more, but the state stays: the next unload cleans up.
void CZelhostLifeCycle::RunPollLoop() {
  bool alive = true;
  while (alive && UnlessStopping("polling events", [&]() ZELTO_REQUIRES(ServiceHostMutex::Get()) {
           alive = m_root->pollEvents(0);
         })) {
    if (alive) zelto::SleepMilliseconds(zelhost::kBetweenPolls);
  }
  if (alive) return;
  ZELTO_DEBUG("**************************************************");
  ZELTO_DEBUG(" POLLEVENT ERROR!!!!!! ");
  ZELTO_DEBUG("**************************************************");
}
