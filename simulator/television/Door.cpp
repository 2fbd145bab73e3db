#include "simulator/television/Door.h"

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace television {

namespace {

constexpr timeval kPatience{5, 0};

class Descriptor {
 public:
  explicit Descriptor(int number) : m_number(number) {}
  ~Descriptor() {
    if (m_number >= 0) close(m_number);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Number() const { return m_number; }

 private:
  int m_number;
};

[[noreturn]] void Fail(const std::string& door) {
  throw std::runtime_error("the test door " + door + ": " + std::strerror(errno));
}

}  // namespace

std::string OrderThroughDoor(const std::string& door, const std::string& order) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (door.size() >= sizeof address.sun_path)
    throw std::runtime_error("the test door's path is too long: " + door);
  std::memcpy(address.sun_path, door.c_str(), door.size() + 1);
  const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  setsockopt(socket.Number(), SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
  if (connect(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) Fail(door);
  const std::string line = order + '\n';
  if (send(socket.Number(), line.data(), line.size(), MSG_NOSIGNAL) != static_cast<ssize_t>(line.size()))
    Fail(door);
  std::string answer;
  for (char c = 0; c != '\n';) {
    if (recv(socket.Number(), &c, 1, 0) != 1) Fail(door);
    if (c != '\n') answer += c;
  }
  return answer;
}

}  // namespace television
