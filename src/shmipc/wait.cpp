#include "shmipc/wait.h"

#include <algorithm>

#include "Common/Platform.h"
#include "shmipc/segment.h"

namespace shmipc {

namespace {

// Steps double from 65 microseconds, which a fast partner needs, to 4 milliseconds, which an idle
// processor can bear.
constexpr int kFirstExponent = 16;
constexpr int kLastExponent = 22;

// No step is longer than this part of the whole, so that a short timeout is not overslept.
constexpr int kStepsPerTimeout = 8;

constexpr std::int64_t kNoCap = 0;

std::int64_t Nanoseconds(int timeout) {
  return std::clamp(timeout, 0, kLongestTimeout) * zelto::kNanosecondsPerMillisecond;
}

}  // namespace

int Wait::ForChange(const std::uint32_t& word, std::uint32_t seen) {
  if (IsOver()) return kTimedOut;
  if (ReadWord(word) != seen) return 0;
  if (m_timeout != kForever) return InSteps(word, seen, Nanoseconds(m_timeout));
  for (int exponent = kFirstExponent;; exponent = std::min(exponent + 1, kLastExponent)) {
    zelto::System().Sleep(Step(exponent, kNoCap));
    if (ReadWord(word) != seen) return 0;
  }
}

// The first wait has all the time; a later one only what the clock has left.
bool Wait::IsOver() {
  if (m_timeout == kForever) return false;
  const std::int64_t now = zelto::System().Now();
  if (m_start >= 0) return now - m_start >= Nanoseconds(m_timeout);
  m_start = now;
  return false;
}

int Wait::InSteps(const std::uint32_t& word, std::uint32_t seen, std::int64_t total) const {
  std::int64_t slept = 0;
  std::int64_t cap = total / kStepsPerTimeout;
  for (int exponent = kFirstExponent; cap > 0; exponent = std::min(exponent + 1, kLastExponent)) {
    const std::int64_t step = Step(exponent, cap);
    zelto::System().Sleep(step);
    if (ReadWord(word) != seen) return 0;
    slept += step;
    cap = std::min(total / kStepsPerTimeout, total - slept);
  }
  return kTimedOut;
}

std::int64_t Wait::Step(int exponent, std::int64_t cap) const {
  std::int64_t step = std::int64_t{1} << exponent;
  if (cap != kNoCap) step = std::min(step, cap);
  const bool mayReplace = cap == kNoCap || cap > m_floor;
  return mayReplace ? std::max(step, m_floor) : step;
}

}  // namespace shmipc
