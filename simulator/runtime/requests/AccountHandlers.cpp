#include <algorithm>

#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/protocol/Values.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"
#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/AccountRules.h"

namespace simulator {
namespace {

constexpr int kPasswordMilliseconds = 50;
constexpr std::size_t kLongestValue = 300;

Service::Properties PropertiesOf(const Exchange& exchange) {
  Service::Properties values;
  for (const Pair& pair : exchange.TheRequest().Pairs()) {
    const int property = PropertyByToken(ACCOUNT_CLASS, pair.key);
    if (property != 0) values[property] = ReadProperty(ACCOUNT_CLASS, property, pair);
  }
  return values;
}

void GetExistingAccounts(Session& session, Exchange& exchange) {
  exchange.AnswerTexts(ZEKey::Result, session.device.Accounts());
}

void GetDefaultAccount(Session& session, Exchange& exchange) {
  exchange.AnswerObject(ZEKey::Result, session.signIn.AccountOf(session.device.DefaultAccount()));
}

void GetAccount(Session& session, Exchange& exchange) {
  exchange.AnswerObject(ZEKey::Result, session.signIn.AccountOf(exchange.Text(ZEKey::Identity)));
}

void GetFreeBytesLeft(Session&, Exchange& exchange) {
  const std::string value = exchange.Text(ZEKey::Value);
  exchange.Answer(ZEKey::Result,
                  static_cast<long long>(kLongestValue - std::min(kLongestValue, value.size())));
}

void IsValidEmail(Session&, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, IsEmail(exchange.Text(ZEKey::Email)));
}

void GetSuggestedZeltoname(Session& session, Exchange& exchange) {
  const std::vector<std::string> names = session.service.SuggestNames(exchange.Text(ZEKey::BaseName));
  exchange.Answer(ZEKey::Result, names.empty() ? std::string() : names.front());
}

void ValidatePassword(Session&, Exchange& exchange) {
  const PasswordVerdict verdict =
      JudgePassword(exchange.Text(ZEKey::UserName), exchange.Text(ZEKey::Password));
  exchange.Answer(ZEKey::Result, static_cast<int>(verdict));
}

void Login(Session& session, Exchange& exchange) { session.signIn.WithStoredPassword(exchange.Target()); }

void LoginWithPassword(Session& session, Exchange& exchange) {
  session.signIn.WithPassword(exchange.Target(), exchange.Text(ZEKey::Password),
                              exchange.Flag(ZEKey::SavePassword));
}

void Register(Session& session, Exchange& exchange) {
  Registration registration;
  registration.password = exchange.Text(ZEKey::Password);
  registration.email = exchange.Text(ZEKey::Email);
  registration.offers = exchange.Flag(ZEKey::AllowOffers);
  session.signIn.Register(exchange.Target(), std::move(registration), exchange.Flag(ZEKey::SavePassword));
}

void Logout(Session& session, Exchange& exchange) {
  session.signIn.SignOut(exchange.Target(), exchange.Flag(ZEKey::Flag));
}

struct PasswordChange {
  std::string before;
  std::string now;
  bool save;
};

int ChangePasswordNow(Session& session, const Object& account, const PasswordChange& change) try {
  const std::string& name = account.GetText(account::kName);
  if (!session.signIn.IsSignedIn(account)) return account::kNotSignedIn;
  if (session.service.TraitOf(name) == Trait::FailsCommit) return account::kPasswordUnreachable;
  if (JudgePassword(name, change.now) != PasswordVerdict::Good) return account::kNewPasswordBad;
  if (change.before == change.now) return account::kNewPasswordSameAsOld;
  if (!session.service.ChangePassword(name, change.before, change.now)) return account::kOldPasswordWrong;
  if (change.save) session.device.RememberAccount(name, &change.now);
  return account::kPasswordChanged;
} catch (const DatabaseError&) {
  return account::kPasswordUnreachable;
}

void ChangePassword(Session& session, Exchange& exchange) {
  PasswordChange change{exchange.Text(ZEKey::OldPassword), exchange.Text(ZEKey::NewPassword),
                        exchange.Flag(ZEKey::SavePassword)};
  const unsigned id = exchange.Target().id;
  session.world.SetInt(exchange.Target(), account::kPasswordStatus, account::kPasswordChanging);
  session.scheduler.After(kPasswordMilliseconds, [&session, id, change] {
    Object* object = session.world.Find(id);
    if (object == nullptr) return;
    session.world.SetInt(*object, account::kPasswordStatus, ChangePasswordNow(session, *object, change));
  });
}

void SetAvailability(Session& session, Exchange& exchange) {
  const int availability = exchange.Enumerator(ZEKey::Availability);
  if (availability < 0) {
    exchange.Fail("no such availability");
  } else if (session.signIn.IsSignedIn(exchange.Target())) {
    session.world.SetInt(exchange.Target(), account::kAvailability, availability);
  }
}

void GetCapabilityStatus(Session& session, Exchange& exchange) {
  const Capability capability = session.service.CapabilityOf(exchange.Target().GetText(account::kName),
                                                             exchange.Enumerator(ZEKey::Capability));
  exchange.Answer(ZEKey::Result, capability.status);
  exchange.Answer(ZEKey::Expiry, capability.expiry);
}

void GetContact(Session& session, Exchange& exchange) {
  exchange.AnswerObject(ZEKey::Result, session.contacts.Find(exchange.Target().GetText(account::kName)));
}

void SetProps(Session& session, Exchange& exchange) {
  Object& account = exchange.Target();
  const Service::Properties values = PropertiesOf(exchange);
  const bool owned = std::any_of(values.begin(), values.end(),
                                 [](const auto& entry) { return account::IsOwnedByRuntime(entry.first); });
  const bool stored = !owned && session.signIn.IsSignedIn(account) &&
                      session.service.StoreProfile(account.GetText(account::kName), values);
  if (stored) {
    for (const auto& [property, value] : values) session.world.Set(account, property, value);
  }
  exchange.Answer(ZEKey::Result, stored);
}

void SetServersideProps(Session& session, Exchange& exchange) {
  session.commit.Submit(exchange.Target(), PropertiesOf(exchange));
}

void CancelServerCommit(Session& session, Exchange& exchange) { session.commit.Cancel(exchange.Target()); }

// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::GetExistingAccounts,     GetExistingAccounts},
    {&RootMethod::GetDefaultAccount,       GetDefaultAccount},
    {&RootMethod::GetAccount,              GetAccount},
    {&RootMethod::GetFreeBytesLeft,        GetFreeBytesLeft},
    {&RootMethod::IsValidEmail,            IsValidEmail},
    {&RootMethod::GetSuggestedZeltoname,   GetSuggestedZeltoname},
    {&RootMethod::ValidatePassword,        ValidatePassword},
    {&AccountMethod::Login,                Login},
    {&AccountMethod::LoginWithPassword,    LoginWithPassword},
    {&AccountMethod::Register,             Register},
    {&AccountMethod::Logout,               Logout},
    {&AccountMethod::ChangePassword,       ChangePassword},
    {&AccountMethod::SetAvailability,      SetAvailability},
    {&AccountMethod::GetCapabilityStatus,  GetCapabilityStatus},
    {&AccountMethod::GetContact,           GetContact},
    {&AccountMethod::SetProps,             SetProps},
    {&AccountMethod::SetServersideProps,   SetServersideProps},
    {&AccountMethod::CancelServerCommit,   CancelServerCommit},
};
// clang-format on

}  // namespace

HandlerRows AccountHandlers() { return RowsOf(kRows); }

}  // namespace simulator
