#include "simulator/television/media/PictureLedger.h"

#include <algorithm>

namespace television {

namespace {

constexpr std::int64_t kOldest = 60'000'000;  // microseconds; a picture older than that is a recording

bool IsLive(const std::optional<simulator::BurntIn>& burnt, std::int64_t now) {
  return burnt && burnt->clock <= now && now - burnt->clock < kOldest;
}

}  // namespace

void PictureLedger::Begin() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_counts = {};
  m_sentClocks = {};
  m_last.reset();
  m_latencies = 0;
}

void PictureLedger::GoOn() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_last.reset();
}

void PictureLedger::Sent(const simulator::BurntIn& burnt) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  ++m_counts.sent;
  m_sentClocks[burnt.counter % kRemembered] = burnt.clock;
}

void PictureLedger::Received(const std::optional<simulator::BurntIn>& burnt, std::int64_t arrived) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  ++m_counts.received;
  if (!IsLive(burnt, arrived)) {
    ++m_counts.unmarked;
    return;
  }
  const bool echo = m_sentClocks[burnt->counter % kRemembered] == burnt->clock;
  if (echo != m_counts.echo) m_last.reset();  // another camera, with its own counter
  m_counts.echo = echo;
  if (m_last && burnt->counter <= *m_last) ++m_counts.repeated;
  if (m_last && burnt->counter > *m_last) m_counts.dropped += burnt->counter - *m_last - 1;
  m_last = burnt->counter;
  const std::int64_t latency = arrived - burnt->clock;
  m_latencies += latency;
  m_counts.latency = m_latencies / static_cast<std::int64_t>(m_counts.received - m_counts.unmarked);
  m_counts.mostLatency = std::max(m_counts.mostLatency, latency);
}

PictureCounts PictureLedger::Counts() const {
  const std::lock_guard<std::mutex> lock(m_mutex);
  return m_counts;
}

}  // namespace television
