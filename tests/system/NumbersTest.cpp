// Countries and telephone numbers, asked of the engine with a runtime behind it.
#include <gmock/gmock.h>
#include <phonenumbers/phonenumberutil.h>

#include <algorithm>
#include <map>
#include <set>

#include "simulator/television/Records.h"
#include "tests/system/SwitchedOnTelevision.h"

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;
using ::testing::Contains;

namespace test {
namespace {

// Countries of shared calling codes, which one number does not tell apart: the main country stands for them.
// clang-format off
const std::map<std::string, std::string> kTakenFor = {
    {"AX", "fi"}, {"BL", "gp"}, {"CC", "au"}, {"CX", "au"}, {"EH", "ma"}, {"GG", "gb"}, {"IM", "gb"},
    {"JE", "gb"}, {"MF", "gp"}, {"SJ", "no"}, {"VA", "it"}, {"YT", "re"}, {"BQ", "cw"},
    // The engine knows these two by their next digit, 4 and 3, with which their example numbers do not begin.
    {"RU", "kz"}, {"KZ", ""},
};
// clang-format on
constexpr int kSharedByIslands = 1;  // whose areas the engine does not know
constexpr std::size_t kAtLeast = 60;

class AViewerWithATelephone : public ATelevision {
 protected:
  void SetUp() override { SwitchOnAndWait(); }
};

TEST_F(AViewerWithATelephone, PicksACountryInThreeLanguages) {
  const std::map<std::string, television::Record> kSweden = {
      {"en", {"Sweden", "46", "se"}}, {"de", {"Schweden", "46", "se"}}, {"ko", {"스웨덴", "46", "se"}}};
  for (const auto& [language, sweden] : kSweden) {
    const std::vector<television::Record> countries =
        television::ReadRecords(Execute("GetCountryList", language.c_str()), 3);
    EXPECT_GT(countries.size(), 200u);
    EXPECT_THAT(countries, Contains(sweden));
    EXPECT_TRUE(std::is_sorted(countries.begin(), countries.end(),
                               [](const auto& a, const auto& b) { return a[0] < b[0]; }));
  }
  EXPECT_EQ(Execute("GetCountryList"), Execute("GetCountryList", "en"));
  EXPECT_EQ(Execute("GetISOCountryPrefix", "kr"), "82");
  EXPECT_EQ(Execute("GetISOCountryName", "kr"), "South Korea");
  EXPECT_EQ(Execute("GetISOCountryName", "kr", "fr"), "Corée du Sud");
}

TEST_F(AViewerWithATelephone, SeesWhereNumbersOfAllCountriesBelong) {
  const PhoneNumberUtil& plans = *PhoneNumberUtil::GetInstance();
  std::set<std::string> regions;
  plans.GetSupportedRegions(&regions);
  std::size_t compared = 0;
  for (const std::string& region : regions) {
    if (region == "AC" || region == "TA") continue;  // no countries of their own
    PhoneNumber number;
    ASSERT_TRUE(plans.GetExampleNumber(region, &number));
    std::string text;
    plans.Format(number, PhoneNumberUtil::E164, &text);
    std::string national;
    plans.GetNationalSignificantNumber(number, &national);
    std::string country = region;
    std::transform(country.begin(), country.end(), country.begin(), ::tolower);
    if (const auto other = kTakenFor.find(region); other != kTakenFor.end()) country = other->second;
    if (number.country_code() == kSharedByIslands && region != "US" && region != "CA") country = "";
    if (number.country_code() == 7) national = '7' + national;  // stays in front
    EXPECT_EQ(Execute("FindCountryCodeByNumber", text.c_str()), country) << region << ' ' << text;
    EXPECT_EQ(Execute("GetLocalNumber", text.c_str()), national) << region;
    ++compared;
  }
  EXPECT_GE(compared, kAtLeast);
  EXPECT_EQ(Execute("FindCountryCodeByNumber", "12125551234"), "");
  EXPECT_EQ(Execute("GetLocalNumber", "12125551234"), "12125551234");
}

}  // namespace
}  // namespace test
