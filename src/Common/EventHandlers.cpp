#include "Common/EventHandlers.h"

#include <algorithm>

#include "Common/Log.h"

namespace zelto {

std::atomic<CZeltoEventHandler*> EventHandlers::s_handlers[kEventTypes];

EventHandlers& EventHandlers::Get() {
  static EventHandlers* const handlers = new EventHandlers;
  return *handlers;
}

bool EventHandlers::Set(int type, CZeltoEventHandler* handler) {
  if (!IsEngineEvent(type)) {
    ZELTO_DEBUG("%s: fail to set event[%d] handler\n", "SetEventHandler", type);
    return false;
  }
  ZELTO_DEBUG("Set EventHandler of event[%d] as %p\n", type, static_cast<void*>(handler));
  MutexLock lock(m_lock);
  if (std::find(m_types.begin(), m_types.end(), type) == m_types.end()) m_types.push_back(type);
  s_handlers[type].store(handler, std::memory_order_release);
  return true;
}

void EventHandlers::Clear() {
  MutexLock lock(m_lock);
  for (const int type : m_types) s_handlers[type].store(nullptr, std::memory_order_release);
  m_types.clear();
}

}  // namespace zelto
