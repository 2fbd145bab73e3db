#include "tests/support/FastClock.h"

namespace test {

FastClock::FastClock(std::int64_t factor)
    : m_factor(factor),
      m_start(Platform::Now()),
      m_wallStart(Platform::WallClock()),
      m_before(zelto::SetSystem(this)) {}

FastClock::~FastClock() { zelto::SetSystem(m_before); }

std::int64_t FastClock::Now() { return m_start + (Platform::Now() - m_start) * m_factor; }

std::int64_t FastClock::WallClock() { return m_wallStart + (Now() - m_start) / 1000; }

void FastClock::Sleep(std::int64_t nanoseconds) { Platform::Sleep(nanoseconds / m_factor); }

int FastClock::WaitCondition(pthread_cond_t* condition, pthread_mutex_t* mutex, std::int64_t nanoseconds) {
  return Platform::WaitCondition(condition, mutex, nanoseconds / m_factor);
}

int FastClock::WaitConditionByWallClock(pthread_cond_t* condition, pthread_mutex_t* mutex,
                                        std::int64_t nanoseconds) {
  return Platform::WaitConditionByWallClock(condition, mutex, nanoseconds / m_factor);
}

int FastClock::LockMutex(pthread_mutex_t* mutex, std::int64_t nanoseconds) {
  return Platform::LockMutex(mutex, nanoseconds / m_factor);
}

}  // namespace test
