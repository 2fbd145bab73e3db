// Who reacts to which engine event.
#pragma once

#include <atomic>
#include <vector>

#include "Common/EventTypes.h"
#include "Common/Locks.h"
#include "Common/ZeltoEvent.h"

namespace zelto {

// One handler for each type, found by the type itself.
// Threads: any. Lives as long as the process; handlers are not owned and must outlive their entry.
class EventHandlers {
 public:
  // The engine's own.
  static EventHandlers& Get();

  // Replaces the type's handler. False, and no change, for a type that no event has.
  bool Set(int type, CZeltoEventHandler* handler);
  // The type must be an engine event's. Null: nobody reacts.
  static CZeltoEventHandler* Find(int type) { return s_handlers[type].load(std::memory_order_acquire); }
  // Empties the table.
  void Clear();

 private:
  EventHandlers() = default;

  // Static, so that it lies in zero pages, most of which nobody ever touches: the types in use are few.
  static std::atomic<CZeltoEventHandler*> s_handlers[kEventTypes];

  Mutex m_lock{LockRank::Leaf, "event handlers"};
  std::vector<int> m_types ZELTO_GUARDED_BY(m_lock);  // set at least once
};

}  // namespace zelto
