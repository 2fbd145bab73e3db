#include "simulator/runtime/world/ServerCommit.h"

#include <algorithm>

#include "simulator/runtime/Log.h"
#include "simulator/runtime/service/AccountProperties.h"

namespace simulator {
namespace {

constexpr int kCommitMilliseconds = 50;

}  // namespace

ServerCommit::ServerCommit(World& world, SignIn& signIn, Service& service, Scheduler& scheduler)
    : m_world(world), m_signIn(signIn), m_service(service), m_scheduler(scheduler) {}

ServerCommit::~ServerCommit() { m_scheduler.Cancel(m_pending); }

void ServerCommit::Submit(Object& account, const Service::Properties& values) {
  if (account.id != m_account) m_values.clear();
  m_account = account.id;
  for (const auto& [property, value] : values) m_values[property] = value;
  m_scheduler.Cancel(m_pending);
  m_pending = m_scheduler.After(kCommitMilliseconds, [this] { Finish(); });
  m_world.SetInt(account, account::kCommitStatus, account::kCommitting);
}

void ServerCommit::Cancel(Object& account) {
  if (account.id != m_account) return;
  m_scheduler.Cancel(m_pending);
  m_account = 0;
  m_values.clear();
  m_world.SetInt(account, account::kCommitStatus, account::kCommitFailed);
}

bool ServerCommit::Store(Object& account) {
  if (!m_signIn.IsSignedIn(account)) return false;
  if (m_failures > 0) {
    --m_failures;
    return false;
  }
  const bool owned = std::any_of(m_values.begin(), m_values.end(),
                                 [](const auto& entry) { return account::IsOwnedByRuntime(entry.first); });
  const std::string& name = account.GetText(account::kName);
  return !owned && m_service.TraitOf(name) != Trait::FailsCommit && m_service.StoreProfile(name, m_values);
}

void ServerCommit::Finish() {
  Object* account = m_world.Find(m_account);
  m_account = 0;
  if (account != nullptr) {
    bool stored = false;
    try {
      stored = Store(*account);
    } catch (const DatabaseError& failure) {
      Log(failure.what());
    }
    if (stored) {
      for (const auto& [property, value] : m_values) m_world.Set(*account, property, value);
    }
    m_world.SetInt(*account, account::kCommitStatus, stored ? account::kCommitted : account::kCommitFailed);
  }
  m_values.clear();
}

}  // namespace simulator
