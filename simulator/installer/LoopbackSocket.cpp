#include "simulator/installer/LoopbackSocket.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <string>
#include <system_error>

namespace installer {
namespace {

constexpr int kBacklog = 8;

}  // namespace

LoopbackSocket::LoopbackSocket(int port)
    : m_descriptor(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
  const int yes = 1;
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  auto* const general = reinterpret_cast<sockaddr*>(&address);
  socklen_t size = sizeof address;
  // A port whose last service has just gone must not be lost for a minute.
  if (setsockopt(m_descriptor, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes) == 0 &&
      bind(m_descriptor, general, size) == 0 && listen(m_descriptor, kBacklog) == 0 &&
      getsockname(m_descriptor, general, &size) == 0) {
    m_port = ntohs(address.sin_port);
    return;
  }
  const int failure = errno;
  if (m_descriptor >= 0) close(m_descriptor);
  throw std::system_error(failure, std::generic_category(), "port " + std::to_string(port));
}

LoopbackSocket::~LoopbackSocket() { close(m_descriptor); }

int LoopbackSocket::Accept() { return accept4(m_descriptor, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK); }

}  // namespace installer
