// Contacts that come and go by themselves, for who wants to see a living list.
#pragma once

#include <cstddef>

#include "simulator/runtime/world/Contacts.h"
#include "simulator/runtime/world/Scheduler.h"

namespace simulator {

// While it runs, one listed contact after the other gets another presence, in an order that is always the
// same. Begins stopped.
// Threads: none of its own; the scheduler drives it.
class PresenceChanges {
 public:
  PresenceChanges(World& world, Contacts& contacts, Scheduler& scheduler)
      : m_world(world), m_contacts(contacts), m_scheduler(scheduler) {}
  PresenceChanges(const PresenceChanges&) = delete;
  PresenceChanges& operator=(const PresenceChanges&) = delete;
  ~PresenceChanges() { m_scheduler.Cancel(m_pending); }

  // One change every so many milliseconds; 0 stops.
  void Every(int milliseconds);

 private:
  void Schedule();
  void ChangeNext();

  World& m_world;
  Contacts& m_contacts;
  Scheduler& m_scheduler;
  Scheduler::Id m_pending = 0;
  int m_milliseconds = 0;
  unsigned m_last = 0;  // contact that was changed last
};

}  // namespace simulator
