#include "simulator/runtime/service/AccountRules.h"

#include <gtest/gtest.h>

namespace simulator {
namespace {

TEST(PasswordRules, NameTheFirstThingThatIsWrong) {
  const auto judge = [](const char* password) { return JudgePassword("Demo.Person1", password); };
  EXPECT_EQ(PasswordVerdict::Good, judge("demo1234"));
  EXPECT_EQ(PasswordVerdict::TooShort, judge(""));
  EXPECT_EQ(PasswordVerdict::TooShort, judge("ab12x"));
  EXPECT_EQ(PasswordVerdict::Good, judge("ab12xy"));
  EXPECT_EQ(PasswordVerdict::Good, judge("abcdegh1234567890xyz"));
  EXPECT_EQ(PasswordVerdict::TooLong, judge("abcdegh1234567890xyz1"));
  EXPECT_EQ(PasswordVerdict::BadCharacter, judge("caf\xc3\xa9"
                                                 "1234"));
  EXPECT_EQ(PasswordVerdict::Space, judge("good 4u2see"));
  EXPECT_EQ(PasswordVerdict::SameAsName, judge("demo.person1"));
  EXPECT_EQ(PasswordVerdict::BadFormat, judge("lettersonly"));
  EXPECT_EQ(PasswordVerdict::BadFormat, judge("9174628"));
  EXPECT_EQ(PasswordVerdict::BadWord, judge("myPassWord1"));
  EXPECT_EQ(PasswordVerdict::TooSimple, judge("abc123"));
  EXPECT_EQ(PasswordVerdict::TooSimple, judge("987654"));
  EXPECT_EQ(PasswordVerdict::TooSimple, judge("a1a1a1a1"));
}

TEST(EmailCheck, WantsAUserAndAHostWithADot) {
  for (const char* good : {"a@b.co", "first.last+tag@mail.example.org", "x_1@1-2.info"})
    EXPECT_TRUE(IsEmail(good)) << good;
  for (const char* bad : {"", "@", "a@", "@b.co", "a@b", "a@b.c", "a@@b.co", "a b@c.de", ".a@b.co", "a.@b.co",
                          "a..b@c.de", "a@-b.co", "a@b-.co", "a@b..co", "a@.co", "a@b.co."}) {
    EXPECT_FALSE(IsEmail(bad)) << bad;
  }
  EXPECT_FALSE(IsEmail(std::string(250, 'a') + "@b.co"));
}

TEST(Identities, AreNormalisedByTheirKind) {
  const auto normalise = [](const char* text, bool account) { return NormalizeIdentity(text, account); };
  EXPECT_EQ("demo.person", normalise("  Demo.Person ", true).identity);
  EXPECT_EQ("+35121555000", normalise("00351 (21) 555-000", false).identity);
  EXPECT_EQ("112", normalise("112", false).identity);
  EXPECT_EQ(NameVerdict::BadStart, normalise("12345", true).verdict);
  EXPECT_EQ(NameVerdict::Empty, normalise("  ", true).verdict);
  EXPECT_EQ(NameVerdict::TooShort, normalise("abc", true).verdict);
  EXPECT_EQ(NameVerdict::TooLong, NormalizeIdentity(std::string(33, 'a'), true).verdict);
  EXPECT_EQ(NameVerdict::BadCharacter, normalise("two words", true).verdict);

  EXPECT_EQ(IdentityType::Account, TypeOfIdentity("sndtest"));
  EXPECT_EQ(IdentityType::Phone, TypeOfIdentity("+1 555 0100"));
  EXPECT_EQ(IdentityType::Unknown, TypeOfIdentity("?"));
  EXPECT_EQ(IdentityType::Unknown, TypeOfIdentity(""));
}

TEST(ACapability, WarnsBeforeItEnds) {
  constexpr std::int64_t kNow = 1700000000, kDay = 86400;
  EXPECT_EQ(2, CapabilityStatus(0, kNow));
  EXPECT_EQ(2, CapabilityStatus(kNow + 31 * kDay, kNow));
  EXPECT_EQ(3, CapabilityStatus(kNow + 30 * kDay, kNow));
  EXPECT_EQ(4, CapabilityStatus(kNow + 7 * kDay, kNow));
  EXPECT_EQ(5, CapabilityStatus(kNow + kDay, kNow));
  EXPECT_EQ(1, CapabilityStatus(kNow, kNow));
}

}  // namespace
}  // namespace simulator
