#include "simulator/television/media/PlaybackBuffer.h"

#include <algorithm>

#include "simulator/television/media/SoundFormat.h"

namespace television {

namespace {

using std::chrono::nanoseconds;

constexpr std::size_t kNanosecondsPerSecond = 1'000'000'000;

nanoseconds Duration(std::size_t bytes) {
  return nanoseconds(bytes * kNanosecondsPerSecond / kBytesPerSecond);
}

std::size_t Bytes(nanoseconds duration) {
  return static_cast<std::size_t>(duration.count()) * kBytesPerSecond / kNanosecondsPerSecond;
}

}  // namespace

std::size_t PlaybackBuffer::Add(std::size_t bytes, Clock::time_point now) {
  m_empty = std::max(m_empty, now) + Duration(bytes);
  return Waiting(now);
}

std::size_t PlaybackBuffer::Waiting(Clock::time_point now) const {
  return now < m_empty ? Bytes(m_empty - now) : 0;
}

}  // namespace television
