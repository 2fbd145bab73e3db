// The way of the host's sound and pictures into the service host.
#pragma once

#include <atomic>

#include "Common/Guard.h"
#include "Common/Platform.h"
#include "Common/ZeltoManagerImp.h"

namespace zelto {

// Lets data through without a lock, so that a frame never waits for a command, and closes before the service
// host goes. Data that finds it closed is dropped.
// Threads: any for Pass; Open and Close by who makes and ends the service host.
class HostDataGate {
 public:
  void Open(CZeltoManagerImp* serviceHost) { m_serviceHost = serviceHost; }
  // Returns once nobody is on the other side.
  void Close() {
    m_serviceHost = nullptr;
    while (m_inside != 0) SleepMilliseconds(1);
  }

  void Pass(const CAVData* data) noexcept {
    ++m_inside;  // announced first: a gate that closes now waits for it
    if (CZeltoManagerImp* serviceHost = m_serviceHost) {
      Guard("OnData", [&] { serviceHost->OnData(data); });
    }
    --m_inside;
  }

 private:
  std::atomic<CZeltoManagerImp*> m_serviceHost{nullptr};
  std::atomic<int> m_inside{0};
};

}  // namespace zelto
