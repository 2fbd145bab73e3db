// Where a manager of which the process has one keeps itself.
#pragma once

#include <atomic>

#include "zelhost/ServiceHostMutex.h"

namespace zelhost {

// Creates the manager at its first use and forgets it when it is deleted, after which the next use
// creates another one.
// Threads: any; two threads that come first at once still get the same manager.
template <class Manager>
class ManagerInstance {
 public:
  Manager* Get() {
    Manager* manager = m_manager.load(std::memory_order_acquire);
    return manager != nullptr ? manager : Create();
  }
  // Null while there is none; creates nothing.
  Manager* Existing() const { return m_manager.load(std::memory_order_acquire); }
  // For the manager's destructor.
  void Forget() { m_manager.store(nullptr, std::memory_order_release); }

 private:
  Manager* Create() {
    ServiceHostLock lock("GetInstance");
    Manager* manager = m_manager.load(std::memory_order_acquire);
    if (manager == nullptr) {
      manager = new Manager;
      m_manager.store(manager, std::memory_order_release);
    }
    return manager;
  }

  std::atomic<Manager*> m_manager{nullptr};
};

}  // namespace zelhost
