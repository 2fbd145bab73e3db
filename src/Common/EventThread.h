// The thread that takes events off the queue and has everybody react to them.
#pragma once

#include <pthread.h>

#include <atomic>
#include <cstdint>

#include "Common/EventReactions.h"
#include "Common/ZeltoEvent.h"

namespace zelto {

// One pass each 10 ms. For every event: the registered handler's OnEvent; if it lets the event through, the
// delivery to the host and the handler's AfterEvent; then the engine's own reactions.
// Threads: Start and Stop by one owner; a pass on the event thread.
class EventThread {
 public:
  EventThread() = default;
  EventThread(const EventThread&) = delete;
  EventThread& operator=(const EventThread&) = delete;
  ~EventThread() { Stop(); }

  // False when the thread can't be started.
  bool Start();
  // Lets the thread finish its pass, for a second at most. It ends as soon as the handler or the host
  // function that it is in has returned.
  void RequestStop();
  bool HasEnded() const { return m_ended; }
  // The same, and waits until it has ended. Not on the thread itself.
  void Stop();

  // One pass. For the thread, and for whoever runs none.
  void OnEvent();

 private:
  static void* Body(void* self);
  void MainThread();
  void Process(const CZeltoEvent& event);
  bool IsOverdue() const;

  pthread_t m_thread{};
  bool m_started = false;
  std::atomic<bool> m_running{true};
  std::atomic<bool> m_ended{false};
  std::atomic<std::int64_t> m_deadline{0};  // of the last pass, once m_running is clear
  ReactionState m_reactions;
};

}  // namespace zelto
