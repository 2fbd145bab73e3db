#include "simulator/runtime/world/SignIn.h"

#include <iterator>

#include "apiwrapper/tables/Classes.h"
#include "simulator/runtime/Log.h"
#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/AccountRules.h"

namespace simulator {
namespace {

constexpr int kStepMilliseconds = 20;
constexpr int kSlowStepMilliseconds = 1000;
constexpr int kElsewhereMilliseconds = 2000;

std::string Join(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ";") + name;
  return text;
}

}  // namespace

struct SignIn::Step {
  void (SignIn::*run)(int);
  int value;
};

// clang-format off
const SignIn::Step SignIn::kSteps[] = {
    {&SignIn::SetStatus,      account::kConnecting},
    {&SignIn::SetStatus,      account::kReachingService},
    {&SignIn::SetStatus,      account::kSigningIn},
    {&SignIn::Decide,         0},
    {&SignIn::SetStatus,      account::kPreparing},
    {&SignIn::LoadAccount,    0},
    {&SignIn::SetStatus,      account::kSignedIn},
    {&SignIn::SetListSync,    account::kSyncWaiting},
    {&SignIn::SetListSync,    account::kSyncRunning},
    {&SignIn::FinishListSync, 0},
};
// clang-format on

SignIn::SignIn(World& world, Contacts& contacts, Service& service, DeviceStore& device, Scheduler& scheduler)
    : m_world(world), m_contacts(contacts), m_service(service), m_device(device), m_scheduler(scheduler) {}

SignIn::~SignIn() { m_scheduler.Cancel(m_pending); }

Object* SignIn::AccountOf(std::string_view name) {
  const std::string normalized = NormalizeIdentity(name, true).identity;
  if (normalized.empty()) return nullptr;
  const auto known = m_accounts.find(normalized);
  if (known != m_accounts.end()) return m_world.Find(known->second);
  Object& account = m_world.Create(ACCOUNT_CLASS);
  m_accounts.emplace(normalized, account.id);
  m_world.Put(account, account::kName, normalized);
  m_world.PutInt(account, account::kStatus, SignedOutStatus(normalized));
  m_world.PutInt(account, account::kListSync, account::kSyncNone);
  return &account;
}

void SignIn::WithStoredPassword(Object& account) {
  const std::string name = account.GetText(account::kName);
  Begin(
      account, [this, name] { return SignInAsStored(name); }, nullptr, true);
}

LogoutReason SignIn::SignInAsStored(const std::string& name) {
  const auto password = m_device.StoredPassword(name);
  if (!password) return LogoutReason::NoStoredPassword;
  const LogoutReason reason = m_service.SignIn(name, *password);
  if (reason != LogoutReason::WrongPassword) return reason;
  // It was right when it was stored.
  m_device.ForgetPassword(name);
  return LogoutReason::PasswordChanged;
}

void SignIn::WithPassword(Object& account, const std::string& password, bool save) {
  const std::string name = account.GetText(account::kName);
  Begin(
      account, [this, name, password] { return m_service.SignIn(name, password); }, &password, save);
}

void SignIn::Register(Object& account, Registration registration, bool save) {
  registration.name = account.GetText(account::kName);
  const std::string password = registration.password;
  Begin(
      account, [this, registration] { return m_service.Register(registration); }, &password, save);
}

void SignIn::Begin(Object& account, Attempt attempt, const std::string* password, bool save) {
  if (account.id == m_account) {
    // The same account once more: reporting it signed out would end the attempt that begins here.
    Reset();
  } else {
    Drop(LogoutReason::Requested);
  }
  m_account = account.id;
  m_attempt = std::move(attempt);
  m_passwordGiven = password != nullptr;
  m_password = m_passwordGiven ? *password : std::string();
  m_save = save;
  m_step = 0;
  m_world.Set(account, account::kSuggestedNames, "");
  Schedule();
}

void SignIn::Schedule() {
  const Object* account = Current();
  if (account == nullptr || m_step >= std::size(kSteps)) return;
  const bool slow = m_service.TraitOf(account->GetText(account::kName)) == Trait::Slow;
  m_pending = m_scheduler.After(slow ? kSlowStepMilliseconds : kStepMilliseconds, [this] {
    const Step& step = kSteps[m_step++];
    try {
      (this->*step.run)(step.value);
    } catch (const DatabaseError& failure) {
      Log(failure.what());
      Drop(LogoutReason::DatabaseFailed);
    }
    Schedule();
  });
}

void SignIn::SetStatus(int status) { m_world.SetInt(*Current(), account::kStatus, status); }
void SignIn::SetListSync(int status) { m_world.SetInt(*Current(), account::kListSync, status); }

void SignIn::Decide(int) {
  const LogoutReason reason = m_attempt();
  if (reason != LogoutReason::None) {
    End(reason);
    return;
  }
  m_name = Current()->GetText(account::kName);
  m_device.RememberAccount(m_name, m_passwordGiven && m_save ? &m_password : nullptr);
  if (!m_save) m_device.ForgetPassword(m_name);
}

void SignIn::LoadAccount(int) {
  Object& account = *Current();
  for (const auto& [property, value] : m_service.Profile(m_name)) m_world.Set(account, property, value);
  m_contacts.Load(m_name);
}

void SignIn::FinishListSync(int) {
  const Trait trait = m_service.TraitOf(m_name);
  SetListSync(trait == Trait::FailsSync ? account::kSyncFailed : account::kInSync);
  if (trait != Trait::Elsewhere) return;
  m_pending = m_scheduler.After(kElsewhereMilliseconds, [this] { Drop(LogoutReason::SignedInElsewhere); });
}

void SignIn::SignOut(Object& account, bool forget) {
  if (forget) m_device.ForgetPassword(account.GetText(account::kName));
  if (account.id != m_account) {
    // Nobody is signed in: whoever asks waits for being told so.
    m_world.Report(account, account::kStatus);
    return;
  }
  SetStatus(account::kSigningOut);
  m_scheduler.Cancel(m_pending);
  m_step = std::size(kSteps);
  m_pending = m_scheduler.After(kStepMilliseconds, [this] { Drop(LogoutReason::Requested); });
}

bool SignIn::Drop(LogoutReason reason) {
  if (Current() == nullptr) return false;
  End(reason);
  return true;
}

void SignIn::End(LogoutReason reason) {
  Object& account = *Current();
  Reset();
  const std::string& name = account.GetText(account::kName);
  m_world.SetInt(account, account::kLogoutReason, static_cast<int>(reason));
  if (reason == LogoutReason::NameTaken) {
    m_world.Set(account, account::kSuggestedNames, Join(m_service.SuggestNames(name)));
  }
  m_world.SetInt(account, account::kListSync, account::kSyncNone);
  m_world.SetInt(account, account::kStatus, SignedOutStatus(name));
}

int SignIn::SignedOutStatus(const std::string& name) const {
  try {
    return m_device.StoredPassword(name) ? account::kSignedOutPasswordStored : account::kSignedOut;
  } catch (const DatabaseError&) {
    return account::kSignedOut;
  }
}

void SignIn::Reset() {
  m_scheduler.Cancel(m_pending);
  m_step = std::size(kSteps);
  m_account = 0;
  if (m_over) m_over();
  m_name.clear();
  m_attempt = nullptr;
  m_contacts.Forget();
}

}  // namespace simulator
