#include "zelhost/media/MediaThread.h"

#include "Common/Guard.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "shmipc/wait.h"
#include "zelhost/media/MediaLimits.h"

void MediaThread::OpenChannel() {
  if (m_channel != nullptr) {
    ZELTO_DEBUG("[%s::OpenChannel] Already IPC Channel was opened!! ", m_description.owner);
    return;
  }
  m_channel = zelhost::OpenMediaChannel(m_description);
}

void MediaThread::CloseChannel() {
  SHMIPC_close_channel(m_channel);
  m_channel = nullptr;
}

// Running from here on and not only once the body has begun: a stop that comes in between counts.
bool MediaThread::Create(const char* name) {
  if (!IsCreated()) m_state = kRunning;
  if (CZeltoThread::Create(name)) return true;
  if (!IsCreated()) m_state = kStopped;
  return false;
}

void MediaThread::Destroy() {
  int running = kRunning;
  m_state.compare_exchange_strong(running, kStopRequested);
  while (m_state != kStopped) zelto::SleepMilliseconds(zelhost::kStopStep);
  CZeltoThread::Destroy();
}

void MediaThread::t_Main() {
  zelto::Guard(m_description.owner, [this] {
    Begin();
    while (IsRunning()) Round();
  });
  m_state = kStopped;
}

SHMIPC_packet_t* MediaThread::Receive(int milliseconds, bool* usable) {
  int error = 0;
  SHMIPC_packet_t* const packet = SHMIPC_recv_packet(m_channel, milliseconds, &error);
  if (usable != nullptr) *usable = error == 0 || error == shmipc::kTimedOut;
  return packet;
}

bool MediaThread::SendWhileRunning(unsigned type, const void* payload, unsigned size) {
  const SHMIPC_packet_t head{type, size};
  while (m_channel != nullptr && IsRunning()) {
    const int result = SHMIPC_send_packet(m_channel, &head, payload, zelhost::kLastingSendWait);
    if (result == 0) return true;
    // A channel with a bad word answers at once.
    if (result != shmipc::kTimedOut) zelto::SleepMilliseconds(zelhost::kLastingSendWait);
  }
  return false;
}
