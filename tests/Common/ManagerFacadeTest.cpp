#include "Common/ManagerFacade.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "Common/AccountManager.h"
#include "Common/CallManager.h"
#include "Common/ChatManager.h"
#include "Common/ContactManager.h"
#include "Common/HistoryManager.h"
#include "Common/ZeltoManager.h"
#include "tests/Common/FakeService.h"
#include "tests/Common/TestHost.h"

namespace {

using test::FakeAccount;
using test::FakeCall;
using test::FakeService;

void UnloadManagers() {
  CContactManager::DeleteInstance();
  CAccountManager::DeleteInstance();
  CChatManager::DeleteInstance();
  CHistoryManager::DeleteInstance();
  CCallManager::DeleteInstance();
}

class AnUnloadedService : public testing::Test {
 protected:
  AnUnloadedService() {
    UnloadManagers();
    FakeAccount::made = 0;
  }
  ~AnUnloadedService() override { UnloadManagers(); }
};

TEST_F(AnUnloadedService, GetsEachManagerAtItsFirstUseAndOnlyOne) {
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
  EXPECT_EQ(FakeAccount::made, 1);
}

TEST_F(AnUnloadedService, GetsAnotherManagerAfterEachDeletion) {
  for (int round = 1; round <= 3; ++round) {
    CAccountManager::GetInstance();
    EXPECT_EQ(FakeAccount::made, round);
    EXPECT_EQ(FakeAccount::alive, 1);
    CAccountManager::DeleteInstance();
    CAccountManager::DeleteInstance();
    EXPECT_EQ(FakeAccount::alive, 0);
  }
}

TEST_F(AnUnloadedService, ForwardsToTheManagerWithAllArguments) {
  recording::TheNotes() = {};
  recording::TheNotes().noting = true;
  EXPECT_TRUE(CAccountManager::GetInstance()->Register("ann", "pw", nullptr, true, false));
  const char* (CContactManager::*records)(const char*, int, int) = &CContactManager::GetContactInfo;
  EXPECT_STREQ((CContactManager::GetInstance()->*records)("bob", 3, 1), recording::TheNotes().text);
  EXPECT_EQ(CCallManager::GetInstance()->GetCallType(), recording::TheNotes().number);
  EXPECT_TRUE(CChatManager::GetInstance()->SendMessage("bob", "hello"));
  CHistoryManager::GetInstance()->GetHistoryInfoWithTimestamp("77", 4);
  EXPECT_EQ(
      recording::TheNotes().calls,
      (std::vector<std::string>{
          "Register(\"ann\", \"pw\", null, true, false)", "GetContactInfo(\"bob\", 3, 1)", "GetCallType()",
          "SendMessage(\"bob\", \"hello\")", "GetHistoryInfoWithTimestamp(\"77\", 4)"}));
  recording::TheNotes() = {};
}

TEST_F(AnUnloadedService, LetsEventsOnTheirWayPassToTheHost) {
  CCallManager* call = CCallManager::GetInstance();
  FakeService::call->onEvent = [](const CZeltoEvent*) { return false; };
  const CZeltoEvent event{262, 0, 0};
  EXPECT_FALSE(call->OnEvent(&event));
  CCallManager::DeleteInstance();
  EXPECT_TRUE(call->OnEvent(&event));
  EXPECT_TRUE(call->AfterEvent(&event));
  EXPECT_FALSE(CCallManager::HasManager());
}

// The account's handler of a broken database: everything is unloaded and loaded again while it runs.
class AReloadFromAHandler : public AnUnloadedService {
 protected:
  AReloadFromAHandler() : engine(host.StartEngine()) {
    CAccountManager::GetInstance();
    CCallManager::GetInstance();
    CContactManager::GetInstance();
  }
  ~AReloadFromAHandler() override { CZeltoManager::Destroy(engine); }

  test::TestHost host;
  IMoIPEngine* const engine;
};

TEST_F(AReloadFromAHandler, LeavesTheHandlersManagerInPlaceAndRenewsTheOthers) {
  FakeAccount* const account = FakeService::account;
  FakeCall::made = 0;
  account->onEvent = [account](const CZeltoEvent* event) {
    UnloadManagers();
    EXPECT_FALSE(CCallManager::HasManager());
    CCallManager::GetInstance();
    account->info[1] = "reason " + std::to_string(event->param);  // still its own memory
    return true;
  };
  CZeltoManager::SendEvent(CZeltoManager::ACCOUNT_LOGGED_OUT, 18);
  ASSERT_TRUE(host.WaitFor("257(18, null)"));
  EXPECT_STREQ(CAccountManager::GetInstance()->GetAccountInfo(1), "reason 18");
  EXPECT_EQ(FakeAccount::alive, 1);
  EXPECT_EQ(FakeCall::made, 1);

  account->onEvent = nullptr;
  CZeltoManager::SendEvent(CZeltoManager::ACCOUNT_LOGGED_OUT, 3);
  EXPECT_TRUE(host.WaitFor("257(3, null)"));
  CAccountManager::DeleteInstance();  // from outside it is deleted as ever
  EXPECT_EQ(FakeAccount::alive, 0);
}

TEST_F(AReloadFromAHandler, WaitsForAHandlerThatRunsOnTheEventThread) {
  std::atomic<bool> inside{false}, release{false}, sawItself{false};
  FakeCall* const call = FakeService::call;
  call->onEvent = [&, call](const CZeltoEvent*) {
    inside = true;
    while (!release) std::this_thread::yield();
    sawItself = FakeCall::alive == 1 && FakeService::call == call;
    return true;
  };
  CZeltoManager::SetEventHandler(CZeltoManager::CALL_ENDED, CCallManager::GetInstance());
  CZeltoManager::SendEvent(CZeltoManager::CALL_ENDED, 0);
  while (!inside) std::this_thread::yield();
  std::thread unloading(UnloadManagers);
  release = true;
  unloading.join();
  EXPECT_TRUE(sawItself);
  EXPECT_EQ(FakeCall::alive, 0);
  EXPECT_TRUE(host.WaitFor("303(0, null)"));
}

TEST_F(AReloadFromAHandler, SurvivesUnloadingsBetweenAllItsEvents) {
  CZeltoManager::SetEventHandler(CZeltoManager::CALL_ENDED, CCallManager::GetInstance());
  std::atomic<bool> stop{false};
  std::thread unloading([&] {
    while (!stop) {
      CCallManager::DeleteInstance();
      CCallManager::GetInstance();
    }
  });
  for (int i = 0; i < 2000; ++i) CZeltoManager::SendEvent(CZeltoManager::CALL_ENDED, i);
  EXPECT_TRUE(host.WaitFor("303(1999, null)"));
  stop = true;
  unloading.join();
}

}  // namespace
