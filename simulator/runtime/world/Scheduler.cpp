#include "simulator/runtime/world/Scheduler.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "simulator/runtime/Log.h"

namespace simulator {

Scheduler::Id Scheduler::After(std::int64_t milliseconds, Action action) {
  m_actions.emplace(Key{m_now + std::max<std::int64_t>(milliseconds, 0), ++m_lastId}, std::move(action));
  return m_lastId;
}

void Scheduler::Cancel(Id id) {
  const auto found = std::find_if(m_actions.begin(), m_actions.end(),
                                  [id](const auto& entry) { return entry.first.id == id; });
  if (found != m_actions.end()) m_actions.erase(found);
}

void Scheduler::RunUntil(std::int64_t milliseconds) {
  m_now = std::max(m_now, milliseconds);
  // An action that keeps adding others for "at once" must not hold the loop for ever.
  const Id last = m_lastId + 1000;
  while (!m_actions.empty()) {
    const auto first = m_actions.begin();
    if (first->first.due > m_now || first->first.id > last) return;
    const Action action = std::move(first->second);
    m_actions.erase(first);
    try {
      action();
    } catch (const std::exception& failure) {
      // A database that has gone: what was to happen does not, other things may.
      Log(failure.what());
    }
  }
}

std::int64_t Scheduler::UntilNext() const {
  if (m_actions.empty()) return -1;
  return std::max<std::int64_t>(m_actions.begin()->first.due - m_now, 0);
}

}  // namespace simulator
