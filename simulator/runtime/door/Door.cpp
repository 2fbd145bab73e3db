#include "simulator/runtime/door/Door.h"

#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace simulator {
namespace {

constexpr std::size_t kMaxLine = 1024 * 1024;
constexpr std::size_t kMaxVisitors = 32;

// Answers are short; a visitor that does not take one is let go.
bool SendLine(int descriptor, std::string line) {
  line += '\n';
  std::size_t sent = 0;
  while (sent < line.size()) {
    const ssize_t size = send(descriptor, line.data() + sent, line.size() - sent, MSG_NOSIGNAL);
    if (size < 0 && errno == EINTR) continue;
    if (size < 0) return false;
    sent += static_cast<std::size_t>(size);
  }
  return true;
}

}  // namespace

Door::Door(EventLoop& loop, const std::string& path, Answerer answerer)
    : m_loop(loop), m_socket(path), m_answerer(std::move(answerer)) {
  m_loop.Watch(m_socket.Descriptor(), EPOLLIN, [this](std::uint32_t) { AcceptVisitors(); });
}

Door::~Door() {
  while (!m_visitors.empty()) Leave(m_visitors.begin()->first);
  m_loop.Forget(m_socket.Descriptor());
}

void Door::AcceptVisitors() {
  for (int visitor = m_socket.Accept(); visitor >= 0; visitor = m_socket.Accept()) {
    if (m_visitors.size() >= kMaxVisitors) {
      close(visitor);
      continue;
    }
    m_visitors[visitor];
    m_loop.Watch(visitor, EPOLLIN, [this, visitor](std::uint32_t) {
      if (!Serve(visitor, m_visitors[visitor])) Leave(visitor);
    });
  }
}

bool Door::Serve(int visitor, std::string& input) {
  char buffer[4096];
  const ssize_t size = recv(visitor, buffer, sizeof buffer, 0);
  if (size < 0) return errno == EAGAIN || errno == EINTR;
  if (size == 0) return false;
  input.append(buffer, static_cast<std::size_t>(size));
  std::size_t begin = 0;
  for (auto end = input.find('\n'); end != std::string::npos; end = input.find('\n', begin)) {
    const std::string line = input.substr(begin, end - begin);
    begin = end + 1;
    if (!SendLine(visitor, m_answerer(line))) return false;
  }
  input.erase(0, begin);
  return input.size() <= kMaxLine;
}

void Door::Leave(int visitor) {
  m_loop.Forget(visitor);
  m_visitors.erase(visitor);
  close(visitor);
}

}  // namespace simulator
