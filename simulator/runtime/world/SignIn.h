// The one account that is signed in, and everything that happens to it in the course of time.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "simulator/runtime/service/DeviceStore.h"
#include "simulator/runtime/service/Service.h"
#include "simulator/runtime/world/Contacts.h"
#include "simulator/runtime/world/Scheduler.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// Leads an account through its statuses: connecting, reaching the service, signing in, preparing, signed in,
// list in sync; or back to signed out, the reason being set before. Beginning a sign-in ends the one before.
// Threads: none of its own; the scheduler drives it.
class SignIn {
 public:
  SignIn(World& world, Contacts& contacts, Service& service, DeviceStore& device, Scheduler& scheduler);
  SignIn(const SignIn&) = delete;
  SignIn& operator=(const SignIn&) = delete;
  ~SignIn();

  // The account of that name, be there such an account or not; null for no name at all.
  Object* AccountOf(std::string_view name);

  void WithStoredPassword(Object& account);
  void WithPassword(Object& account, const std::string& password, bool save);
  void Register(Object& account, Registration registration, bool save);
  // Signs out; with `forget` the stored password goes too.
  void SignOut(Object& account, bool forget);
  // Ends sign-in or session at once; false when there is neither.
  bool Drop(LogoutReason reason);

  // Told when a sign-in or session is over, before anybody hears of its end; the name is still known.
  void WhenOver(std::function<void()> over) { m_over = std::move(over); }

  // The account whose sign-in is under way or complete; null for none.
  Object* Current() { return m_world.Find(m_account); }
  // Name of the account whose settings apply: empty unless its password was right.
  const std::string& Name() const { return m_name; }
  bool IsSignedIn(const Object& account) const { return account.id == m_account && !m_name.empty(); }

 private:
  using Attempt = std::function<LogoutReason()>;
  struct Step;
  static const Step kSteps[];

  void Begin(Object& account, Attempt attempt, const std::string* password, bool save);
  void Schedule();
  LogoutReason SignInAsStored(const std::string& name);
  void SetStatus(int status);
  void Decide(int);
  void LoadAccount(int);
  void SetListSync(int status);
  void FinishListSync(int);
  void End(LogoutReason reason);
  void Reset();
  int SignedOutStatus(const std::string& name) const;

  World& m_world;
  Contacts& m_contacts;
  Service& m_service;
  DeviceStore& m_device;
  Scheduler& m_scheduler;
  std::function<void()> m_over;
  std::map<std::string, unsigned, std::less<>> m_accounts;  // ids by name
  unsigned m_account = 0;
  std::string m_name;
  Attempt m_attempt;
  std::string m_password;
  bool m_passwordGiven = false;
  bool m_save = false;
  std::size_t m_step = 0;
  Scheduler::Id m_pending = 0;
};

}  // namespace simulator
