#include "simulator/installer/Service.h"

#include <sys/epoll.h>
#include <unistd.h>

#include <chrono>
#include <stdexcept>

namespace installer {
namespace {

constexpr std::size_t kMostClients = 16;

std::int64_t Now() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

}  // namespace

Service::Service(const Options& options)
    : m_keep(options.keep),
      m_installation(options.folder, options.rate),
      m_requests(m_installation),
      m_port(options.port),
      m_signals(m_loop, [this] { m_ended = true; }) {
  for (const std::string& failure : options.failures)
    if (m_requests.FailNext(failure) != nullptr) throw std::invalid_argument("can't fail: " + failure);
  m_loop.Watch(m_port.Descriptor(), EPOLLIN, [this](std::uint32_t) { Welcome(m_port.Accept()); });
  if (options.socket.empty()) return;
  m_socket.emplace(options.socket);
  m_loop.Watch(m_socket->Descriptor(), EPOLLIN, [this](std::uint32_t) { Welcome(m_socket->Accept()); });
}

Service::~Service() = default;

void Service::Run() {
  while (!m_ended) {
    m_loop.Wait(m_installation.UntilNext(Now()));
    m_installation.Work(Now());
  }
}

void Service::Welcome(int descriptor) {
  if (descriptor < 0) return;
  if (m_clients.size() >= kMostClients) {
    close(descriptor);
    return;
  }
  m_clients[descriptor] = std::make_unique<simulator::Connection>(descriptor);
  m_loop.Watch(descriptor, EPOLLIN, [this, descriptor](std::uint32_t events) { Serve(descriptor, events); });
}

void Service::Serve(int descriptor, std::uint32_t events) {
  simulator::Connection& client = *m_clients.at(descriptor);
  const bool waited = client.HasOutput();
  if (!Exchange(client, events)) {
    Leave(descriptor);
  } else if (client.HasOutput() != waited) {
    // One that does not take its replies is not asked for more.
    m_loop.Watch(descriptor, client.HasOutput() ? EPOLLOUT : EPOLLIN,
                 [this, descriptor](std::uint32_t further) { Serve(descriptor, further); });
  }
}

bool Service::Exchange(simulator::Connection& client, std::uint32_t events) {
  if ((events & EPOLLOUT) != 0) return client.Flush();
  return client.Receive([&](std::string_view text) {
    const std::optional<std::string> reply = m_requests.Answer(text, Now());
    if (reply) {
      client.Send(*reply);
    } else {
      m_ended = !m_keep;
    }
  });
}

void Service::Leave(int descriptor) {
  m_loop.Forget(descriptor);
  m_clients.erase(descriptor);
}

}  // namespace installer
