// Waits for descriptors and calls whoever watches them.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace simulator {

// Threads: none of its own; everything runs in Wait().
class EventLoop {
 public:
  using Callback = std::function<void(std::uint32_t events)>;  // EPOLLIN and its like

  EventLoop();
  EventLoop(const EventLoop&) = delete;
  EventLoop& operator=(const EventLoop&) = delete;
  ~EventLoop();

  // Calls back as long as the descriptor is ready. Watching it again replaces events and callback.
  void Watch(int descriptor, std::uint32_t events, Callback callback);
  // No call of the descriptor's callback begins after this, which may be called from that callback.
  void Forget(int descriptor);

  // Waits that many milliseconds (-1: for ever) for the next ready descriptors and serves them.
  void Wait(std::int64_t milliseconds);

 private:
  int m_epoll;
  std::vector<std::shared_ptr<Callback>> m_callbacks;  // by descriptor
};

}  // namespace simulator
