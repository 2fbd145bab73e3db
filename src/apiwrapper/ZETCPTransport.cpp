#include "apiwrapper/ZETCPTransport.h"

#include <arpa/inet.h>
#include <netinet/in.h>

#include <cstdint>

#include "Common/Platform.h"

namespace {

constexpr ZEStreamTexts kTexts = {
    "ZELTO ERROR - ZETCPTransport::push(), not connected",
    "ZELTO ERROR - ZETCPTransport::push(), message too long",
    "ZELTO ERROR - ZETCPTransport::pull(), not connected",
    "ZELTO ERROR - ZETCPTransport::pull(), len > 0x00FFFFFF, most likely garbage",
    "ZELTO ERROR - ZETCPTransport::hasMore(), select() failed, error: ",
    true,
};

}  // namespace

ZETCPTransport::ZETCPTransport(const ZEString& address, int port)
    : ZEStreamTransport(kTexts), m_address(address), m_port(port) {}

bool ZETCPTransport::connect() {
  disconnect();
  m_socket = zelto::System().Socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
  if (m_socket == -1) {
    log("ZELTO ERROR - ZETCPTransport::connect(), couldn't create socket");
    return false;
  }
  sockaddr_in address = sockaddr_in();
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(m_port));
  address.sin_addr.s_addr = inet_addr(m_address);
  m_connected =
      zelto::System().Connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
  if (!m_connected) log("ZELTO ERROR - ZETCPTransport::connect(), couldn't connect to socket");
  return m_connected;
}

void ZETCPTransport::disconnect() {
  if (m_socket == -1) return;
  zelto::System().Close(m_socket);
  m_socket = -1;
  m_connected = false;
}
