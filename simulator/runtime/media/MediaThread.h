// A thread that sound or pictures need.
#pragma once

#include <functional>
#include <thread>

namespace simulator {

// Threads: started and ended by one other, which asks the body to end before it calls End().
class MediaThread {
 public:
  // An urgent one gets the highest priority that the system gives. False, and logged, when the system refuses
  // a thread. Does nothing while there is one.
  bool Start(const char* name, bool urgent, std::function<void()> body);
  // Returns when the body has.
  void End();

 private:
  std::thread m_thread;
};

}  // namespace simulator
