#include "apiwrapper/ZEStreamTransport.h"

#include <cerrno>
#include <cstring>

#include "Common/Platform.h"

namespace {

constexpr std::size_t kHeaderSize = 4;

void encodeLength(std::uint32_t length, char* header) {
  for (std::size_t i = 0; i < kHeaderSize; ++i) {
    header[i] = static_cast<char>(static_cast<unsigned char>(length >> (8 * (kHeaderSize - 1 - i))));
  }
}

std::uint32_t decodeLength(const char* header) {
  std::uint32_t length = 0;
  for (std::size_t i = 0; i < kHeaderSize; ++i)
    length = (length << 8) | static_cast<unsigned char>(header[i]);
  return length;
}

}  // namespace

bool ZEStreamTransport::writeAll(const char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t written = zelto::System().WriteSocket(m_socket, data, size);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) {
      m_connected = false;
      return false;
    }
    data += written;
    size -= static_cast<std::size_t>(written);
  }
  return true;
}

bool ZEStreamTransport::readAll(char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t received = zelto::System().Read(m_socket, data, size);
    if (received < 0 && errno == EINTR) continue;
    if (received <= 0) {
      m_connected = false;
      return false;
    }
    data += received;
    size -= static_cast<std::size_t>(received);
  }
  return true;
}

ZEString ZEStreamTransport::readText(std::uint32_t length) {
  bool complete = false;
  ZEString text = ZEString::filled(length, [&](char* bytes) {
    complete = readAll(bytes, length);
    if (!complete) *bytes = '\0';
  });
  return complete ? text : ZEString();
}

void ZEStreamTransport::push(const ZEString& message) {
  if (!m_connected) {
    log(m_texts.pushNotConnected);
    return;
  }
  const std::uint32_t length = message.length();
  if (length >= kFrameLengthLimit) {
    log(m_texts.pushTooLong);
    return;
  }
  char header[kHeaderSize];
  encodeLength(length, header);
  if (!writeAll(header, kHeaderSize) || !writeAll(message, length)) return;
  if (traceMessages && logFunction != nullptr) {
    ZEString line("TRANSPORT: Wrote message \"");
    line += message;
    line += "\"";
    log(line);
  }
}

ZEString ZEStreamTransport::pull(bool block) {
  if (!m_connected) {
    log(m_texts.pullNotConnected);
    return ZEString();
  }
  if (!block && !hasMore(0)) return ZEString();

  char header[kHeaderSize];
  if (!readAll(header, kHeaderSize)) return ZEString();
  const std::uint32_t length = decodeLength(header);
  if (length >= kFrameLengthLimit) {
    log(m_texts.garbage);
    m_connected = false;
    return ZEString();
  }
  ZEString message = readText(length);
  if (m_connected && traceMessages && logFunction != nullptr) {
    ZEString line("TRANSPORT: Got message (len=");
    line += ZEString::from(length, 10);
    line += ") \"";
    line += message;
    line += "\"";
    log(line);
  }
  return message;
}

bool ZEStreamTransport::hasMore(int milliseconds) {
  if (!m_connected) return false;
  for (;;) {
    const int ready = zelto::System().WaitReadable(m_socket, milliseconds);
    if (ready >= 0) return ready > 0;
    if (errno == EINTR) continue;
    logWaitFailure(errno);
    m_connected = false;
    return true;
  }
}

void ZEStreamTransport::logWaitFailure(int error) const {
  ZEString line(m_texts.waitFailed);
  char reason[128];
  if (m_texts.waitFailedNamesError) line += strerror_r(error, reason, sizeof(reason));
  log(line);
}
