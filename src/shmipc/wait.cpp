#include "shmipc/wait.h"

#include <algorithm>

#include "Common/Platform.h"

namespace shmipc {

namespace {

// No step is longer than this part of the whole, so that a short timeout is not overslept.
constexpr int kStepsPerTimeout = 8;

constexpr std::int64_t kNoCap = 0;

std::int64_t Nanoseconds(int timeout) {
  return std::clamp(timeout, 0, kLongestTimeout) * zelto::kNanosecondsPerMillisecond;
}

}  // namespace

int Wait::Step() {
  std::int64_t cap = kNoCap;
  if (m_timeout != kForever) {
    const std::int64_t total = Nanoseconds(m_timeout);
    cap = std::min(total / kStepsPerTimeout, total - m_slept);
    if (cap <= 0) return kTimedOut;
  }
  const std::int64_t length = Length(cap);
  zelto::System().Sleep(length);
  m_slept += length;
  m_exponent = std::min(m_exponent + 1, kLastExponent);
  return 0;
}

std::int64_t Wait::Length(std::int64_t cap) const {
  const std::int64_t length = std::int64_t{1} << m_exponent;
  if (cap == kNoCap) return std::max(length, m_floor);
  return std::max(std::min(length, cap), cap > m_floor ? m_floor : 0);
}

}  // namespace shmipc
