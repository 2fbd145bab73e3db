#include "zelhost/account/ZelhostAccountManager.h"

#include "Common/CallManager.h"
#include "Common/ChatManager.h"
#include "Common/ContactManager.h"
#include "Common/HistoryManager.h"
#include "tests/zelhost/Service.h"

namespace {

constexpr unsigned kAccount = 5;
constexpr char kName[] = "1704";
constexpr char kTown[] = "1007";
constexpr char kPicture[] = "1946";
constexpr char kLogoutReason[] = "1892";
constexpr char kContactListSync[] = "1782";
constexpr char kCommitStatus[] = "1797";
constexpr char kCommitted[] = "1082";
constexpr char kGetDefaultAccount[] = "1037";
constexpr char kLoginWithPassword[] = "1805";
constexpr char kLogout[] = "1911";
constexpr char kSetProps[] = "2032";
constexpr char kOwnPicture[] = "/mtd_rwcommon/moip/engines/Zelto/avatar/ann.jpg";

class AnAccountManager : public test::Service {
 protected:
  AnAccountManager() {
    m_memory.Serve(*m_runtime);
    m_memory.Set("*UI/IsInitialized", "1");
    m_memory.SetProperty(kAccount, kName, "ann");
    m_memory.SetProperty(kAccount, "1722", "Ann@Example.COM");
    m_memory.SetProperty(kAccount, kTown, "London United Kingdom");
    m_runtime->reply("1825", ScriptedRuntime::pair("0", "5"));
  }
  void SetUp() override { ASSERT_TRUE(IsLoaded()); }

  CZelhostAccountManager& Accounts() { return *CZelhostAccountManager::GetInstance(); }
  // The argument of the method's first request.
  std::string Sent(const char* method, const char* argument) {
    EXPECT_TRUE(m_runtime->waitForRequests(method));
    return m_runtime->requests(method).at(0).arguments.at(argument);
  }
  // The runtime reports a changed value of the account.
  void Change(const std::string& property, const std::string& value) {
    m_runtime->sendEvent("2046", "2073",
                         ScriptedRuntime::pair("1137", "5") + ScriptedRuntime::pair("1551", property) +
                             ScriptedRuntime::pair("1667", value));
  }
  void ReportSignedIn() {
    Change("1532", "1719");
    ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_LOGGED_IN, ++m_signIns));
  }
  void SignIn() {
    ASSERT_TRUE(Accounts().Login("ann", "secret", true));
    ReportSignedIn();
  }
  void SignOut(const char* token, const char* reason) {
    m_memory.SetProperty(kAccount, kLogoutReason, token);
    Change("1532", "1113");
    ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_LOGGED_OUT, reason));
  }
  void Sync() {
    Change(kContactListSync, "1028");
    ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_CBL_IN_SYNC));
  }
  std::string Info(int property) {
    const char* value = Accounts().GetAccountInfo(property);
    return value == nullptr ? "null" : value;
  }

  std::ptrdiff_t m_signIns = 0;
};

TEST_F(AnAccountManager, SignsInWithAPasswordOnlyOnce) {
  ASSERT_TRUE(Accounts().Login("ann", "sec,ret", true));
  EXPECT_EQ(Accounts().GetLoginState(), 1);
  EXPECT_EQ(Info(1), "null");
  EXPECT_FALSE(Accounts().Login("bob", "x", true));
  EXPECT_EQ(Sent(kLoginWithPassword, "2006"), "sec,ret");
  EXPECT_EQ(Sent(kLoginWithPassword, "1046"), "1");
  EXPECT_TRUE(Accounts().IsAutoSignInEnabled());

  ReportSignedIn();
  EXPECT_EQ(Accounts().GetLoginState(), 2);
  EXPECT_FALSE(Accounts().Login("bob", "x", true));
  EXPECT_EQ(Info(1), "ann");
  EXPECT_EQ(Info(6), "ann@example.com");
  EXPECT_EQ(Info(12), "London");
  for (const int unlisted : {13, 14, 38, 0, -1, 1 << 30}) EXPECT_EQ(Info(unlisted), "null") << unlisted;
}

TEST_F(AnAccountManager, KeepsAValueThatBeginsWithABlankWhole) {
  m_memory.SetProperty(kAccount, kTown, " London UK");
  SignIn();
  EXPECT_EQ(Info(12), " London UK");
}

TEST_F(AnAccountManager, SignsInAutomaticallyWithTheDefaultAccountOnceSomebodyWasSignedIn) {
  m_runtime->reply(kGetDefaultAccount, ScriptedRuntime::pair("0", "5"));
  EXPECT_TRUE(Accounts().IsDefaultAccountAvailable());
  EXPECT_TRUE(Accounts().IsDefaultAccountZeltoName("ann"));
  EXPECT_FALSE(Accounts().IsDefaultAccountZeltoName("bob"));
  ASSERT_FALSE(Accounts().Login(nullptr, nullptr, true));  // nobody yet, and no name
  m_memory.Set("*UI/Login/LastLoggedInID", "ann");
  ASSERT_TRUE(Accounts().Login("somebody else", "whatever", false));
  ReportSignedIn();
  EXPECT_EQ(m_runtime->requests("1252").size(), 1u);
  EXPECT_TRUE(m_runtime->requests(kLoginWithPassword).empty());

  // The default account has no list of its own on the server: the engine acts as if it had come.
  Change(kContactListSync, "1395");
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_CBL_IN_SYNC));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::ACCOUNT_CBL_SYNC_FAILED), 0);
}

TEST_F(AnAccountManager, RegistersAndMeetsTheSoundTestOnceTheContactListIsThere) {
  m_runtime->reply("1538", ScriptedRuntime::pair("0", "30"));
  m_runtime->reply("1726", ScriptedRuntime::pair("0", "40"));
  EXPECT_FALSE(Accounts().Register(nullptr, "secret", "", true, true));
  ASSERT_TRUE(Accounts().Register("ann", "secret", "a@b.c", true, false));
  EXPECT_EQ(Accounts().GetLoginState(), 1);
  EXPECT_EQ(Sent("1703", "1883"), "a@b.c");
  EXPECT_EQ(Sent("1703", "1475"), "0");
  ReportSignedIn();
  EXPECT_TRUE(m_runtime->requests("1308").empty());
  Sync();
  ASSERT_EQ(m_runtime->requests("1308").size(), 1u);
  EXPECT_EQ(Sent("1012", "1855"), "1978");
  EXPECT_EQ(Sent("1421", "1148"), "1");
}

TEST_F(AnAccountManager, ForgetsEverythingWhenSigningOut) {
  SignIn();
  ASSERT_TRUE(Accounts().Logout(true));
  EXPECT_EQ(Accounts().GetLoginState(), 3);
  EXPECT_EQ(Sent(kLogout, "1338"), "1");
  EXPECT_EQ(Info(1), "null");
  SignOut("1329", "1");
  EXPECT_TRUE(m_host.WaitForControl("StopRecognition(0)"));
  EXPECT_TRUE(Accounts().Logout(false));  // nobody is signed in
  EXPECT_EQ(m_runtime->requests(kLogout).size(), 1u);
}

TEST_F(AnAccountManager, AnswersCapabilitiesAndTheirExpiry) {
  m_host.Answers("GetLocalTime", "1 May 2030\nnoon");
  m_runtime->on("1061", [](ScriptedRuntime& to, const ScriptedRequest& request) {
    const bool has = request.arguments.at("1159") != "1119";
    to.answer(request, ScriptedRuntime::pair("0", has ? "1498" : "1949") +
                           ScriptedRuntime::pair("1555", "1903867200"));
  });
  EXPECT_EQ(Accounts().GetAccountCapability(1), nullptr);
  SignIn();
  EXPECT_STREQ(Accounts().GetAccountCapability(1), "1");
  EXPECT_EQ(Accounts().GetAccountCapabilityExpireDate(1), nullptr);  // what one does not have can't expire
  EXPECT_STREQ(Accounts().GetAccountCapability(2), "2");
  EXPECT_STREQ(Accounts().GetAccountCapabilityExpireDate(5), "1 May 2030");
  EXPECT_EQ(Accounts().GetAccountCapability(4), nullptr);
}

TEST_F(AnAccountManager, SetsProfileValues) {
  SignIn();
  ASSERT_TRUE(Accounts().SetProp(4, "Ann, \"the\" Ann"));
  EXPECT_EQ(Sent(kSetProps, "1618"), "Ann, \"the\" Ann");
  EXPECT_EQ(Info(4), "Ann, \"the\" Ann");
  EXPECT_FALSE(Accounts().SetProp(13, "x"));
  ASSERT_TRUE(Accounts().SetMoodMessage("sunny"));
  EXPECT_EQ(Info(16), "sunny");
  ASSERT_TRUE(Accounts().SetAvailability(6));
  EXPECT_EQ(Info(20), "6");
  EXPECT_FALSE(Accounts().ChangePassword("old", "new"));
  EXPECT_EQ(Sent("1388", "1046"), "1");
}

TEST_F(AnAccountManager, KeepsTheOwnPictureAsAFile) {
  const std::string picture("JPEG\0,\"\\\xFF", 9);
  m_memory.SetProperty(kAccount, kPicture, "fetched");
  SignIn();
  EXPECT_EQ(Info(15), std::string("file://") + kOwnPicture);
  EXPECT_EQ(m_device.Read(kOwnPicture), "fetched");
  EXPECT_EQ(m_device.Read("/mtd_rwcommon/moip/profile_temp.jpg"), "fetched");

  m_device.Write("/mtd_rwcommon/new.jpg", picture);
  EXPECT_FALSE(Accounts().SetProp(15, "/home/new.jpg"));
  EXPECT_TRUE(m_runtime->requests(kSetProps).empty());
  ASSERT_TRUE(Accounts().SetProp(15, "file:///mtd_rwcommon/new.jpg"));
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_AVATAR_CHANGED));
  EXPECT_EQ(m_device.Read(kOwnPicture), picture);
  // The kept picture itself, chosen again, stays whole.
  ASSERT_TRUE(Accounts().SetProp(15, (std::string("file://") + kOwnPicture).c_str()));
  EXPECT_EQ(m_device.Read(kOwnPicture), picture);
}

TEST_F(AnAccountManager, LetsNoNameLeadOutOfTheAvatarFolder) {
  m_memory.SetProperty(kAccount, kName, "../../evil");
  m_memory.SetProperty(kAccount, kPicture, "picture");
  SignIn();
  EXPECT_FALSE(m_device.Has("/mtd_rwcommon/moip/engines/evil.jpg"));
  EXPECT_EQ(m_device.Read("/mtd_rwcommon/moip/engines/Zelto/avatar/%2E.%2F..%2Fevil.jpg"), "picture");
}

TEST_F(AnAccountManager, CountsAServerSideValueOnceItIsCommitted) {
  SignIn();
  ASSERT_TRUE(Accounts().SetServerSideProp(34, "123"));
  EXPECT_EQ(Info(34), "");
  Change(kCommitStatus, kCommitted);
  Change("1423", "a mood behind it");
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_PROPERTY16_CHANGED));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::ACCOUNT_COMMITTED), 0);  // still part of the sign-in
  EXPECT_EQ(Info(34), "123");
  Sync();

  ASSERT_TRUE(Accounts().SetServerSideProp(34, "456"));
  Change(kCommitStatus, "1732");
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_COMMIT_FAILED));
  Change(kCommitStatus, kCommitted);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_COMMITTED));
  EXPECT_EQ(Info(34), "123");
}

TEST_F(AnAccountManager, ReloadsARuntimeWhoseDatabaseIsBrokenFromItsOwnHandler) {
  const std::string database = "/mtd_rwcommon/moip/engines/Zelto/.Zelto";
  SignIn();
  std::filesystem::create_directories(m_device / database);
  SignOut("2055", "21");
  // Long before the new runtime is ready.
  EXPECT_TRUE(CContactManager::HasManager() && CCallManager::HasManager() && CChatManager::HasManager() &&
              CHistoryManager::HasManager());
  EXPECT_FALSE(m_device.Has(database));
  EXPECT_EQ(Accounts().GetLogoutReason(), 21);
  EXPECT_EQ(Accounts().GetLoginState(), 0);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ZELTO_RUNTIME_READY, 2));
  SignIn();
  EXPECT_EQ(Info(1), "ann");
}

TEST_F(AnAccountManager, AsksTheRuntimeAboutNamesPasswordsAndAddresses) {
  m_runtime->reply("1347", ScriptedRuntime::pair("0", "1342"));
  m_runtime->reply("1035", ScriptedRuntime::pair("0", "1"));
  m_runtime->reply("1848",
                   ScriptedRuntime::pair("0", "1001") + ScriptedRuntime::pair("1629", "ann\x03\x02x"));
  m_memory.Set("*UI/Login/LoggedInID5", "eve");
  EXPECT_EQ(Accounts().ValidatePasswd("ann", "secret"), 9);
  EXPECT_TRUE(Accounts().IsValidEmail("a@b"));
  const std::string normalized = std::string("1\x03\x02") + "ann  x";
  EXPECT_EQ(Accounts().NormalizeIdentityForNewAccount("Ann"), normalized);
  EXPECT_FALSE(Accounts().IsAccountAvailable("ann"));
  m_runtime->reply("2059", ScriptedRuntime::pair("0", "55"));
  EXPECT_TRUE(Accounts().IsAccountAvailable("ann"));
  EXPECT_STREQ(Accounts().GetLastLoginID(4), "eve");
  for (const int slot : {0, 5, -1}) EXPECT_EQ(Accounts().GetLastLoginID(slot), nullptr) << slot;
}

}  // namespace
