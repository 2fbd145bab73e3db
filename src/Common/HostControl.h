// The way into the host: its three functions and the rules for calling them.
#pragma once

#include <pthread.h>

#include <atomic>
#include <string>

#include "Common/IMoIPEngine.h"
#include "Common/Locks.h"

namespace zelto {

// The event callback and the control function run under the callback mutex, so that no two threads are in
// the host at once and neither is replaced while it runs. The data callback runs without it. A function
// that is not registered is not called.
// A host function that calls back into the engine on the same thread would wait for itself; such calls
// are refused and named in the log, builds with ZELTO_DEBUG_LOCKS end the process.
// Threads: any. Lives as long as the process.
class HostControl {
 public:
  static HostControl& Get() {
    static HostControl* const control = new HostControl;
    return *control;
  }

  void SetEventCallback(MoIPEventCallback callback, void* user);
  void SetDataCallback(MoIPDataCallback callback, void* user);
  void SetControlFunction(MoIPCommonCtrlFunc function, void* user);
  // Forgets all three; returns once neither the event callback nor the control function runs.
  void Clear();

  // Hands an event to the host. The record stays the caller's.
  void Deliver(const CEngineEvent& record);
  // Asks the television to act. Empty without a function, or when it answers null.
  std::string Call(const char* cmd, const char* p1, const char* p2, const char* p3, const char* p4);
  // Hands audio or video to the host.
  void SendData(const CAVData* data, unsigned int* extra);

  // Whether the calling thread is inside the event callback or the control function.
  bool IsInside() const { return m_inside.load(std::memory_order_relaxed) == pthread_self(); }
  // The same, reported: `operation` is what the host asked of the engine and must be refused or may hang.
  bool IsReentry(const char* operation) const { return IsInside() && ReportReentry(operation); }

 private:
  template <class Function>
  struct Registration {
    Function function = nullptr;
    void* user = nullptr;
  };
  class Visit;

  bool ReportReentry(const char* operation) const;

  Mutex m_lock{LockRank::Callback, "callback"};
  Registration<MoIPEventCallback> m_event ZELTO_GUARDED_BY(m_lock);
  Registration<MoIPCommonCtrlFunc> m_control ZELTO_GUARDED_BY(m_lock);
  std::atomic<pthread_t> m_inside{};  // the thread that is inside the host, if any

  Mutex m_dataLock{LockRank::Leaf, "data callback"};  // guards the pair, not the call
  Registration<MoIPDataCallback> m_data ZELTO_GUARDED_BY(m_dataLock);
};

}  // namespace zelto
