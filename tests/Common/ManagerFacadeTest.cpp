#include "Common/ManagerFacade.h"

#include <thread>

#include "Common/AccountManager.h"
#include "Common/CallManager.h"
#include "Common/Platform.h"
#include "tests/Common/EngineFixture.h"

namespace {

using test::FakeAccount;
using test::FakeCall;
using test::FakeService;

void UnloadManagers() {
  CAccountManager::DeleteInstance();
  CCallManager::DeleteInstance();
}

class AnUnloadedService : public test::EngineFixture {
 protected:
  AnUnloadedService() {
    UnloadManagers();
    FakeAccount::made = FakeCall::made = 0;
  }
};

TEST_F(AnUnloadedService, GetsEachManagerAtItsFirstUseAndOnlyOneUntilItIsDeleted) {
  for (int round = 1; round <= 3; ++round) {
    EXPECT_FALSE(CAccountManager::HasManager());
    std::vector<std::thread> users;
    std::atomic<int> sameManager{0};
    for (int i = 0; i < 8; ++i) {
      users.emplace_back([&] {
        CAccountManager* account = CAccountManager::GetInstance();
        if (account->GetAccountManagerImp() == FakeService::account) ++sameManager;
      });
    }
    for (std::thread& user : users) user.join();
    EXPECT_EQ(sameManager, 8);
    EXPECT_EQ(FakeAccount::made, round);
    CAccountManager::DeleteInstance();
    CAccountManager::DeleteInstance();
    EXPECT_EQ(FakeAccount::alive, 0);
  }
}

// The account's handler of a broken database: everything is unloaded and loaded again while it runs.
TEST_F(AnUnloadedService, ReloadedByAHandlerKeepsTheHandlersManagerAndRenewsTheOthers) {
  CAccountManager::GetInstance();
  CCallManager::GetInstance();
  FakeAccount* const account = FakeService::account;
  account->onEvent = [account](const CZeltoEvent* event) {
    UnloadManagers();
    EXPECT_FALSE(CCallManager::HasManager());
    CCallManager::GetInstance();
    account->lastParam = event->param;  // still its own memory
    return true;
  };
  CZeltoManager::SendEvent(CZeltoManager::ACCOUNT_LOGGED_OUT, 18);
  ASSERT_TRUE(host.WaitFor("257(18, null)"));
  EXPECT_EQ(CAccountManager::GetInstance()->GetAccountManagerImp(), account);
  EXPECT_EQ(account->lastParam, 18);
  EXPECT_EQ(FakeAccount::alive, 1);
  EXPECT_EQ(FakeCall::made, 2);
  CAccountManager::DeleteInstance();  // from outside it is deleted as ever
  EXPECT_EQ(FakeAccount::alive, 0);
}

TEST_F(AnUnloadedService, IsNotFreedUnderAHandlerThatRunsOnTheEventThread) {
  std::atomic<bool> stop{false}, renewed{false}, kept{false};
  std::atomic<int> handled{0};
  FakeCall::onEvent = [&](const CZeltoEvent*) {
    const int made = FakeCall::made;
    if (++handled < 20) zelto::SleepMilliseconds(2);  // for an unloading that would not wait
    if (FakeCall::made != made || FakeCall::alive != 1) renewed = true;
    return true;
  };
  CZeltoManager::SetEventHandler(CZeltoManager::CALL_ENDED, CCallManager::GetInstance());
  std::thread unloading([&] {
    while (handled == 0 && !stop) std::this_thread::yield();
    while (!stop) {
      CCallManager::DeleteInstance();
      if (CCallManager::HasManager()) kept = true;
      CCallManager::GetInstance();
    }
  });
  for (int i = 0; i < 2000; ++i) CZeltoManager::SendEvent(CZeltoManager::CALL_ENDED, i);
  EXPECT_TRUE(host.WaitFor("303(1999, null)"));
  stop = true;
  unloading.join();
  Destroy();
  EXPECT_FALSE(renewed || kept);
  EXPECT_EQ(host.TakeLog().size(), 4 * 2000u);  // without a manager too they went on to the host
}

}  // namespace
