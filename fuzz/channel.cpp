// Receiving from, sending into and attaching to a segment that another process has filled with anything.
// The input: how the operations go on (one byte), then the segment from its header on.
#include <sys/ipc.h>
#include <sys/shm.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "Common/Platform.h"
#include "shmipc/segment.h"
#include "shmipc/shmipc.h"

namespace {

constexpr unsigned kCapacity = 512;
constexpr std::size_t kSegmentSize = kCapacity + shmipc::kHeaderSize;
constexpr int kOperations = 32;

// Segments are heap blocks here, so that the sanitizer sees every byte beside them; nobody sleeps.
class HeapSegments : public zelto::Platform {
 public:
  HeapSegments() { zelto::SetSystem(this); }

  int Open(const char*, int, mode_t) override { return 1000; }
  int Close(int) override { return 0; }
  int LockFile(int) override { return 0; }
  key_t Ftok(const char*, int project) override { return project; }
  int ShmGet(key_t, std::size_t size, int) override { return size == kSegmentSize ? 1 : -1; }
  void* ShmAt(int) override { return m_segment; }
  int ShmDt(const void*) override { return 0; }
  void Sleep(std::int64_t nanoseconds) override { m_now += nanoseconds; }
  std::int64_t Now() override { return m_now; }

  unsigned char* m_segment = nullptr;

 private:
  std::int64_t m_now = 0;
};

struct CloseChannel {
  void operator()(SHMIPC_channel_t* channel) const { SHMIPC_close_channel(channel); }
};
using Channel = std::unique_ptr<SHMIPC_channel_t, CloseChannel>;

std::uint32_t g_sum = 0;

// Reads every byte that a received packet is said to have.
std::uint32_t Sum(const SHMIPC_packet_t& packet) {
  const auto* payload = reinterpret_cast<const unsigned char*>(&packet + 1);
  std::uint32_t sum = packet.type;
  for (std::uint32_t i = 0; i < packet.length; ++i) sum += payload[i];
  return sum;
}

void Operate(SHMIPC_channel_t* sender, SHMIPC_channel_t* receiver, unsigned char choices) {
  static const char kPayload[kCapacity] = {};
  for (int i = 0; i < kOperations; ++i) {
    const std::uint32_t draw = choices * 97u + static_cast<std::uint32_t>(i) * 41u;
    const SHMIPC_packet_t packet{draw, draw % kCapacity};
    if (draw % 3 == 0) SHMIPC_send_packet(sender, &packet, kPayload, static_cast<int>(draw % 2));
    const SHMIPC_packet_t* const received = SHMIPC_recv_packet(receiver, static_cast<int>(draw % 2), nullptr);
    if (received != nullptr) g_sum += Sum(*received);
  }
  const auto* const blob = static_cast<const unsigned char*>(SHMIPC_get_config(receiver));
  if (blob != nullptr) g_sum += *blob;
  SHMIPC_wait_for_connection(receiver, 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static HeapSegments system;
  if (size == 0) return 0;
  const std::unique_ptr<unsigned char, decltype(&std::free)> segment(
      static_cast<unsigned char*>(std::aligned_alloc(shmipc::kUnit, kSegmentSize)), &std::free);
  std::memset(segment.get(), 0, kSegmentSize);
  std::memcpy(segment.get(), data + 1, std::min(size - 1, kSegmentSize));
  // An attacher insists on the capacity word; most inputs should get further.
  if (data[0] % 16 != 0) std::memcpy(segment.get(), &kCapacity, sizeof kCapacity);
  system.m_segment = segment.get();
  const Channel sender(SHMIPC_open_channel("/key", kCapacity, 1, 0));
  const Channel receiver(SHMIPC_open_channel("/key", kCapacity, 1, 0));
  if (sender == nullptr || receiver == nullptr) return 0;
  SHMIPC_initialize_sender(sender.get());
  SHMIPC_initialize_receiver(receiver.get());
  Operate(sender.get(), receiver.get(), data[0]);
  return 0;
}
