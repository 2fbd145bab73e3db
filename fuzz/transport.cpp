// Frame reading: the bytes come over a socket pair, a few at a time, and every message that comes out is
// compared with what a plain reading of the bytes gives.
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "Common/Platform.h"
#include "apiwrapper/ZESocketTransport.h"

namespace {

constexpr std::size_t kLargestInput = 60000;  // fits into the socket's buffer

// Connects every transport to one end of a socket pair and reads at most `piece` bytes at once.
class PairedSystem : public zelto::Platform {
 public:
  PairedSystem(int descriptor, std::size_t piece) : m_descriptor(descriptor), m_piece(piece) {}
  int Socket(int, int, int) override { return m_descriptor; }
  int Connect(int, const sockaddr*, socklen_t) override { return 0; }
  ssize_t Read(int descriptor, void* buffer, std::size_t size) override {
    return Platform::Read(descriptor, buffer, std::min(size, m_piece));
  }

 private:
  int m_descriptor;
  std::size_t m_piece;
};

// The next whole message at `position`; false when the stream ends or turns to garbage there.
bool nextMessage(const std::string& bytes, std::size_t* position, std::string* message) {
  if (bytes.size() - *position < 4) return false;
  std::size_t length = 0;
  for (std::size_t i = 0; i < 4; ++i) length = length << 8 | static_cast<unsigned char>(bytes[*position + i]);
  if (length >= kFrameLengthLimit || bytes.size() - *position - 4 < length) return false;
  *message = bytes.substr(*position + 4, length);
  *position += 4 + length;
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0 || size > kLargestInput) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data + 1), size - 1);
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return 0;
  if (write(ends[1], bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) abort();
  close(ends[1]);

  PairedSystem system(ends[0], std::size_t{1} + data[0]);
  zelto::Platform* former = zelto::SetSystem(&system);
  ZESocketTransport transport("/unused");
  if (!transport.connect()) abort();
  std::size_t position = 0;
  std::string expected;
  while (nextMessage(bytes, &position, &expected)) {
    const ZEString message = transport.pull(true);
    if (message.isNull() || !message.equals(expected.c_str())) abort();
  }
  if (!transport.pull(true).isNull() || transport.isConnected()) abort();
  transport.disconnect();
  zelto::SetSystem(former);
  return 0;
}
