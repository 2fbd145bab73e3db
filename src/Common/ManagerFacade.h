// What the five facades have in common.
#pragma once

#include <atomic>

#include "Common/ZeltoEvent.h"
#include "zelhost/ServiceHostMutex.h"

namespace zelto {

// A facade stands for one manager of the service. It is the manager's event handler and stays where it is
// as long as the process lives, while managers come and go behind it with the service: so an event on its
// way never meets a freed handler.
// `Facade` gives `static Imp* CreateImp()`.
// Threads: any. A caller whose answer must stay valid, or who can't be sure that nobody unloads the
// service meanwhile, holds the service-host mutex for the length of the call.
template <class Facade, class Imp>
class ManagerFacade : public CZeltoEventHandler {
 public:
  ManagerFacade(const ManagerFacade&) = delete;
  ManagerFacade& operator=(const ManagerFacade&) = delete;

  // The facade, its manager created and initialised when there was none.
  static Facade* GetInstance() {
    Facade* facade = Only();
    if (!facade->m_ready.load(std::memory_order_acquire)) facade->Start();
    return facade;
  }

  // Deletes the manager; the next GetInstance creates another one. A manager whose own handler asks for
  // this, because it reloads the service, stays and serves the reloaded one.
  static void DeleteInstance() { Only()->Delete(); }

  // Whether there is a manager; creates nothing.
  static bool HasManager() { return Only()->m_imp.load(std::memory_order_acquire) != nullptr; }

  // Without a manager the event goes on to the host.
  bool OnEvent(const CZeltoEvent* event) override {
    return Handle([event](Imp* imp) { return imp->OnEvent(event); });
  }
  bool AfterEvent(const CZeltoEvent*) override { return true; }

 protected:
  ManagerFacade() = default;
  ~ManagerFacade() override = default;

  // The manager, created when there is none. Never null.
  Imp* GetImp() {
    Imp* imp = m_imp.load(std::memory_order_acquire);
    if (imp != nullptr) return imp;
    Start();
    return m_imp.load(std::memory_order_acquire);
  }

  // Runs a handler of the manager under the service-host mutex, so that no other thread can delete the
  // manager in the middle of it.
  template <class Handler>
  bool Handle(Handler handler) {
    zelhost::ServiceHostLock lock("OnEvent");
    Imp* imp = m_imp.load(std::memory_order_relaxed);
    if (imp == nullptr) return true;
    const Depth depth(m_handling);
    return handler(imp);
  }

 private:
  // Counts nested uses for its lifetime.
  class Depth {
   public:
    explicit Depth(int& count) : m_count(count) { ++m_count; }
    ~Depth() { --m_count; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

   private:
    int& m_count;
  };

  static Facade* Only() {
    static Facade* const facade = new Facade;
    return facade;
  }

  void Start() {
    zelhost::ServiceHostLock lock("GetInstance");
    // While Init runs the facade already answers, so that the manager can register it.
    if (m_ready.load(std::memory_order_relaxed) || m_starting != 0) return;
    const Depth depth(m_starting);
    if (m_imp.load(std::memory_order_relaxed) == nullptr) {
      m_imp.store(Facade::CreateImp(), std::memory_order_release);
    }
    m_imp.load(std::memory_order_relaxed)->Init();
    m_ready.store(true, std::memory_order_release);
  }

  void Delete() {
    zelhost::ServiceHostLock lock("DeleteInstance");
    if (m_handling != 0) return;
    // What its destructor asks of the facade still finds the manager.
    delete m_imp.load(std::memory_order_relaxed);
    m_imp.store(nullptr, std::memory_order_release);
    m_ready.store(false, std::memory_order_release);
  }

  std::atomic<Imp*> m_imp{nullptr};  // written under the service-host mutex
  std::atomic<bool> m_ready{false};  // the manager's Init has run
  int m_starting = 0;                // these two: only under the service-host mutex
  int m_handling = 0;
};

}  // namespace zelto
