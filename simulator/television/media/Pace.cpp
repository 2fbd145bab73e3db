#include "simulator/television/media/Pace.h"

#include <algorithm>

namespace television {

Pace::Clock::time_point Pace::Next(Clock::time_point now) {
  m_due += m_period;
  if (now - m_due > kMostBehind * m_period) m_due = now;
  return std::max(m_due, now + m_period / 2);
}

}  // namespace television
