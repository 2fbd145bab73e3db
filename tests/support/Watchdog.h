// Ends a test that hangs, and tells where.
#pragma once

namespace test {

// When it still lives after that many seconds, it prints what every thread of the process does (its name
// and its call stack), and aborts the process. At most one at a time.
// Threads: one; it works whatever the others do.
class Watchdog {
 public:
  explicit Watchdog(unsigned seconds);
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;
  ~Watchdog();
};

}  // namespace test
