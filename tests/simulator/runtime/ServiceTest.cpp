#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>

#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/service/DeviceStore.h"
#include "simulator/runtime/service/SimulatedService.h"
#include "tests/support/DeviceRoot.h"

namespace simulator {
namespace {

using ::testing::ElementsAre;

TEST(PasswordRules, NameTheFirstThingThatIsWrong) {
  const auto judge = [](const char* password) { return JudgePassword("Demo.Person1", password); };
  EXPECT_EQ(PasswordVerdict::Good, judge("demo1234"));
  EXPECT_EQ(PasswordVerdict::TooShort, judge(""));
  EXPECT_EQ(PasswordVerdict::TooShort, judge("ab12x"));
  EXPECT_EQ(PasswordVerdict::Good, judge("ab12xy"));
  EXPECT_EQ(PasswordVerdict::Good, judge("abcdegh1234567890xyz"));
  EXPECT_EQ(PasswordVerdict::TooLong, judge("abcdegh1234567890xyz1"));
  EXPECT_EQ(PasswordVerdict::BadCharacter, judge("1234caf\xc3\xa9"));
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

class ADeviceStore : public ::testing::Test {
 protected:
  std::size_t Entries() const {
    const auto list = std::filesystem::directory_iterator(folder);
    return static_cast<std::size_t>(std::distance(begin(list), end(list)));
  }

  test::DeviceRoot home;
  const std::string folder = home / "/deep/.Zelto";
  const std::string password = "demo1234";
  DeviceStore store{folder};
};

TEST_F(ADeviceStore, HasADefaultAccountWhileTheLastOneHasItsPasswordStored) {
  EXPECT_EQ("", store.DefaultAccount());
  EXPECT_LT(Entries() + 1, 3u);  // whoever counts entries sees no account yet; the door comes beside them
  store.RememberAccount("demo", &password);
  EXPECT_GE(Entries(), 3u);
  EXPECT_EQ("demo", store.DefaultAccount());
  store.RememberAccount("maria", nullptr);
  EXPECT_EQ("", store.DefaultAccount());
  store.RememberAccount("demo", nullptr);
  EXPECT_EQ("demo", store.DefaultAccount());
  store.ForgetPassword("demo");
  EXPECT_EQ("", store.DefaultAccount());
}

TEST_F(ADeviceStore, GivesEveryAccountAFolderInsideItsOwn) {
  EXPECT_EQ(folder + "/demo.person", store.AccountFolder("demo.person"));
  EXPECT_EQ(folder + "/%2E.%2Fup", store.AccountFolder("../up"));
  EXPECT_NE(folder + "/data", store.AccountFolder("data"));
  EXPECT_LT(store.AccountFolder(std::string(5000, 'a')).size(), folder.size() + 250);
  EXPECT_NE(store.AccountFolder(std::string(5000, 'a')), store.AccountFolder(std::string(5001, 'a')));
}

TEST_F(ADeviceStore, RefusesAFileOfALaterVersion) {
  sqlite3* database = nullptr;
  ASSERT_EQ(SQLITE_OK, sqlite3_open((DeviceStore::DataFolder(folder) + "/device.db").c_str(), &database));
  sqlite3_exec(database, "PRAGMA user_version = 99", nullptr, nullptr, nullptr);
  sqlite3_close(database);
  EXPECT_THROW(DeviceStore{folder}, DatabaseError);
}

TEST_F(ADeviceStore, IsFoundAgainAsItWasAlsoAfterASuddenDeath) {
  store.SetSetting("demo", "Lib/A", "1");
  store.RememberAccount("demo", &password);
  const DeviceStore again(folder);  // the first one has not been closed
  EXPECT_EQ("1", again.Setting("demo", "Lib/A"));
  EXPECT_EQ("demo", again.DefaultAccount());
  EXPECT_EQ(password, again.StoredPassword("demo"));
}

TEST(TheSimulatedService, RegistersWhatItsRulesAllowAndSuggestsFreeNamesOnly) {
  test::DeviceRoot folder;
  SimulatedService service{folder.Path()};
  EXPECT_EQ(LogoutReason::BadName, service.Register({"1abc", "good4you", "", false}));
  EXPECT_EQ(LogoutReason::BadPassword, service.Register({"demo.tv", "short", "", false}));
  EXPECT_EQ(LogoutReason::BadEmail, service.Register({"demo.tv", "good4you", "nowhere", false}));
  EXPECT_FALSE(service.Exists("demo.tv"));
  EXPECT_EQ(LogoutReason::None, service.Register({"demo.tv", "good4you", "tv@example.org", false}));
  EXPECT_EQ(LogoutReason::NameTaken, service.Register({"demo.tv", "good4you", "", false}));
  EXPECT_THAT(service.SuggestNames("demo"), ElementsAre("demo.home", "demo.2", "demo.3"));
  EXPECT_EQ(3u, service.SuggestNames(std::string(500, 'x')).size());
  SimulatedService again(folder.Path());
  EXPECT_EQ("tv@example.org", again.Profile("demo.tv")[account::kEmails].text);
}

}  // namespace
}  // namespace simulator
