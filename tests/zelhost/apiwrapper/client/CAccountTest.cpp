#include "zelhost/apiwrapper/client/CAccount.h"

#include "tests/zelhost/RootFixture.h"
#include "zelhost/account/ZelhostAccountManager.h"

using zelhost::ServiceHostLock;

namespace {

constexpr unsigned kAccount = 5;
constexpr char kStatus[] = "1532";

class AnAccountObject : public test::RootFixture {
 protected:
  AnAccountObject() {
    ServiceHostLock lock("the test");
    m_root->m_lpActiveAccount = dynamic_cast<CAccount*>(m_root->getAccount(kAccount));
    m_memory.SetProperty(kAccount, "1704", "ann");
  }
  ~AnAccountObject() override { delete CZelhostAccountManager::GetInstance(); }

  void ChangeTo(const std::string& property, const std::string& value) {
    Change("2046", kAccount, property, value);
  }
};

TEST_F(AnAccountObject, ReportsItsChangesAsEvents) {
  struct Case {
    const char* property;
    const char* value;
    int event;
    const char* param;
  };
  // clang-format off
  for (const Case& c : {Case{"1946", "x",    CZeltoManager::ACCOUNT_AVATAR_CHANGED,       "0"},
                        Case{"1423", "hi",   CZeltoManager::ACCOUNT_PROPERTY16_CHANGED,   "0"},
                        Case{"1842", "1242", CZeltoManager::ACCOUNT_AVAILABILITY_CHANGED, "3"},
                        Case{"1819", "1796", CZeltoManager::ACCOUNT_PROPERTY22_1,         "0"},
                        Case{"1819", "1856", CZeltoManager::ACCOUNT_PROPERTY22_1 + 7,     "0"},
                        Case{"1797", "1082", CZeltoManager::ACCOUNT_COMMITTED,            "0"},
                        Case{"1797", "1896", CZeltoManager::ACCOUNT_COMMITTING,           "0"},
                        Case{"1797", "1732", CZeltoManager::ACCOUNT_COMMIT_FAILED,        "0"},
                        Case{"1622", "one",  CZeltoManager::ACCOUNT_NAME_CHANGED,         "0"}}) {
    // clang-format on
    ChangeTo(c.property, c.value);
    EXPECT_TRUE(m_host.WaitFor(c.event, c.param)) << c.property << "=" << c.value;
  }
  const std::ptrdiff_t before = m_host.CountUntilNow();
  for (const char* quiet : {"1405", "1199", "1101", "1441", "1032"}) ChangeTo(quiet, "1");
  ChangeTo("1819", "unknown");
  ChangeTo("1797", "unknown");
  ChangeTo(kStatus, "1134");
  EXPECT_EQ(m_host.CountUntilNow(), before + 1);  // the mark itself
}

TEST_F(AnAccountObject, PreparesTheAccountThatHasSignedIn) {
  ChangeTo(kStatus, "1719");
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_LOGGED_IN));
  EXPECT_EQ(m_runtime.requests("1109").at(0).arguments.at("1581"), "1242");
  EXPECT_EQ(m_memory.Setting("Lib/Account/IsInitialized"), "1");
  EXPECT_EQ(m_memory.Setting("*UI/Login/LastLoggedInID"), "ann");
}

TEST_F(AnAccountObject, GoesWithItsListsWhenItHasSignedOut) {
  Deliver("1684", "1397", Id(90));
  m_memory.SetProperty(kAccount, "1892", "1575");
  m_memory.SetProperty(kAccount, "1317", "ann1;ann2;;ann3;");
  ChangeTo(kStatus, "1113");
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_LOGGED_OUT, "11"));
  EXPECT_FALSE(Exists(kAccount));
  EXPECT_FALSE(Exists(90));
  CZelhostAccountManager& accounts = *CZelhostAccountManager::GetInstance();
  EXPECT_EQ(accounts.GetSuggestedZeltoNameList(), std::string("ann1\3\2ann2\3\2ann3\3\2"));
  EXPECT_STREQ(accounts.GetSuggestedZeltoName(2), "ann3");
  EXPECT_EQ(accounts.GetSuggestedZeltoName(3), nullptr);
  EXPECT_EQ(accounts.GetSuggestedZeltoName(-1), nullptr);
  ServiceHostLock lock("the test");
  EXPECT_EQ(m_root->m_lpActiveAccount, nullptr);
}

TEST_F(AnAccountObject, AnnouncesItsFirstContactListOnlyAndAlwaysPrefetches) {
  ChangeTo("1782", "1028");
  ChangeTo("1782", "1028");
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::ACCOUNT_CBL_IN_SYNC), 1);
  ChangeTo("1782", "1395");
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::ACCOUNT_CBL_SYNC_FAILED));
  EXPECT_EQ(m_runtime.requests("1538").size(), 36u);
  ChangeTo("1782", "2100");
  EXPECT_EQ(m_runtime.requests("1538").size(), 36u);
}

TEST_F(AnAccountObject, LeavesTheRootWhenTheRuntimeDropsIt) {
  Deliver("2046", "2048", Id(kAccount));
  ServiceHostLock lock("the test");
  EXPECT_EQ(m_root->m_lpActiveAccount, nullptr);
}

}  // namespace
