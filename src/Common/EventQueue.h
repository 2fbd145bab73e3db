// The engine's event queue.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>

#include "Common/Locks.h"
#include "Common/ZeltoEvent.h"

namespace zelto {

// Events in the order of their delivery. Delayed ("lazy") events wait in the same queue: the event thread
// moves one that it meets to the back and ends its pass when it meets a second one, so a delay is a lower
// bound, counted in passes.
// Threads: any may send; one thread takes. Lives as long as the process, so that a thread that is late
// meets a closed queue and never freed memory.
class EventQueue {
 public:
  // What one pass of the event thread takes off a delay.
  static constexpr int kTickMilliseconds = 10;

  // The engine's own.
  static EventQueue& Get() {
    static EventQueue* const queue = new EventQueue;
    return *queue;
  }

  // A closed queue drops what it holds and whatever is sent to it. Starts closed.
  void Open();
  void Close();

  // Appends an event; a delay of 0 or less makes it an immediate one.
  void Send(int type, int param, int delay = 0);
  // Drops the first event of that type that is still delayed, if there is one.
  void DeleteLazy(int type);

  // Begins a pass: every delay grows shorter by one tick. Costs the same however many events wait.
  void Tick();
  // Takes the events that are due next, `room` at most, into `events` and answers their number. 0 ends
  // the pass. Events sent while the caller works on them come after them.
  std::size_t Take(CZeltoEvent* events, std::size_t room);

 private:
  struct Entry {
    int type;
    int param;
    int delay;          // as sent
    std::uint32_t due;  // for a delayed event: the tick at which its delay is used up
  };

  // The tick wraps around after more than a year; delays are far shorter than half of that.
  bool IsDelayed(const Entry& entry) const {
    return entry.delay > 0 &&
           static_cast<std::int32_t>(entry.due - m_tick.load(std::memory_order_relaxed)) > 0;
  }
  void NoteSize() ZELTO_REQUIRES(m_lock) { m_size.store(m_entries.size(), std::memory_order_relaxed); }

  Mutex m_lock{LockRank::Queue, "event queue"};
  std::deque<Entry> m_entries ZELTO_GUARDED_BY(m_lock);
  bool m_open ZELTO_GUARDED_BY(m_lock) = false;
  // Read without the lock, so that an empty queue costs its thread nothing; the size is written under it.
  std::atomic<std::size_t> m_size{0};
  std::atomic<std::uint32_t> m_tick{0};  // written by the taking thread
};

}  // namespace zelto
