#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>

#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/Database.h"
#include "simulator/runtime/service/DeviceStore.h"
#include "simulator/runtime/service/SimulatedAccounts.h"
#include "simulator/runtime/service/SimulatedService.h"
#include "tests/simulator/runtime/TemporaryFolder.h"

namespace simulator {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

std::size_t Entries(const std::string& folder) {
  const auto list = std::filesystem::directory_iterator(folder);
  return static_cast<std::size_t>(std::distance(begin(list), end(list)));
}

TEST(ADatabase, UndoesWhatWasNotCommittedAndRefusesWhatItDoesNotKnow) {
  test::TemporaryFolder folder;
  Database database(folder / "some.db", {"CREATE TABLE t (a);"});
  EXPECT_THROW(database.Run("INSERT INTO missing VALUES (1)"), DatabaseError);
  EXPECT_THROW(Database(folder / "no/such/folder.db", {}), DatabaseError);
  EXPECT_EQ(1, database.Run("INSERT INTO t VALUES (1)"));
  {
    Database::Transaction undone(database);
    database.Run("INSERT INTO t VALUES (2)");
  }
  auto rows = database.Ask("SELECT a FROM t");
  ASSERT_TRUE(rows.Next());
  EXPECT_EQ(1, rows.Number(0));
  EXPECT_FALSE(rows.Next());
}

class ADeviceStore : public ::testing::Test {
 protected:
  test::TemporaryFolder home;
  std::string folder = home / "deep/.Zelto";
};

TEST_F(ADeviceStore, KeepsSettingsApartByAccountUnlessTheyBelongToTheDevice) {
  DeviceStore store(folder);
  store.SetSetting("demo", "*UI/Login/Name", "one");
  store.SetSetting("demo", "Lib/Video/Policy", "contacts");
  store.SetSetting("", "Lib/Video/Policy", "nobody");
  EXPECT_EQ("one", store.Setting("maria", "*UI/Login/Name"));
  EXPECT_EQ("contacts", store.Setting("demo", "Lib/Video/Policy"));
  EXPECT_EQ("nobody", store.Setting("", "Lib/Video/Policy"));
  EXPECT_EQ(std::nullopt, store.Setting("maria", "Lib/Video/Policy"));
  store.DeleteSetting("demo", "Lib/Video/Policy");
  EXPECT_EQ(std::nullopt, store.Setting("demo", "Lib/Video/Policy"));
  EXPECT_EQ("nobody", store.Setting("", "Lib/Video/Policy"));
}

TEST_F(ADeviceStore, ListsTheNamesOneLevelBelowAKey) {
  DeviceStore store(folder);
  for (const char* key : {"*UI/Login/A", "*UI/Login/B/C", "*UI/Login/B/D", "*UI/Loginx", "*Lib/X"}) {
    store.SetSetting("demo", key, "1");
  }
  EXPECT_THAT(store.SubKeys("demo", "*UI/Login"), ElementsAre("A", "B"));
  EXPECT_THAT(store.SubKeys("demo", "*UI/Login/"), ElementsAre("A", "B"));
  EXPECT_THAT(store.SubKeys("demo", "*"), ElementsAre("Lib", "UI"));
  EXPECT_THAT(store.SubKeys("demo", ""), IsEmpty());
  EXPECT_THAT(store.SubKeys("demo", "*UI/Login/A"), IsEmpty());
}

TEST_F(ADeviceStore, FindsEverythingAgainWhenOpenedAnew) {
  const std::string odd = "1 \"quoted\" \\ ,\x01\xff";
  {
    DeviceStore store(folder);
    store.SetSetting("demo", "Lib/A", odd);
    store.SetSetting("demo", "Lib/Empty", "");
    const std::string password = "demo1234";
    store.RememberAccount("maria", nullptr);
    store.RememberAccount("demo", &password);
  }
  DeviceStore store(folder);
  EXPECT_EQ(odd, store.Setting("demo", "Lib/A"));
  EXPECT_EQ("", store.Setting("demo", "Lib/Empty"));
  EXPECT_THAT(store.Accounts(), ElementsAre("demo", "maria"));
  EXPECT_EQ("demo1234", store.StoredPassword("demo"));
  EXPECT_EQ(std::nullopt, store.StoredPassword("maria"));
}

TEST_F(ADeviceStore, HasADefaultAccountWhileTheLastOneHasItsPasswordStored) {
  DeviceStore store(folder);
  EXPECT_EQ("", store.DefaultAccount());
  const std::string password = "demo1234";
  store.RememberAccount("demo", &password);
  EXPECT_EQ("demo", store.DefaultAccount());
  store.RememberAccount("maria", nullptr);
  EXPECT_EQ("", store.DefaultAccount());
  store.RememberAccount("demo", nullptr);
  EXPECT_EQ("demo", store.DefaultAccount());
  store.ForgetPassword("demo");
  EXPECT_EQ("", store.DefaultAccount());
}

TEST_F(ADeviceStore, ShowsByItsEntriesWhetherThereIsAnAccount) {
  {
    DeviceStore store(folder);
    EXPECT_LT(Entries(folder) + 1, 3u);  // the door comes beside it
    store.RememberAccount("demo", nullptr);
  }
  EXPECT_GE(Entries(folder), 3u);
}

TEST_F(ADeviceStore, GivesEveryAccountAFolderInsideItsOwn) {
  DeviceStore store(folder);
  EXPECT_EQ(folder + "/demo.person", store.AccountFolder("demo.person"));
  EXPECT_EQ(folder + "/%2E.%2Fup", store.AccountFolder("../up"));
  EXPECT_NE(folder + "/data", store.AccountFolder("data"));
  EXPECT_LT(store.AccountFolder(std::string(5000, 'a')).size(), folder.size() + 250);
  EXPECT_NE(store.AccountFolder(std::string(5000, 'a')), store.AccountFolder(std::string(5001, 'a')));
}

TEST_F(ADeviceStore, RefusesAFileOfALaterVersion) {
  { DeviceStore store(folder); }
  sqlite3* database = nullptr;
  ASSERT_EQ(SQLITE_OK, sqlite3_open((DeviceStore::DataFolder(folder) + "/device.db").c_str(), &database));
  sqlite3_exec(database, "PRAGMA user_version = 99", nullptr, nullptr, nullptr);
  sqlite3_close(database);
  EXPECT_THROW(DeviceStore{folder}, DatabaseError);
}

class TheSimulatedService : public ::testing::Test {
 protected:
  test::TemporaryFolder folder;
  SimulatedService service{folder.Path()};
};

TEST_F(TheSimulatedService, TellsWhyAnAccountStaysClosed) {
  EXPECT_EQ(LogoutReason::None, service.SignIn("demo", kDemoPassword));
  EXPECT_EQ(LogoutReason::WrongPassword, service.SignIn("demo", "demo12345"));
  EXPECT_EQ(LogoutReason::UnknownAccount, service.SignIn("nobody", kDemoPassword));
  EXPECT_EQ(LogoutReason::ServiceUnreachable, service.SignIn("unreachable", kDemoPassword));
  EXPECT_EQ(LogoutReason::TooManyAttempts, service.SignIn("toomany", kDemoPassword));
  EXPECT_EQ(LogoutReason::DatabaseDamaged, service.SignIn("damaged", kDemoPassword));
}

TEST_F(TheSimulatedService, RegistersOnlyWhatItsRulesAllow) {
  EXPECT_EQ(LogoutReason::BadName, service.Register({"1abc", "good4you", "", false}));
  EXPECT_EQ(LogoutReason::NameTaken, service.Register({"demo", "", "", false}));
  EXPECT_EQ(LogoutReason::BadPassword, service.Register({"newcomer", "short", "", false}));
  EXPECT_EQ(LogoutReason::BadEmail, service.Register({"newcomer", "good4you", "nowhere", false}));
  EXPECT_FALSE(service.Exists("newcomer"));
  EXPECT_EQ(LogoutReason::None, service.Register({"newcomer", "good4you", "new@example.org", true}));
  EXPECT_EQ(LogoutReason::None, service.SignIn("newcomer", "good4you"));
  EXPECT_EQ(LogoutReason::NameTaken, service.Register({"newcomer", "good4you", "", false}));
  EXPECT_EQ("new@example.org", service.Profile("newcomer")[account::kEmails].text);
}

TEST_F(TheSimulatedService, SuggestsFreeNamesOnly) {
  ASSERT_EQ(LogoutReason::None, service.Register({"demo.tv", "good4you", "", false}));
  const std::vector<std::string> names = service.SuggestNames("demo");
  EXPECT_EQ(3u, names.size());
  EXPECT_THAT(names, Not(Contains("demo.tv")));
  for (const std::string& name : names) {
    EXPECT_EQ(LogoutReason::None, service.Register({name, "good4you", "", false})) << name;
  }
  EXPECT_THAT(service.SuggestNames(std::string(500, 'x')), Not(IsEmpty()));
  EXPECT_THAT(service.SuggestNames(""), IsEmpty());
}

TEST_F(TheSimulatedService, ChangesAPasswordForTheOneWhoKnowsIt) {
  EXPECT_FALSE(service.ChangePassword("demo", "wrong", "other4you"));
  EXPECT_TRUE(service.ChangePassword("demo", kDemoPassword, "other4you"));
  EXPECT_EQ(LogoutReason::None, service.SignIn("demo", "other4you"));
}

TEST_F(TheSimulatedService, KeepsProfilesContactsAndCapabilities) {
  EXPECT_TRUE(service.StoreProfile("demo", {{account::kMood, {"new"}}, {account::kPicture, {"\\0", true}}}));
  EXPECT_FALSE(service.StoreProfile("nobody", {{account::kMood, {"new"}}}));
  EXPECT_TRUE(service.AddContact("demo", "sndtest"));
  EXPECT_FALSE(service.AddContact("demo", "sndtest"));
  EXPECT_FALSE(service.AddContact("nobody", "sndtest"));

  SimulatedService again(folder.Path());
  EXPECT_EQ("new", again.Profile("demo")[account::kMood].text);
  EXPECT_TRUE(again.Profile("demo")[account::kPicture].binary);
  EXPECT_EQ("Lisbon", again.Profile("demo")[account::kCity].text);
  EXPECT_THAT(again.Contacts("demo"), ElementsAre("sndtest"));
  EXPECT_TRUE(again.RemoveContact("demo", "sndtest"));
  EXPECT_EQ(2, again.CapabilityOf("demo", 1).status);
  EXPECT_EQ(0, again.CapabilityOf("demo", 1).expiry);
  EXPECT_EQ(4, again.CapabilityOf("demo", 5).status);
  EXPECT_EQ(1, again.CapabilityOf("demo", 4).status);
}

}  // namespace
}  // namespace simulator
