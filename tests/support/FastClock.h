// Time for tests: runs faster than the wall's, so that nobody waits for what only a clock decides.
#pragma once

#include "Common/Platform.h"

namespace test {

// A platform whose clocks and sleeps run `factor` times as fast as the operating system's. Installed for
// the lifetime of the object; everything else is forwarded.
class FastClock : public zelto::Platform {
 public:
  explicit FastClock(std::int64_t factor = 50);
  ~FastClock() override;

  std::int64_t Now() override;
  std::int64_t WallClock() override;
  void Sleep(std::int64_t nanoseconds) override;
  int WaitCondition(pthread_cond_t* condition, pthread_mutex_t* mutex, std::int64_t nanoseconds) override;
  int WaitConditionByWallClock(pthread_cond_t* condition, pthread_mutex_t* mutex,
                               std::int64_t nanoseconds) override;
  int LockMutex(pthread_mutex_t* mutex, std::int64_t nanoseconds) override;

 private:
  const std::int64_t m_factor;
  const std::int64_t m_start;
  const std::int64_t m_wallStart;
  zelto::Platform* m_before;
};

}  // namespace test
