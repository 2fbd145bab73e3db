#include "tests/simulator/runtime/RuntimeFixture.h"

using ::testing::StartsWith;

namespace test {
namespace {

class TheCountries : public RuntimeFixture {
 protected:
  std::string Of(const ZEMethod& method, const std::string& country) {
    return Result(method, Pair(ZEKey::CountryCode, country));
  }
  std::string WithCode(const char* code) {
    return Result(RootMethod::GetISOCountryCodeByPrefix, Pair(ZEKey::Prefix, code));
  }
};

TEST_F(TheCountries, HaveCallingCodesExamplesAndAMainOneForEachCode) {
  EXPECT_EQ("46", Of(RootMethod::GetISOCountryPrefix, "SE"));
  EXPECT_EQ("82", Result(RootMethod::GetISOCountryPrefixDict, {}, "kr"));
  EXPECT_EQ("(none)", Result(RootMethod::GetISOCountryPrefixDict, {}, "aq"));  // nobody to call there
  EXPECT_THAT(Of(RootMethod::GetISOCountryDialExample, "fr"), StartsWith("+33 "));
  EXPECT_THAT(Result(RootMethod::GetISOCountryDialExampleDict, {}, "kr"), StartsWith("+82 "));
  EXPECT_THAT(WithCode("1"), StartsWith("us,"));
  EXPECT_THAT(WithCode("44"), StartsWith("gb,"));
  EXPECT_EQ("no", WithCode("47").substr(0, 2));
  for (const char* unknown : {"", "zz", "001", "../x"}) {
    EXPECT_EQ("0", Of(RootMethod::GetISOCountryPrefix, unknown));
    EXPECT_EQ("", Of(RootMethod::GetISOCountryDialExample, unknown));
  }
  for (const char* unknown : {"-1", "0", "999", "99999999999999999999"}) EXPECT_EQ("", WithCode(unknown));
}

}  // namespace
}  // namespace test
