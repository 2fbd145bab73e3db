// The whole of the runtime process.
#pragma once

#include <unistd.h>

#include <cstdint>
#include <memory>
#include <optional>

#include "simulator/common/EndSignals.h"
#include "simulator/common/EventLoop.h"
#include "simulator/common/ListeningSocket.h"
#include "simulator/runtime/Options.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/Wire.h"
#include "simulator/runtime/door/Door.h"
#include "simulator/runtime/door/Faults.h"
#include "simulator/runtime/door/Orders.h"
#include "simulator/runtime/door/Scenario.h"
#include "simulator/runtime/media/Media.h"
#include "simulator/runtime/requests/Dispatcher.h"
#include "simulator/runtime/service/DeviceStore.h"
#include "simulator/runtime/service/SimulatedService.h"

namespace simulator {

// Serves one engine at a time; a second that connects meanwhile is turned away.
// Threads: Run() does everything but carry sound and pictures, which has threads of its own.
class Runtime {
 public:
  // Opens databases, sockets and the scenario. Throws a std::exception with the reason when it cannot.
  explicit Runtime(const Options& options);
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;
  ~Runtime();

  // Until an engine asks to stop, its connection ends (unless it is to keep on), or SIGTERM or SIGINT
  // comes, which must be blocked by then.
  void Run();

 private:
  void AcceptEngine();
  void ServeEngine();
  void WatchEngine();
  void Disconnect();
  void RunSchedulers();
  std::int64_t UntilNext() const;
  std::int64_t Now() const;  // the schedulers' time

  const Options m_options;
  const pid_t m_parent = getppid();  // asked before the databases are opened, which may take a while
  EventLoop m_loop;
  DeviceStore m_device;
  SimulatedService m_service;
  Wire m_wire;
  Media m_media;
  Faults m_faults;
  Controls m_controls;
  Orders m_orders;
  Scheduler m_scheduler;  // of the scenario
  Scenario m_scenario;
  std::optional<Session> m_session;
  std::optional<Dispatcher> m_dispatcher;
  ListeningSocket m_socket;
  Door m_door;
  EndSignals m_signals;
  bool m_watchesOutput = false;
  bool m_stopAsked = false;  // by the engine: the connection ends when everything is written
  bool m_ended = false;
};

}  // namespace simulator
