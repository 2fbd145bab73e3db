// Calling codes of countries, and countries of calling codes.
#include "apiwrapper/tables/RootMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"
#include "simulator/runtime/service/CallingCodes.h"

namespace simulator {
namespace {

void GetISOCountryPrefixDict(Session&, Exchange& exchange) {
  for (const CallingCode& code : CallingCodes()) exchange.Writer().Number(code.country, code.code);
}

void GetISOCountryDialExampleDict(Session&, Exchange& exchange) {
  for (const CallingCode& code : CallingCodes()) exchange.Writer().Text(code.country, code.example);
}

void GetISOCountryPrefix(Session&, Exchange& exchange) {
  const CallingCode* code = CallingCodeOf(exchange.Text(ZEKey::CountryCode));
  exchange.Answer(ZEKey::Result, code == nullptr ? 0 : code->code);
}

void GetISOCountryDialExample(Session&, Exchange& exchange) {
  const CallingCode* code = CallingCodeOf(exchange.Text(ZEKey::CountryCode));
  exchange.Answer(ZEKey::Result, code == nullptr ? std::string() : code->example);
}

void GetISOCountryCodeByPrefix(Session&, Exchange& exchange) {
  exchange.AnswerTexts(ZEKey::Result, CountriesOf(exchange.Number(ZEKey::Prefix)));
}

// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::GetISOCountryPrefixDict,      GetISOCountryPrefixDict},
    {&RootMethod::GetISOCountryDialExampleDict, GetISOCountryDialExampleDict},
    {&RootMethod::GetISOCountryPrefix,          GetISOCountryPrefix},
    {&RootMethod::GetISOCountryDialExample,     GetISOCountryDialExample},
    {&RootMethod::GetISOCountryCodeByPrefix,    GetISOCountryCodeByPrefix},
};
// clang-format on

}  // namespace

HandlerRows PhoneHandlers() { return RowsOf(kRows); }

}  // namespace simulator
