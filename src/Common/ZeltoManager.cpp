#include "Common/ZeltoManager.h"

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include "Common/AccountManager.h"
#include "Common/CallManager.h"
#include "Common/ChatManager.h"
#include "Common/ContactManager.h"
#include "Common/EventHandlers.h"
#include "Common/EventQueue.h"
#include "Common/Guard.h"
#include "Common/HistoryManager.h"
#include "Common/HostControl.h"
#include "Common/Log.h"
#include "Common/Notices.h"
#include "Common/Platform.h"
#include "Common/ZeltoImp.h"
#include "zelhost/lifecycle/LifeCycleLimits.h"
#include "zelhost/lifecycle/ZelhostLifeCycle.h"

using zelto::EventHandlers;
using zelto::EventQueue;
using zelto::Guard;
using zelto::HostControl;
using zelto::Notices;

std::atomic<CZeltoManager*> CZeltoManager::s_instance{nullptr};
std::atomic<bool> CZeltoManager::s_created{false};
std::atomic<CZeltoManagerImp*> CZeltoManager::s_imp{nullptr};
zelto::HostDataGate CZeltoManager::s_dataGate;
std::atomic<bool> CZeltoManager::s_serviceEnded{false};
std::atomic<bool> CZeltoManager::s_widgetStarted{false};

namespace {

// One engine is made or ended at a time. The lock is held for moments only: whoever ends an engine waits for
// threads that may look for it meanwhile.
struct Life {
  zelto::Mutex lock{zelto::LockRank::Unranked, "engine life"};
  zelto::Condition ended;
  bool ending ZELTO_GUARDED_BY(lock) = false;

  static Life& Get() {
    static Life* const life = new Life;
    return *life;
  }
};

// The last widget parameter; it outlives the engine like everything that late threads may ask for.
struct WidgetParameter {
  zelto::Mutex lock{zelto::LockRank::Leaf, "widget parameter"};
  std::string text ZELTO_GUARDED_BY(lock);

  static WidgetParameter& Get() {
    static WidgetParameter* const parameter = new WidgetParameter;
    return *parameter;
  }
};

// The host may write into the texts of a record, so it gets copies.
struct TextCopy {
  explicit TextCopy(const char* text) : copy(text != nullptr ? ::strdup(text) : nullptr) {}
  ~TextCopy() { std::free(copy); }
  TextCopy(const TextCopy&) = delete;
  TextCopy& operator=(const TextCopy&) = delete;
  char* copy;
};

void Deliver(int type, const char* p1, const char* p2) {
  const TextCopy first(p1);
  const TextCopy second(p2);
  HostControl::Get().Deliver({type, first.copy, second.copy});
}

}  // namespace

// --- Life

CZeltoManager* CZeltoManager::GetInstance() noexcept {
  CZeltoManager* manager = s_instance.load(std::memory_order_acquire);
  return manager != nullptr || s_created ? manager : Make(false);
}

CZeltoManager* CZeltoManager::Create() noexcept {
  // From inside a host function only the present engine: an ending one waits for that function.
  return HostControl::Get().IsInside() ? s_instance.load() : Make(true);
}

CZeltoManager* CZeltoManager::Make(bool again) noexcept {
  return Guard("engine_create", [again]() -> CZeltoManager* {
    Life& life = Life::Get();
    zelto::MutexLock lock(life.lock);
    while (again && life.ending) life.ended.Wait(life.lock);
    CZeltoManager* manager = s_instance.load(std::memory_order_acquire);
    if (manager != nullptr || (s_created && !again)) return manager;
    manager = new CZeltoManager;
    s_serviceEnded = false;
    s_instance.store(manager, std::memory_order_release);
    s_created = true;
    EventQueue::Get().Open();
    return manager;
  });
}

void CZeltoManager::Destroy(IMoIPEngine* engine) noexcept {
  if (engine == nullptr || HostControl::Get().IsReentry("engine_destroy")) return;
  Life& life = Life::Get();
  {
    zelto::MutexLock lock(life.lock);
    if (life.ending || engine != s_instance.load(std::memory_order_acquire)) {
      ZELTO_FATAL("engine_destroy: %p is no engine\n", static_cast<void*>(engine));
      return;
    }
    life.ending = true;
  }
  delete engine;
  zelto::MutexLock lock(life.lock);
  life.ending = false;
  life.ended.NotifyAll();
}

CZeltoManager::CZeltoManager() {
  SetWidgetStarted(false);
  SetRunWidgetParam(std::string());
  Notices::Get().Reset();
  if (!m_eventThread.Start()) {
    ZELTO_FATAL("fail to create event thread");
    throw std::runtime_error("no event thread");
  }
}

CZeltoManager::~CZeltoManager() noexcept {
  ZELTO_DEBUG("CZeltoManager::Destructor 1");
  StopEventThread();
  // From here on a runtime that keeps anybody waiting must not keep the engine.
  CZelhostLifeCycle::BeginShutdown();
  ZELTO_DEBUG("CZeltoManager::Destructor 1.1");
  Guard("ending the call", [] { EndCall(); });
  ZELTO_DEBUG("CZeltoManager::Destructor 2");
  HostControl::Get().Clear();
  ZELTO_DEBUG("CZeltoManager::Destructor 3");
  Guard("ending the service", [] { DeleteZeltoManagerImp(); });
  ZELTO_DEBUG("CZeltoManager::Destructor 4");
  EventQueue::Get().Close();
  EventHandlers::Get().Clear();
  ZELTO_DEBUG("CZeltoManager::Destructor 5");
  ZELTO_DEBUG("CZeltoManager::Destructor 6");
  s_instance.store(nullptr, std::memory_order_release);
  ZELTO_DEBUG("CZeltoManager::Destructor Done");
  InitGlobalNoticeInfo();
}

// The thread may be waiting for the service host, which a runtime that does not answer keeps busy: that one
// is killed. It may also be in a host function, and that is no reason to kill anybody.
void CZeltoManager::StopEventThread() {
  m_eventThread.RequestStop();
  while (!m_eventThread.HasEnded()) {
    zelhost::ServiceHostMutex& serviceHost = zelhost::ServiceHostMutex::Get();
    if (serviceHost.LockWithin("engine_destroy", zelhost::kPatienceWhenUnloading)) {
      serviceHost.Unlock();
      zelto::SleepMilliseconds(zelhost::kStep);
    } else {
      CZelhostLifeCycle::KillRuntime();
    }
  }
  m_eventThread.Stop();
}

void CZeltoManager::EndCall() {
  zelhost::ServiceHostLock lock("engine_destroy");
  if (!CCallManager::HasManager()) return;
  CCallManager* call = CCallManager::GetInstance();
  if (call->IsInCall()) call->CallEnd(true);
}

// --- The service host

CZeltoManagerImp* CZeltoManager::GetZeltoManagerImp() {
  CZeltoManagerImp* imp = s_imp.load(std::memory_order_acquire);
  return imp != nullptr ? imp : CreateZeltoManagerImp();
}

CZeltoManagerImp* CZeltoManager::CreateZeltoManagerImp() {
  if (s_instance.load(std::memory_order_acquire) == nullptr) return nullptr;
  zelhost::ServiceHostLock lock("GetZeltoManagerImp");
  CZeltoManagerImp* imp = s_imp.load(std::memory_order_relaxed);
  if (imp != nullptr || s_serviceEnded) return imp;
  imp = CZeltoImp::CreateZeltoManagerImp();
  s_imp.store(imp, std::memory_order_release);
  s_dataGate.Open(imp);
  return imp;
}

void CZeltoManager::DeleteZeltoManagerImp() {
  zelhost::ServiceHostLock lock("engine_destroy");
  s_serviceEnded = true;
  s_dataGate.Close();
  // It stays reachable meanwhile: what it takes down still asks it.
  delete s_imp.load(std::memory_order_relaxed);
  s_imp.store(nullptr, std::memory_order_release);
  // Managers that came up without a loaded service, or after it had gone.
  CContactManager::DeleteInstance();
  CAccountManager::DeleteInstance();
  CChatManager::DeleteInstance();
  CHistoryManager::DeleteInstance();
  CCallManager::DeleteInstance();
}

// --- Events and the host's functions

void CZeltoManager::SendEvent(int type, int param) { EventQueue::Get().Send(type, param); }

void CZeltoManager::LazySendEvent(int delay, int type, int param) {
  EventQueue::Get().Send(type, param, delay);
}

void CZeltoManager::DeleteLazyEvent(int type) { EventQueue::Get().DeleteLazy(type); }

bool CZeltoManager::SetEventHandler(EVENT_TYPE type, CZeltoEventHandler* handler) {
  return EventHandlers::Get().Set(type, handler);
}

void CZeltoManager::NotifyEngineEvent(int type, const char* p1, const char* p2) {
  ZELTO_DEBUG("CZeltoManager::%s: event type = %d\n", "NotifyEngineEvent", type);
  Deliver(type, p1, p2);
}

void CZeltoManager::NotifyEngineEvent(const CZeltoEvent* event) {
  ZELTO_DEBUG("CZeltoManager::%s: event type = %d\n", "NotifyEngineEvent", event->type);
  char digits[16];
  *std::to_chars(digits, digits + sizeof digits - 1, event->param).ptr = '\0';
  HostControl::Get().Deliver({event->type, digits, nullptr});
}

void CZeltoManager::NotifyHardwiredEvent(unsigned type, const char* p1, const char* p2) {
  ZELTO_DEBUG("CZeltoManager::%s: public event type = %u\n", "NotifyHardwiredEvent", type);
  Deliver(static_cast<int>(type), p1, p2);
}

void CZeltoManager::NotifyNewHardwiredEvent(unsigned type, CEngineGlobalNoticeInfo& notice) {
  ZELTO_DEBUG("CZeltoManager::%s: public event type = %u\n", "NotifyNewHardwiredEvent", type);
  // The record's parameters are texts for every other event.
  HostControl::Get().Deliver({static_cast<int>(type), reinterpret_cast<char*>(&notice), nullptr});
}

std::string CZeltoManager::CallCommonControl(const char* cmd, const char* p1, const char* p2, const char* p3,
                                             const char* p4) {
  return HostControl::Get().Call(cmd, p1, p2, p3, p4);
}

void CZeltoManager::SendAVData(const CAVData* data, unsigned int* extra) {
  HostControl::Get().SendData(data, extra);
}

void CZeltoManager::ShowNotification(int id, int param) { Notices::Get().Show(id, param); }
void CZeltoManager::HideNotification(int id) { Notices::Get().Hide(id); }
void CZeltoManager::HideAllNotification() { Notices::Get().HideAll(); }
void CZeltoManager::InitGlobalNoticeInfo() { Notices::Get().Discard(); }

// --- The widget

std::string CZeltoManager::RunWidget(const std::string& parameter) {
  ZELTO_DEBUG("RunWidget with param %s\n", parameter.c_str());
  SendEvent(WIDGET_LAUNCH, GetZeltoWidgetState() ? 1 : 0);
  SetRunWidgetParam(parameter);
  return CallCommonControl("StartWidgetWithParam", parameter.c_str());
}

void CZeltoManager::SetRunWidgetParam(const std::string& parameter) {
  WidgetParameter& last = WidgetParameter::Get();
  zelto::MutexLock lock(last.lock);
  last.text = parameter;
}

std::string CZeltoManager::GetRunWidgetParam() {
  WidgetParameter& last = WidgetParameter::Get();
  zelto::MutexLock lock(last.lock);
  return last.text;
}
