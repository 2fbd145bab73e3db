// Sends packets to the engine on one channel, one after the other.
#pragma once

#include <atomic>
#include <cstdint>
#include <deque>
#include <vector>

#include "Common/Locks.h"
#include "simulator/runtime/media/MediaThread.h"

struct SHMIPC_channel_t;

namespace simulator {

// A queue, since an engine takes its time and whoever has a packet must not wait for it.
// Threads: one of its own, which sends; Push from any, the other operations belong to one.
class PacketSender {
 public:
  // An urgent one's packets are for the ear.
  PacketSender(const char* name, bool urgent);
  PacketSender(const PacketSender&) = delete;
  PacketSender& operator=(const PacketSender&) = delete;
  ~PacketSender();

  // Begins with a channel, for which this is the sending end; null: without a thread.
  void Start(SHMIPC_channel_t* channel);
  // What waits is forgotten.
  void Stop();

  // Takes a copy. False when nobody sends, or when so many packets wait already: dropped then.
  bool Push(std::uint32_t type, const void* payload, std::size_t size, std::size_t mostWaiting);
  // Forgets what waits.
  void Clear();

  // Packets of sound or pictures since the beginning.
  std::uint64_t Sent() const { return m_sent; }
  std::uint64_t Dropped() const { return m_dropped; }

 private:
  struct Packet {
    std::uint32_t type = 0;
    std::vector<unsigned char> payload;
  };

  void Run();
  // Waits for the next packet and gives the last one's memory back; false at the end.
  bool Take(Packet& packet, unsigned& clearing);
  void Send(const Packet& packet, unsigned clearing);
  bool IsForgotten(unsigned clearing);
  void Drop(std::uint32_t type);

  const char* const m_name;
  const bool m_urgent;
  SHMIPC_channel_t* m_channel = nullptr;
  std::atomic<std::uint64_t> m_sent{0};
  std::atomic<std::uint64_t> m_dropped{0};
  MediaThread m_thread;

  zelto::Mutex m_lock{zelto::LockRank::Ring, "packets to the engine"};
  zelto::Condition m_changed;
  std::deque<Packet> m_waiting ZELTO_GUARDED_BY(m_lock);
  std::vector<Packet> m_spare ZELTO_GUARDED_BY(m_lock);  // their memory is used again
  unsigned m_clearings ZELTO_GUARDED_BY(m_lock) = 0;
  bool m_running ZELTO_GUARDED_BY(m_lock) = false;
};

}  // namespace simulator
