// What is to happen later.
#pragma once

#include <cstdint>
#include <functional>
#include <map>

namespace simulator {

// Actions in the order of their time, run by the event loop's only thread.
// Threads: none of its own.
class Scheduler {
 public:
  using Action = std::function<void()>;
  using Id = std::uint64_t;  // 0 is never given

  // Runs the action once, that many milliseconds after now. Actions of the same time run in the order in
  // which they were added.
  Id After(std::int64_t milliseconds, Action action);
  // An action that has run, or is unknown, is none.
  void Cancel(Id id);
  void Clear() { m_actions.clear(); }

  // Moves the time on and runs what has become due, actions added meanwhile included when they are due too.
  void RunUntil(std::int64_t milliseconds);
  // Milliseconds from the current time to the next action; -1 when there is none.
  std::int64_t UntilNext() const;

 private:
  struct Key {
    std::int64_t due;
    Id id;
    bool operator<(const Key& other) const { return due != other.due ? due < other.due : id < other.id; }
  };

  std::map<Key, Action> m_actions;
  std::int64_t m_now = 0;
  Id m_lastId = 0;
};

}  // namespace simulator
