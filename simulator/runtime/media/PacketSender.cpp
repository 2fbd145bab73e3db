#include "simulator/runtime/media/PacketSender.h"

#include <string>
#include <utility>

#include "Common/Platform.h"
#include "shmipc/shmipc.h"
#include "simulator/runtime/Log.h"
#include "simulator/runtime/media/PacketTypes.h"

namespace simulator {
namespace {

constexpr int kTimedOut = -4;

// Between two looks whether the packet is wanted any longer. The channel is looked at in steps of an eighth
// of it at most.
constexpr int kAttempt = 40;
constexpr int kUrgentAttempt = 8;

// A channel with a word that cannot be answers at once, every time.
constexpr int kPause = 20;

// More would only keep what one burst needed.
constexpr std::size_t kMostSpare = 16;

}  // namespace

PacketSender::PacketSender(const char* name, bool urgent) : m_name(name), m_urgent(urgent) {}

PacketSender::~PacketSender() { Stop(); }

void PacketSender::Start(SHMIPC_channel_t* channel) {
  if (channel == nullptr) return;
  m_channel = channel;
  {
    const zelto::MutexLock lock(m_lock);
    m_running = true;
  }
  if (!m_thread.Start(m_name, m_urgent, [this] { Run(); })) Stop();
}

void PacketSender::Stop() {
  {
    const zelto::MutexLock lock(m_lock);
    m_running = false;
    m_changed.NotifyAll();
  }
  m_thread.End();
  Clear();
}

bool PacketSender::Push(std::uint32_t type, const void* payload, std::size_t size, std::size_t mostWaiting) {
  const zelto::MutexLock lock(m_lock);
  if (!m_running) return false;
  if (m_waiting.size() >= mostWaiting) {
    Drop(type);
    return false;
  }
  Packet packet;
  if (!m_spare.empty()) {
    packet = std::move(m_spare.back());
    m_spare.pop_back();
  }
  const auto* bytes = static_cast<const unsigned char*>(payload);
  packet.type = type;
  packet.payload.assign(bytes, bytes + size);
  m_waiting.push_back(std::move(packet));
  m_changed.NotifyAll();
  return true;
}

void PacketSender::Clear() {
  const zelto::MutexLock lock(m_lock);
  m_waiting.clear();
  ++m_clearings;
}

void PacketSender::Run() {
  Packet packet;
  unsigned clearing = 0;
  while (Take(packet, clearing)) Send(packet, clearing);
}

bool PacketSender::Take(Packet& packet, unsigned& clearing) {
  const zelto::MutexLock lock(m_lock);
  if (packet.payload.capacity() > 0 && m_spare.size() < kMostSpare) m_spare.push_back(std::move(packet));
  while (m_running && m_waiting.empty()) m_changed.Wait(m_lock);
  if (!m_running) return false;
  packet = std::move(m_waiting.front());
  m_waiting.pop_front();
  clearing = m_clearings;
  return true;
}

void PacketSender::Send(const Packet& packet, unsigned clearing) {
  const SHMIPC_packet_t head{packet.type, static_cast<std::uint32_t>(packet.payload.size())};
  const int attempt = m_urgent ? kUrgentAttempt : kAttempt;
  int result = kTimedOut;
  while (result == kTimedOut && !IsForgotten(clearing)) {
    result = SHMIPC_send_packet(m_channel, &head, packet.payload.data(), attempt);
  }
  if (result == 0) {
    if (packet.type == packet::kMedia) ++m_sent;
  } else if (result != kTimedOut) {
    Drop(packet.type);
    zelto::SleepMilliseconds(kPause);
  }
}

bool PacketSender::IsForgotten(unsigned clearing) {
  const zelto::MutexLock lock(m_lock);
  return !m_running || clearing != m_clearings;
}

// Whoever drops one drops many: fewer and fewer are told of.
void PacketSender::Drop(std::uint32_t type) {
  if (type != packet::kMedia) {
    Log(std::string(m_name) + ": a packet of type " + std::to_string(type) + " cannot be sent");
    return;
  }
  const std::uint64_t dropped = ++m_dropped;
  if ((dropped & (dropped - 1)) == 0) {
    Log(std::string(m_name) + ": the engine does not take them, dropped so far: " + std::to_string(dropped));
  }
}

}  // namespace simulator
