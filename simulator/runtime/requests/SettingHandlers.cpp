#include "apiwrapper/tables/RootMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"

namespace simulator {
namespace {

std::optional<std::string> Find(Session& session, const Exchange& exchange) {
  return session.device.Setting(session.signIn.Name(), exchange.Text(ZEKey::SettingKey));
}

void GetStr(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, Find(session, exchange).value_or(""));
}

void GetInt(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, ToInt(Find(session, exchange).value_or("")));
}

void IsDefined(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, Find(session, exchange).has_value());
}

void Set(Session& session, Exchange& exchange) {
  const std::string key = exchange.Text(ZEKey::SettingKey);
  if (key.empty()) {
    exchange.Fail("a setting needs a key");
    return;
  }
  session.device.SetSetting(session.signIn.Name(), key, exchange.Text(ZEKey::Value));
}

void Delete(Session& session, Exchange& exchange) {
  session.device.DeleteSetting(session.signIn.Name(), exchange.Text(ZEKey::SettingKey));
}

void GetSubKeys(Session& session, Exchange& exchange) {
  exchange.AnswerTexts(ZEKey::Result,
                       session.device.SubKeys(session.signIn.Name(), exchange.Text(ZEKey::SettingKey)));
}

// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::GetStr,     GetStr},
    {&RootMethod::GetInt,     GetInt},
    {&RootMethod::SetStr,     Set},
    {&RootMethod::SetInt,     Set},
    {&RootMethod::IsDefined,  IsDefined},
    {&RootMethod::Delete,     Delete},
    {&RootMethod::GetSubKeys, GetSubKeys},
};
// clang-format on

}  // namespace

HandlerRows SettingHandlers() { return RowsOf(kRows); }

}  // namespace simulator
