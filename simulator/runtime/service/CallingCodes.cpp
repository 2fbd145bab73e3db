#include "simulator/runtime/service/CallingCodes.h"

#include <phonenumbers/phonenumberutil.h>
#include <unicode/uloc.h>

#include <algorithm>
#include <cctype>
#include <list>
#include <set>

namespace simulator {
namespace {

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;

std::string LowerCase(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

std::string ExampleOf(const std::string& region) {
  const PhoneNumberUtil& plans = *PhoneNumberUtil::GetInstance();
  PhoneNumber number;
  std::string example;
  if (plans.GetExampleNumber(region, &number)) plans.Format(number, PhoneNumberUtil::INTERNATIONAL, &example);
  return example;
}

// The numbering plans also know regions that are no countries of ISO 3166.
std::vector<CallingCode> Collect() {
  const PhoneNumberUtil& plans = *PhoneNumberUtil::GetInstance();
  std::set<std::string> regions;
  plans.GetSupportedRegions(&regions);
  std::vector<CallingCode> codes;
  for (const char* const* region = uloc_getISOCountries(); *region != nullptr; ++region) {
    if (regions.count(*region) != 0)
      codes.push_back({LowerCase(*region), plans.GetCountryCodeForRegion(*region), ExampleOf(*region)});
  }
  std::sort(codes.begin(), codes.end(),
            [](const CallingCode& a, const CallingCode& b) { return a.country < b.country; });
  return codes;
}

}  // namespace

const std::vector<CallingCode>& CallingCodes() {
  static const std::vector<CallingCode> kCodes = Collect();
  return kCodes;
}

const CallingCode* CallingCodeOf(std::string country) {
  country = LowerCase(std::move(country));
  const auto found = std::lower_bound(
      CallingCodes().begin(), CallingCodes().end(), country,
      [](const CallingCode& code, const std::string& wanted) { return code.country < wanted; });
  return found != CallingCodes().end() && found->country == country ? &*found : nullptr;
}

std::vector<std::string> CountriesOf(int code) {
  std::list<std::string> regions;
  PhoneNumberUtil::GetInstance()->GetRegionCodesForCountryCallingCode(code, &regions);
  std::vector<std::string> countries;
  for (const std::string& region : regions) {
    if (const CallingCode* known = CallingCodeOf(region)) countries.push_back(known->country);
  }
  return countries;
}

}  // namespace simulator
