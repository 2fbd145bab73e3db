#include "apiwrapper/ZESocketTransport.h"

#include <sys/un.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "Common/DevicePath.h"
#include "Common/Platform.h"

namespace {

constexpr ZEStreamTexts kTexts = {
    "ZELTO ERROR - ZESocketTransport::push(), not connected",
    "ZELTO ERROR - ZESocketTransport::push(), message too long",
    "ZELTO ERROR - ZESocketTransport::pull(), not connected",
    "ZELTO ERROR - ZESocketTransport::pull(), len > 0x00FFFFFF, most likely garbage",
    "ZELTO ERROR - ZESocketTransport::hasMore(), select() failed",
    false,
};

// False when the path does not fit into a local socket's address.
bool makeAddress(const ZEString& path, sockaddr_un* address) {
  const std::string place = zelto::DevicePath(static_cast<const char*>(path));
  if (place.size() >= sizeof(address->sun_path)) return false;
  *address = sockaddr_un();
  address->sun_family = AF_UNIX;
  std::memcpy(address->sun_path, place.data(), place.size());
  return true;
}

// A listener whose queue is full would keep the caller for as long as it likes.
constexpr int kLongestConnect = 500;  // milliseconds

bool connectTo(int descriptor, const sockaddr_un& address) {
  zelto::Platform& system = zelto::System();
  system.LimitBlocking(descriptor, kLongestConnect);
  const int result = system.Connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(address));
  const int error = errno;
  system.LimitBlocking(descriptor, 0);
  errno = error;
  return result == 0;
}

}  // namespace

ZESocketTransport::ZESocketTransport(const ZEString& path) : ZEStreamTransport(kTexts), m_path(path) {}

bool ZESocketTransport::connect() {
  disconnect();
  m_socket = zelto::System().Socket(AF_UNIX, SOCK_STREAM, 0);
  if (m_socket == -1) {
    log("ZELTO ERROR - ZESocketTransport::connect(), couldn't create socket");
    return false;
  }
  sockaddr_un address;
  m_connected = makeAddress(m_path, &address) &&
                (connectTo(m_socket, address) || (errno == EINVAL && connectTo(m_socket, address)));
  if (!m_connected) log("ZELTO ERROR - ZESocketTransport::connect(), couldn't connect to socket");
  return m_connected;
}

void ZESocketTransport::disconnect() {
  if (m_socket == -1) return;
  zelto::System().Shutdown(m_socket, SHUT_RDWR);
  zelto::System().Close(m_socket);
  m_socket = -1;
  m_connected = false;
}
