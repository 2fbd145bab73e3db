// The whole of the installer process.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>

#include "simulator/common/Connection.h"
#include "simulator/common/EndSignals.h"
#include "simulator/common/EventLoop.h"
#include "simulator/common/ListeningSocket.h"
#include "simulator/installer/Installation.h"
#include "simulator/installer/LoopbackSocket.h"
#include "simulator/installer/Options.h"
#include "simulator/installer/Requests.h"

namespace installer {

// Serves a few clients at once; they share the one installation, which goes on when they go.
// Threads: Run() does everything.
class Service {
 public:
  // Throws a std::exception with the reason when it cannot listen or an option means nothing.
  explicit Service(const Options& options);
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;
  ~Service();

  int Port() const { return m_port.Port(); }
  // Until a client says so (unless it is to keep on), or SIGTERM or SIGINT comes, which are blocked by then.
  void Run();

 private:
  void Welcome(int descriptor);
  void Serve(int descriptor, std::uint32_t events);
  // False when the connection has ended.
  bool Exchange(simulator::Connection& client, std::uint32_t events);
  void Leave(int descriptor);

  const bool m_keep;
  Installation m_installation;
  Requests m_requests;
  simulator::EventLoop m_loop;
  LoopbackSocket m_port;
  std::optional<simulator::ListeningSocket> m_socket;
  simulator::EndSignals m_signals;
  std::map<int, std::unique_ptr<simulator::Connection>> m_clients;  // by descriptor
  bool m_ended = false;
};

}  // namespace installer
