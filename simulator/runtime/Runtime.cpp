#include "simulator/runtime/Runtime.h"

#include <sys/epoll.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <utility>

#include "apiwrapper/ZEProtocol.h"
#include "simulator/runtime/Log.h"

namespace simulator {
namespace {

// How often a runtime that nobody has connected to looks whether anybody still can.
constexpr std::int64_t kLonelyMilliseconds = 1000;

std::int64_t Milliseconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

std::string NameOf(const ZEMethod& method) {
  return std::string(method.owner == nullptr ? "Object" : method.owner->name) + "." + method.name;
}

std::string Folder(const Options& options) { return options.home + "/.Zelto"; }

}  // namespace

Runtime::Runtime(const Options& options)
    : m_options(options),
      m_device(Folder(options)),
      m_service(DeviceStore::DataFolder(m_device.Folder())),
      m_wire(options.verbose),
      m_faults(options.seed),
      m_controls{m_wire, m_faults, nullptr, &m_media},
      m_orders(m_controls),
      m_scenario(m_orders, m_scheduler),
      m_socket(options.socket),
      m_door(m_loop, m_device.Folder() + "/door",
             [this](std::string_view line) { return m_orders.ExecuteLine(line); }),
      m_signals(m_loop, [this] { m_ended = true; }) {
  if (!options.scenario.empty()) m_scenario.ReadFile(options.scenario);
  m_loop.Watch(m_socket.Descriptor(), EPOLLIN, [this](std::uint32_t) { AcceptEngine(); });
}

Runtime::~Runtime() { Disconnect(); }

void Runtime::Run() {
  RunSchedulers();
  m_scenario.Start();
  while (!m_ended) {
    m_loop.Wait(UntilNext());
    RunSchedulers();
    if (m_session) {
      WatchEngine();
      if (m_stopAsked && !m_wire.TheConnection().HasOutput()) Disconnect();
    } else {
      // An engine that died before it connected would leave its runtime behind.
      m_ended = m_ended || (!m_options.keep && getppid() != m_parent);
    }
  }
}

void Runtime::RunSchedulers() {
  const std::int64_t now = Now();
  m_scheduler.RunUntil(now);
  if (m_session) m_session->scheduler.RunUntil(now);
}

std::int64_t Runtime::UntilNext() const {
  const std::int64_t scenario = m_scheduler.UntilNext();
  const std::int64_t session = m_session ? m_session->scheduler.UntilNext() : kLonelyMilliseconds;
  const bool one = scenario < 0 || session < 0;
  const std::int64_t next = one ? std::max(scenario, session) : std::min(scenario, session);
  return next < 0 ? next : (next + m_options.pace - 1) / m_options.pace;
}

std::int64_t Runtime::Now() const { return Milliseconds() * m_options.pace; }

void Runtime::AcceptEngine() {
  const int descriptor = m_socket.Accept();
  if (descriptor < 0) return;
  if (m_session) {
    Log("another engine is connected: this one is turned away");
    close(descriptor);
    return;
  }
  m_wire.Connect(std::make_unique<Connection>(descriptor));
  m_session.emplace(Surroundings{m_service, m_device, m_wire, m_options.clockDifference,
                                 [this] { m_media.Attach(); }, [this] { m_stopAsked = true; }, &m_media});
  m_session->scheduler.RunUntil(Now());
  m_dispatcher.emplace(*m_session, &m_faults);
  m_dispatcher->Observe([this](const ZEMethod& method) {
    if (!m_scenario.IsOver()) m_scenario.RequestArrived(NameOf(method));
  });
  m_controls.session = &*m_session;
  m_watchesOutput = false;
  m_loop.Watch(descriptor, EPOLLIN, [this](std::uint32_t) { ServeEngine(); });
  m_scenario.EngineConnected();
}

void Runtime::ServeEngine() {
  const bool alive = m_wire.TheConnection().Receive([this](std::string_view text) {
    m_wire.Received(text);
    m_dispatcher->Serve(text);
  });
  if (!alive) Disconnect();
}

// Also writes what timers and orders have sent.
void Runtime::WatchEngine() {
  Connection& connection = m_wire.TheConnection();
  if (!connection.Flush()) {
    Disconnect();
    return;
  }
  if (connection.HasOutput() == m_watchesOutput) return;
  m_watchesOutput = connection.HasOutput();
  m_loop.Watch(connection.Descriptor(), m_watchesOutput ? EPOLLIN | EPOLLOUT : EPOLLIN,
               [this](std::uint32_t events) {
                 if ((events & ~static_cast<std::uint32_t>(EPOLLOUT)) != 0) ServeEngine();
               });
}

void Runtime::Disconnect() {
  if (!m_session) return;
  m_loop.Forget(m_wire.TheConnection().Descriptor());
  m_controls.session = nullptr;
  m_dispatcher.reset();
  m_session.reset();
  m_media.Detach();
  m_wire.Disconnect();
  m_stopAsked = false;
  m_ended = m_ended || !m_options.keep;
}

}  // namespace simulator
