#include "simulator/common/Connection.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

namespace simulator {
namespace {

// An engine that reads nothing any more must not fill the memory.
constexpr std::size_t kMaxOutput = 64 * 1024 * 1024;
// Between the pieces of a split frame: long enough for the other side to find the first alone.
constexpr auto kSplitPause = std::chrono::microseconds(500);

}  // namespace

Connection::~Connection() { close(m_descriptor); }

bool Connection::Receive(const Receiver& receiver) {
  char* room = m_reader.Room();
  const ssize_t size = recv(m_descriptor, room, m_reader.RoomSize(), 0);
  if (size == 0) return false;
  if (size < 0) return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
  m_reader.Filled(static_cast<std::size_t>(size));
  std::string_view text;
  while (m_reader.Next(text)) receiver(text);
  return !m_reader.Broken() && Flush();
}

void Connection::Send(std::string_view text) {
  if (text.size() <= kMaxFrameText) AppendFrame(m_output, text);
}

bool Connection::Flush() {
  if (!HasOutput()) return true;
  if (m_output.size() - m_written > kMaxOutput) return false;
  if (!(m_pieces.first > 0 ? FlushSplit() : Write(m_output.size()))) return false;
  if (!HasOutput()) {
    m_output.clear();
    m_written = 0;
  }
  return true;
}

bool Connection::Write(std::size_t end) {
  while (m_written < end) {
    const ssize_t size = send(m_descriptor, m_output.data() + m_written, end - m_written, MSG_NOSIGNAL);
    if (size >= 0) {
      m_written += static_cast<std::size_t>(size);
    } else if (errno != EINTR) {
      return errno == EAGAIN || errno == EWOULDBLOCK;
    }
  }
  return true;
}

bool Connection::FlushSplit() {
  while (HasOutput()) {
    const std::string_view rest = std::string_view(m_output).substr(m_written);
    std::size_t length = kFrameHeader;
    for (std::size_t i = 0, text = 0; i < kFrameHeader && i < rest.size(); ++i) {
      text = text << 8 | static_cast<unsigned char>(rest[i]);
      length = kFrameHeader + text;
    }
    const std::size_t end = m_written + std::min(length, rest.size());
    for (std::size_t cut = m_written + m_pieces.first; m_written < end;) {
      const std::size_t piece = std::min(cut, end);
      if (!Write(piece)) return false;
      if (m_written < piece) return true;
      if (piece < end) std::this_thread::sleep_for(kSplitPause);
      cut = m_pieces.every > 0 ? cut + m_pieces.every : end;
    }
  }
  return true;
}

}  // namespace simulator
