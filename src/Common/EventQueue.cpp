#include "Common/EventQueue.h"

namespace zelto {
namespace {

// Ticks until a positive delay is used up.
constexpr std::uint32_t Ticks(int delay) {
  return static_cast<std::uint32_t>((delay - 1) / EventQueue::kTickMilliseconds + 1);
}

// What is left of a delay once it is used up: 0, or below when it is no multiple of a tick.
constexpr int Remainder(int delay) {
  return delay > 0 ? (delay - 1) % EventQueue::kTickMilliseconds + 1 - EventQueue::kTickMilliseconds : delay;
}

}  // namespace

void EventQueue::Open() {
  MutexLock lock(m_lock);
  m_open = true;
}

void EventQueue::Close() {
  std::deque<Entry> dropped;  // freed without the lock
  MutexLock lock(m_lock);
  m_open = false;
  m_entries.swap(dropped);
  NoteSize();
}

void EventQueue::Send(int type, int param, int delay) {
  MutexLock lock(m_lock);
  if (!m_open) return;
  const std::uint32_t due = delay > 0 ? m_tick.load(std::memory_order_relaxed) + Ticks(delay) : 0;
  m_entries.push_back({type, param, delay, due});
  NoteSize();
}

void EventQueue::DeleteLazy(int type) {
  MutexLock lock(m_lock);
  for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
    if (entry->type == type && IsDelayed(*entry)) {
      m_entries.erase(entry);
      NoteSize();
      return;
    }
  }
}

void EventQueue::Tick() {
  m_tick.store(m_tick.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
}

std::size_t EventQueue::Take(CZeltoEvent* events, std::size_t room) {
  if (m_size.load(std::memory_order_relaxed) == 0) return 0;
  MutexLock lock(m_lock);
  if (m_entries.empty()) return 0;
  if (IsDelayed(m_entries.front())) {
    m_entries.push_back(m_entries.front());
    m_entries.pop_front();
    if (m_entries.size() < 2 || IsDelayed(m_entries.front())) return 0;
  }
  // The run of due events may be taken at once: nobody else takes, and what is sent meanwhile goes to the
  // back in any case.
  std::size_t taken = 0;
  while (taken < room && !m_entries.empty() && !IsDelayed(m_entries.front())) {
    const Entry& entry = m_entries.front();
    events[taken++] = {entry.type, entry.param, Remainder(entry.delay)};
    m_entries.pop_front();
  }
  NoteSize();
  return taken;
}

}  // namespace zelto
