#include "Common/HostControl.h"

#include <cstdlib>

#include "Common/Log.h"

namespace zelto {
namespace {

// Calls a host function; one that throws in spite of the rules counts as one that answered nothing.
template <class Call>
auto EnterHost(const char* name, Call call) -> decltype(call()) {
  try {
    return call();
  } catch (...) {
    ZELTO_FATAL("the host's %s has thrown\n", name);
    return {};
  }
}

}  // namespace

// Marks the calling thread as the one that is inside the host.
class HostControl::Visit {
 public:
  explicit Visit(std::atomic<pthread_t>& inside) : m_inside(inside) {
    m_inside.store(pthread_self(), std::memory_order_relaxed);
  }
  ~Visit() { m_inside.store(pthread_t{}, std::memory_order_relaxed); }
  Visit(const Visit&) = delete;
  Visit& operator=(const Visit&) = delete;

 private:
  std::atomic<pthread_t>& m_inside;
};

void HostControl::SetEventCallback(MoIPEventCallback callback, void* user) {
  if (IsReentry("RegisterEventCallback")) return;
  MutexLock lock(m_lock);
  m_event = {callback, user};
}

void HostControl::SetDataCallback(MoIPDataCallback callback, void* user) {
  MutexLock lock(m_dataLock);
  m_data = {callback, user};
}

void HostControl::SetControlFunction(MoIPCommonCtrlFunc function, void* user) {
  if (IsReentry("RegisterCommonCtrlFunc")) return;
  MutexLock lock(m_lock);
  m_control = {function, user};
}

void HostControl::Clear() {
  SetEventCallback(nullptr, nullptr);
  SetDataCallback(nullptr, nullptr);
  SetControlFunction(nullptr, nullptr);
}

void HostControl::Deliver(const CEngineEvent& record) {
  if (IsReentry("something that raises an event")) return;
  MutexLock lock(m_lock);
  if (m_event.function == nullptr) return;
  const Visit visit(m_inside);
  EnterHost("event callback", [&, event = m_event] { return event.function(&record, event.user); });
}

std::string HostControl::Call(const char* cmd, const char* p1, const char* p2, const char* p3,
                              const char* p4) {
  if (IsReentry("something that needs the control function")) return {};
  MutexLock lock(m_lock);
  if (m_control.function == nullptr) return {};
  const Visit visit(m_inside);
  const char* answer = EnterHost("control function", [&, control = m_control] {
    return control.function(cmd, p1, p2, p3, p4, control.user);
  });
  return answer != nullptr ? std::string(answer) : std::string();
}

void HostControl::SendData(const CAVData* data, unsigned int* extra) {
  Registration<MoIPDataCallback> receiver;
  {
    MutexLock lock(m_dataLock);
    receiver = m_data;
  }
  if (receiver.function == nullptr) return;
  EnterHost("data callback", [&] { return receiver.function(data, receiver.user, extra); });
}

bool HostControl::ReportReentry(const char* operation) const {
  ZELTO_FATAL(
      "the host asks for %s from inside its event callback or control function: that may never return\n",
      operation);
#ifdef ZELTO_DEBUG_LOCKS
  std::abort();
#endif
  return true;
}

}  // namespace zelto
