// The signals that end a program, read where its sockets are.
#pragma once

#include <functional>

#include "simulator/common/EventLoop.h"

namespace simulator {

// Calls back for SIGTERM and SIGINT as long as it lives.
// Threads: as the loop.
class EndSignals {
 public:
  // To be called before any thread is started and any socket is opened: from then on the signals wait, also
  // when the process was started with either ignored.
  static void Block();

  // The loop outlives this object.
  EndSignals(EventLoop& loop, std::function<void()> end);
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;
  ~EndSignals();

 private:
  EventLoop& m_loop;
  const int m_descriptor;
};

}  // namespace simulator
