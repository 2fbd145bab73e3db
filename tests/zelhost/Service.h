// A whole service host in the test's process: television, engine, and a scripted runtime behind a real
// socket.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/DeviceRoot.h"
#include "tests/support/FastClock.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/Watchdog.h"
#include "tests/zelhost/RuntimeMemory.h"

namespace test {

// Fast time, and no waiting for the machine's disks.
class FastPlatform : public FastClock {
 public:
  using FastClock::FastClock;
  void Sync() override {}
};

// The process in the runtime's place only waits; the protocol is spoken by the scripted runtime, which
// accepts every start unless told otherwise.
class Service : public testing::Test {
 protected:
  Service() {
    m_device.InstallRuntime();
    Listen();
  }

  void Listen() {
    m_runtime.reset();  // which removes its socket
    m_runtime = std::make_unique<ScriptedRuntime>(m_device / "/dtv/socket");
    m_runtime->reply("1986", ScriptedRuntime::pair("0", "1211"));
  }
  bool Load() { return CZeltoManager::Load(); }
  bool IsLoaded() { return Load() && m_host.WaitFor(CZeltoManager::ZELTO_RUNTIME_READY, ++m_loads); }
  // Seconds on the service's clock that an operation takes.
  template <class Operation>
  double SecondsOf(Operation operation) {
    const std::int64_t before = m_platform.Now();
    operation();
    return static_cast<double>(m_platform.Now() - before) / 1e9;
  }

  Watchdog m_watchdog{100};
  DeviceRoot m_device;
  FastPlatform m_platform{50};
  RuntimeMemory m_memory;
  std::unique_ptr<ScriptedRuntime> m_runtime;
  RecordingHost m_host;
  std::ptrdiff_t m_loads = 0;
};

}  // namespace test
