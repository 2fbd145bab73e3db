// Values of an account that count only when the service has taken them.
#pragma once

#include "simulator/runtime/service/Service.h"
#include "simulator/runtime/world/Scheduler.h"
#include "simulator/runtime/world/SignIn.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// Collects values, reports "committing", and a moment later the values and "committed", or "failed".
// Threads: none of its own; the scheduler drives it.
class ServerCommit {
 public:
  ServerCommit(World& world, SignIn& signIn, Service& service, Scheduler& scheduler);
  ServerCommit(const ServerCommit&) = delete;
  ServerCommit& operator=(const ServerCommit&) = delete;
  ~ServerCommit();

  // Values that follow before the service has answered join the ones before.
  void Submit(Object& account, const Service::Properties& values);
  // What is under way fails; nothing happens when nothing is.
  void Cancel(Object& account);
  // Lets that many of the next commits fail.
  void FailNext(int count) { m_failures = count; }

 private:
  void Finish();
  bool Store(Object& account);

  World& m_world;
  SignIn& m_signIn;
  Service& m_service;
  Scheduler& m_scheduler;
  Service::Properties m_values;
  unsigned m_account = 0;
  Scheduler::Id m_pending = 0;
  int m_failures = 0;
};

}  // namespace simulator
