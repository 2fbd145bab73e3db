// Fetches what the engine sends on one channel.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

#include "simulator/runtime/media/MediaThread.h"

struct SHMIPC_channel_t;

namespace simulator {

// Always reads, whether anybody wants the packets or not, so that nothing old lies in the channel when a
// call begins.
// Threads: one of its own, on which the handler runs; the operations belong to one other.
class PacketReceiver {
 public:
  // The payload is `size` bytes, valid during the call. False when the packet is no use, which is logged.
  using Handler = std::function<bool(std::uint32_t type, const unsigned char* payload, std::size_t size)>;

  // An urgent one has the engine waiting for milliseconds only.
  PacketReceiver(const char* name, bool urgent, Handler handler);
  PacketReceiver(const PacketReceiver&) = delete;
  PacketReceiver& operator=(const PacketReceiver&) = delete;
  ~PacketReceiver();

  // Begins with a channel, for which this is the receiving end; null: without a thread.
  void Start(SHMIPC_channel_t* channel);
  // The handler is not called any more.
  void Stop();
  // As if it had fallen asleep: nothing is read.
  void Stall(bool stalled) { m_stalled = stalled; }

 private:
  void Run();
  void Refuse(std::uint32_t type, std::size_t size);

  const char* const m_name;
  const bool m_urgent;
  const Handler m_handler;
  SHMIPC_channel_t* m_channel = nullptr;
  std::uint64_t m_refused = 0;
  std::atomic<bool> m_stalled{false};
  std::atomic<bool> m_ended{false};
  MediaThread m_thread;
};

}  // namespace simulator
