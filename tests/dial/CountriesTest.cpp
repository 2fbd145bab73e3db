#include "dial/Countries.h"

#include <gmock/gmock.h>

#include "Plans.h"

namespace {

// The calling code; in North America the area code is part of it.
bool HasCodeOf(const CDATA& row, const std::string& region) {
  const std::string code = row.idd_code;
  if (!Plans().IsNANPACountry(region)) return code == std::to_string(Plans().GetCountryCodeForRegion(region));
  PhoneNumber number;
  Plans().GetExampleNumber(region, &number);
  std::string national;
  Plans().GetNationalSignificantNumber(number, &national);
  number.set_national_number(std::stoull(code.substr(1) + national.substr(code.size() - 1)));
  std::string owner;
  Plans().GetRegionCodeForNumber(number, &owner);
  return code[0] == '1' && owner == region;
}

bool LeavesCountryBy(std::string prefix, const std::string& region) {
  if (const auto wait = prefix.find('p'); wait != std::string::npos) prefix.erase(wait, 1);
  const std::string abroad = region == "GB" ? "33142681234" : "442079460958";
  PhoneNumber number;
  return Plans().Parse(prefix + abroad, region, &number) == PhoneNumberUtil::NO_PARSING_ERROR &&
         number.country_code() == std::stoi(abroad.substr(0, 2));
}

// The lengths of fixed and mobile numbers that the row's fields leave out.
std::string LengthsLeftOut(const CDATA& row, const std::string& region) {
  const int inCode =
      Plans().IsNANPACountry(region) ? static_cast<int>(std::string(row.idd_code).size()) - 1 : 0;
  std::string lengths;
  PhoneNumber number;
  number.set_country_code(Plans().GetCountryCodeForRegion(region));
  number.set_national_number(1);
  for (int length = 1; length <= 17; ++length, number.set_national_number(number.national_number() * 10)) {
    const auto possible = [&](PhoneNumberUtil::PhoneNumberType type) {
      return Plans().IsPossibleNumberForTypeWithReason(number, type) == PhoneNumberUtil::IS_POSSIBLE;
    };
    if (!possible(PhoneNumberUtil::FIXED_LINE) && !possible(PhoneNumberUtil::MOBILE)) continue;
    const int digits = length - inCode;
    if (digits >= row.area_min + row.sub_min && digits <= row.area_max + row.sub_max) continue;
    lengths += " " + std::to_string(length);
  }
  return lengths;
}

std::vector<std::string> Differences(const CDATA& row) {
  const std::string region = RegionOf(row);
  std::string trunk;
  Plans().GetNddPrefixForRegion(region, true, &trunk);
  std::vector<std::string> found;
  const std::string iso = row.iso;
  if (!HasCodeOf(row, region)) found.push_back(iso + " code");
  if (!LeavesCountryBy(row.idd_prefix, region)) found.push_back(iso + " prefix");
  if (trunk != row.remove) found.push_back(iso + " trunk");
  if (const std::string lengths = LengthsLeftOut(row, region); !lengths.empty()) {
    found.push_back(iso + " lengths" + lengths);
  }
  return found;
}

struct KnownDifference {
  const char* what;
  const char* reason;
};

// clang-format off
constexpr KnownDifference kKnown[] = {
    {"YT code",             "joined Reunion's code in 2007; never found, KM comes first"},
    {"TJ code",             "left the union's code; never found, RU comes first"},
    {"UZ code",             "as TJ"},
    {"IO prefix",           "the islands whose code it carries dial 011"},
    {"GE prefix",           "00 since 2011"},
    {"UA prefix",           "00 since 2009"},
    {"ID prefix",           "001 is an operator's, beside 008 and 009"},
    {"BR prefix",           "stands behind a carrier, which the area code names"},
    {"FM prefix",           "dials as North America does, 00 in the other plan"},
    {"VA prefix",           "none of its own; never found, IT comes first"},
    {"AR trunk",            "rule N dials without"},
    {"BR trunk",            "comes with the carrier"},
    {"ID trunk",            "rule N dials without"},
    {"CO trunk",            "09, 0 and an operator's digit"},
    {"GE trunk",            "0 since 2011"},
    {"UA trunk",            "0 since 2009"},
    {"TJ trunk",            "none today"},
    {"IT trunk",            "the zero is part of the number"},
    {"LI trunk",            "numbers are dialled without"},
    {"LT trunk",            "80 together, for 8 and the area's 0 of old"},
    {"AR lengths 10 11",    "the shortest subscriber number exceeds the longest"},
    {"BR lengths 11",       "mobile numbers have nine digits since 2016"},
    {"MX lengths 11",       "mobile numbers with the 1 that was dropped in 2019"},
    {"KR lengths 5 6 10",   "special services; mobile numbers of eight digits behind 10"},
    {"DE lengths 15",       "extensions of one exchange"},
    {"IL lengths 11 12",    "numbers that only receive faxes"},
    {"RS lengths 12",       "extensions"},
    {"ZA lengths 5 6 7 8",  "mobile services"},
};
// clang-format on

}  // namespace

TEST(EveryCountry, AgreesWithTheNumberingPlanOrDiffersForAKnownReason) {
  std::vector<std::string> found;
  for (const CDATA* row = COUNTRIES; row->iso != nullptr; ++row) {
    for (const std::string& difference : Differences(*row)) found.push_back(difference);
  }
  std::vector<std::string> known;
  for (const KnownDifference& difference : kKnown) known.push_back(difference.what);
  EXPECT_THAT(found, testing::UnorderedElementsAreArray(known));
}
