#include "zelhost/ZelhostAccountManager.h"

#include "Common/CallManager.h"
#include "Common/ChatManager.h"
#include "Common/ContactManager.h"
#include "Common/HistoryManager.h"
#include "tests/zelhost/RootFixture.h"
#include "tests/zelhost/Service.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/ZelhostLifeCycle.h"
#include "zelhost/apiwrapper/client/CAccount.h"

namespace {

constexpr unsigned kAccount = 5;
constexpr char kAccountClass[] = "2046";
constexpr char kLogin[] = "1252";
constexpr char kLoginWithPassword[] = "1805";
constexpr char kSetProps[] = "2032";
constexpr char kStatus[] = "1532";
constexpr char kSignedIn[] = "1719";
constexpr char kSignedOut[] = "1113";
constexpr char kContactListSync[] = "1782";
constexpr char kInSync[] = "1028";
constexpr char kSyncFailed[] = "1395";
constexpr char kMood[] = "1423";
constexpr char kCommitStatus[] = "1797";
constexpr char kAvatars[] = "/mtd_rwcommon/moip/engines/Zelto/avatar/";

class AnAccountManager : public test::Service {
 protected:
  AnAccountManager() : m_memory(*m_runtime) {
    m_memory.Set("*UI/IsInitialized", "1");
    m_memory.SetProperty(kAccount, "1704", "ann");
    m_memory.SetProperty(kAccount, "1722", "Ann@Example.COM");
    m_memory.SetProperty(kAccount, "1007", "London United Kingdom");
    m_runtime->reply("1825", ScriptedRuntime::pair("0", "5"));
  }

  void Start() { ASSERT_TRUE(IsLoaded()); }
  CZelhostAccountManager& Accounts() { return *CZelhostAccountManager::GetInstance(); }
  // The runtime reports a changed value of the account.
  void Change(const std::string& property, const std::string& value) {
    m_runtime->sendEvent(kAccountClass, "2073",
                         ScriptedRuntime::pair("1137", "5") + ScriptedRuntime::pair("1551", property) +
                             ScriptedRuntime::pair("1667", value));
  }
  void ReportSignedIn() {
    Change(kStatus, kSignedIn);
    ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_LOGGED_IN, ++m_signIns));
  }
  void SignIn() {
    ASSERT_TRUE(Accounts().Login("ann", "secret", true));
    ReportSignedIn();
  }
  void SignInAutomatically() {
    m_runtime->reply("1037", ScriptedRuntime::pair("0", "5"));
    m_memory.Set("*UI/Login/LastLoggedInID", "ann");
    ASSERT_TRUE(Accounts().Login("somebody else", "whatever", false));
    ReportSignedIn();
  }
  void Sync() {
    Change(kContactListSync, kInSync);
    ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_CBL_IN_SYNC));
  }
  std::string Info(int property) {
    const char* value = Accounts().GetAccountInfo(property);
    return value == nullptr ? "null" : value;
  }

  test::RuntimeMemory m_memory;
  std::ptrdiff_t m_signIns = 0;
};

TEST_F(AnAccountManager, RefusesEverythingWithoutARuntime) {
  EXPECT_FALSE(Accounts().Login("ann", "secret", true));
  EXPECT_FALSE(Accounts().Register("ann", "secret", "a@b", true, true));
  EXPECT_FALSE(Accounts().Logout(false));
  EXPECT_EQ(Accounts().GetLoginState(), 0);
  EXPECT_EQ(Accounts().ValidatePasswd("ann", "secret"), 0);
  EXPECT_FALSE(Accounts().SetProp(16, "hi") || Accounts().SetServerSideProp(34, "1") ||
               Accounts().SetAvailability(3) || Accounts().SetMoodMessage("hi") ||
               Accounts().IsValidEmail("a@b") || Accounts().IsAccountAvailable("ann") ||
               Accounts().IsAutoSignInEnabled() || Accounts().IsDefaultAccountAvailable());
  EXPECT_EQ(Accounts().NormalizeIdentityForNewAccount("ann"), nullptr);
  EXPECT_EQ(Accounts().GetLastLoginID(0), nullptr);
  EXPECT_EQ(Info(1), "null");
}

TEST_F(AnAccountManager, SignsInWithAPasswordOnlyOnce) {
  Start();
  ASSERT_TRUE(Accounts().Login("ann", "sec,ret", true));
  EXPECT_EQ(Accounts().GetLoginState(), 1);
  EXPECT_EQ(Info(1), "null");
  EXPECT_FALSE(Accounts().Login("bob", "x", true));
  ASSERT_TRUE(m_runtime->waitForRequests(kLoginWithPassword));
  const ScriptedRequest login = m_runtime->requests(kLoginWithPassword)[0];
  EXPECT_EQ(login.arguments.at("2006"), "sec,ret");
  EXPECT_EQ(login.arguments.at("1046"), "1");
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
  m_memory.SetProperty(kAccount, "1007", " London UK");
  Start();
  SignIn();
  EXPECT_EQ(Info(12), " London UK");
}

TEST_F(AnAccountManager, SignsInAutomaticallyWithTheDefaultAccountOnceSomebodyWasSignedIn) {
  m_runtime->reply("1037", ScriptedRuntime::pair("0", "5"));
  Start();
  EXPECT_TRUE(Accounts().IsDefaultAccountAvailable());
  EXPECT_TRUE(Accounts().IsDefaultAccountZeltoName("ann"));
  EXPECT_FALSE(Accounts().IsDefaultAccountZeltoName("bob"));
  ASSERT_FALSE(Accounts().Login(nullptr, nullptr, true));  // nobody yet, and no name
  SignInAutomatically();
  EXPECT_EQ(m_runtime->requests(kLogin).size(), 1u);
  EXPECT_TRUE(m_runtime->requests(kLoginWithPassword).empty());

  // The default account has no list of its own on the server: the engine acts as if it had come.
  Change(kContactListSync, kSyncFailed);
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_CBL_IN_SYNC));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::ACCOUNT_CBL_SYNC_FAILED), 0);
}

TEST_F(AnAccountManager, ReportsWhyASignInFailedAndTakesTheNextOne) {
  m_memory.SetProperty(kAccount, "1892", "1530");
  Start();
  ASSERT_TRUE(Accounts().Login("ann", "wrong", false));
  Change(kStatus, kSignedOut);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_LOGGED_OUT, "3"));
  EXPECT_TRUE(m_host.WaitForControl("StopRecognition 0"));
  EXPECT_EQ(Accounts().GetLogoutReason(), 3);
  EXPECT_EQ(Accounts().GetLoginState(), 0);
  SignIn();
}

TEST_F(AnAccountManager, RegistersAndMeetsTheSoundTestOnceTheContactListIsThere) {
  m_runtime->reply("1538", ScriptedRuntime::pair("0", "30"));
  m_runtime->reply("1726", ScriptedRuntime::pair("0", "40"));
  Start();
  EXPECT_FALSE(Accounts().Register(nullptr, "secret", "", true, true));
  ASSERT_TRUE(Accounts().Register("ann", "secret", "a@b.c", true, false));
  EXPECT_EQ(Accounts().GetLoginState(), 1);
  ASSERT_TRUE(m_runtime->waitForRequests("1703"));
  EXPECT_EQ(m_runtime->requests("1703")[0].arguments.at("1883"), "a@b.c");
  EXPECT_EQ(m_runtime->requests("1703")[0].arguments.at("1475"), "0");
  ReportSignedIn();
  EXPECT_TRUE(m_runtime->requests("1308").empty());
  Sync();
  ASSERT_EQ(m_runtime->requests("1308").size(), 1u);
  EXPECT_EQ(m_runtime->requests("1012").at(0).arguments.at("1855"), "1978");
  EXPECT_EQ(m_runtime->requests("1421").at(0).arguments.at("1148"), "1");
}

TEST_F(AnAccountManager, ForgetsEverythingWhenSigningOut) {
  Start();
  SignIn();
  ASSERT_TRUE(Accounts().Logout(true));
  EXPECT_EQ(Accounts().GetLoginState(), 3);
  ASSERT_TRUE(m_runtime->waitForRequests("1911"));
  EXPECT_EQ(m_runtime->requests("1911")[0].arguments.at("1338"), "1");
  EXPECT_EQ(Info(1), "null");
  m_memory.SetProperty(kAccount, "1892", "1329");
  Change(kStatus, kSignedOut);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_LOGGED_OUT, "1"));
  EXPECT_TRUE(Accounts().Logout(false));  // nobody is signed in
  EXPECT_EQ(m_runtime->requests("1911").size(), 1u);
}

TEST_F(AnAccountManager, AnswersCapabilitiesAndTheirExpiry) {
  m_host.Answers("GetLocalTime", "1 May 2030\nnoon");
  m_runtime->on("1061", [](ScriptedRuntime& to, const ScriptedRequest& request) {
    const bool has = request.arguments.at("1159") != "1119";
    to.answer(request, ScriptedRuntime::pair("0", has ? "1498" : "1949") +
                           ScriptedRuntime::pair("1555", "1903867200"));
  });
  Start();
  EXPECT_EQ(Accounts().GetAccountCapability(1), nullptr);
  SignIn();
  EXPECT_STREQ(Accounts().GetAccountCapability(1), "1");
  EXPECT_EQ(Accounts().GetAccountCapabilityExpireDate(1), nullptr);  // what one does not have can't expire
  EXPECT_STREQ(Accounts().GetAccountCapability(2), "2");
  EXPECT_STREQ(Accounts().GetAccountCapabilityExpireDate(5), "1 May 2030");
  EXPECT_EQ(Accounts().GetAccountCapability(4), nullptr);
}

TEST_F(AnAccountManager, SetsProfileValues) {
  Start();
  SignIn();
  ASSERT_TRUE(Accounts().SetProp(4, "Ann, \"the\" Ann"));
  EXPECT_EQ(m_runtime->requests(kSetProps).at(0).arguments.at("1618"), "Ann, \"the\" Ann");
  EXPECT_EQ(Info(4), "Ann, \"the\" Ann");
  EXPECT_FALSE(Accounts().SetProp(13, "x"));
  ASSERT_TRUE(Accounts().SetMoodMessage("sunny"));
  EXPECT_EQ(Info(16), "sunny");
  ASSERT_TRUE(Accounts().SetAvailability(6));
  EXPECT_EQ(Info(20), "6");
  EXPECT_FALSE(Accounts().ChangePassword("old", "new"));
  ASSERT_TRUE(m_runtime->waitForRequests("1388"));
  EXPECT_EQ(m_runtime->requests("1388")[0].arguments.at("1046"), "1");
}

TEST_F(AnAccountManager, KeepsTheOwnPictureAsAFile) {
  const std::string picture("JPEG\0,\"\\\xFF", 9);
  m_memory.SetProperty(kAccount, "1946", "fetched");
  Start();
  SignIn();
  EXPECT_EQ(Info(15), std::string("file://") + kAvatars + "ann.jpg");
  EXPECT_EQ(m_device.Read(std::string(kAvatars) + "ann.jpg"), "fetched");
  EXPECT_EQ(m_device.Read("/mtd_rwcommon/moip/profile_temp.jpg"), "fetched");

  m_device.Write("/mtd_rwcommon/new.jpg", picture);
  EXPECT_FALSE(Accounts().SetProp(15, "/home/new.jpg"));
  EXPECT_TRUE(m_runtime->requests(kSetProps).empty());
  ASSERT_TRUE(Accounts().SetProp(15, "file:///mtd_rwcommon/new.jpg"));
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_AVATAR_CHANGED));
  EXPECT_EQ(m_device.Read(std::string(kAvatars) + "ann.jpg"), picture);
  // The kept picture itself, chosen again, stays whole.
  ASSERT_TRUE(Accounts().SetProp(15, (std::string("file://") + kAvatars + "ann.jpg").c_str()));
  EXPECT_EQ(m_device.Read(std::string(kAvatars) + "ann.jpg"), picture);
}

TEST_F(AnAccountManager, LetsNoNameLeadOutOfTheAvatarFolder) {
  m_memory.SetProperty(kAccount, "1704", "../../evil");
  m_memory.SetProperty(kAccount, "1946", "picture");
  Start();
  SignIn();
  EXPECT_FALSE(m_device.Has("/mtd_rwcommon/moip/engines/evil.jpg"));
  EXPECT_EQ(m_device.Read(std::string(kAvatars) + "%2E.%2F..%2Fevil.jpg"), "picture");
}

TEST_F(AnAccountManager, CountsAServerSideValueOnceItIsCommitted) {
  Start();
  SignIn();
  ASSERT_TRUE(Accounts().SetServerSideProp(34, "123"));
  EXPECT_EQ(Info(34), "");
  Change(kCommitStatus, "1082");
  Change(kMood, "behind it");
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_PROPERTY16_CHANGED));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::ACCOUNT_COMMITTED), 0);  // still part of the sign-in
  EXPECT_EQ(Info(34), "123");
  Sync();

  ASSERT_TRUE(Accounts().SetServerSideProp(34, "456"));
  Change(kCommitStatus, "1732");
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_COMMIT_FAILED));
  Change(kCommitStatus, "1082");
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_COMMITTED));
  EXPECT_EQ(Info(34), "123");
}

TEST_F(AnAccountManager, ReloadsARuntimeWhoseDatabaseIsBrokenFromItsOwnHandler) {
  const std::string database = "/mtd_rwcommon/moip/engines/Zelto/.Zelto";
  Start();
  SignIn();
  std::filesystem::create_directories(m_device / database);
  m_memory.SetProperty(kAccount, "1892", "2055");
  Change(kStatus, kSignedOut);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_LOGGED_OUT, "21"));
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
  Start();
  EXPECT_EQ(Accounts().ValidatePasswd("ann", "secret"), 9);
  EXPECT_TRUE(Accounts().IsValidEmail("a@b"));
  EXPECT_STREQ(Accounts().NormalizeIdentityForNewAccount("Ann"),
               "1\x03\x02"
               "ann  x");
  EXPECT_FALSE(Accounts().IsAccountAvailable("ann"));
  m_runtime->reply("2059", ScriptedRuntime::pair("0", "55"));
  EXPECT_TRUE(Accounts().IsAccountAvailable("ann"));
  EXPECT_STREQ(Accounts().GetLastLoginID(4), "eve");
  EXPECT_EQ(Accounts().GetLastLoginID(0), nullptr);
  EXPECT_EQ(Accounts().GetLastLoginID(5), nullptr);
  EXPECT_EQ(Accounts().GetLastLoginID(-1), nullptr);
}

}  // namespace
