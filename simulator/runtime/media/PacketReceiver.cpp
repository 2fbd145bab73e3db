#include "simulator/runtime/media/PacketReceiver.h"

#include <utility>

#include "Common/Platform.h"
#include "shmipc/shmipc.h"
#include "simulator/runtime/Log.h"

namespace simulator {
namespace {

constexpr int kTimedOut = -4;

// A channel is looked at in steps of an eighth of the timeout at most, and of four milliseconds at most. The
// engine waits five for room for its sound, so while sound comes it is looked at every millisecond.
constexpr int kIdleTimeout = 40;
constexpr int kBusyTimeout = 8;
constexpr std::int64_t kBusyFor = 1000 * zelto::kNanosecondsPerMillisecond;

// A channel with a word that cannot be answers at once, every time.
constexpr int kPause = 20;

}  // namespace

PacketReceiver::PacketReceiver(const char* name, bool urgent, Handler handler)
    : m_name(name), m_urgent(urgent), m_handler(std::move(handler)) {}

PacketReceiver::~PacketReceiver() { Stop(); }

void PacketReceiver::Start(SHMIPC_channel_t* channel) {
  if (channel == nullptr) return;
  m_channel = channel;
  m_ended = false;
  m_stalled = false;
  m_thread.Start(m_name, m_urgent, [this] { Run(); });
}

void PacketReceiver::Stop() {
  m_ended = true;
  m_thread.End();
}

void PacketReceiver::Run() {
  std::int64_t busyUntil = 0;
  while (!m_ended) {
    if (m_stalled) {
      zelto::SleepMilliseconds(kPause);
      continue;
    }
    const bool busy = m_urgent && zelto::System().Now() < busyUntil;
    int error = 0;
    const SHMIPC_packet_t* packet = SHMIPC_recv_packet(m_channel, busy ? kBusyTimeout : kIdleTimeout, &error);
    if (packet != nullptr) {
      busyUntil = zelto::System().Now() + kBusyFor;
      const auto* payload = reinterpret_cast<const unsigned char*>(packet + 1);
      if (!m_handler(packet->type, payload, packet->length)) Refuse(packet->type, packet->length);
    } else if (error != kTimedOut) {
      zelto::SleepMilliseconds(kPause);
    }
  }
}

// Whoever sends one sends many: fewer and fewer are told of.
void PacketReceiver::Refuse(std::uint32_t type, std::size_t size) {
  ++m_refused;
  if ((m_refused & (m_refused - 1)) != 0) return;
  Log(std::string(m_name) + ": a packet of type " + std::to_string(type) + " with " + std::to_string(size) +
      " bytes is no use (" + std::to_string(m_refused) + " so far)");
}

}  // namespace simulator
