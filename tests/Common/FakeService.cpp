#include "tests/Common/FakeService.h"

#include "Common/AccountManager.h"
#include "Common/ZeltoImp.h"
#include "Common/ZeltoManager.h"
#include "zelhost/lifecycle/ZelhostLifeCycle.h"

using test::FakeService;

CZeltoManagerImp* CZeltoImp::CreateZeltoManagerImp() { return FakeService::host = new test::FakeServiceHost; }
CAccountManagerImp* CZeltoImp::CreateAccountManagerImp() {
  return FakeService::account = new test::FakeAccount;
}
CContactManagerImp* CZeltoImp::CreateContactManagerImp() { return new test::FakeContacts; }
CCallManagerImp* CZeltoImp::CreateCallManagerImp() { return FakeService::call = new test::FakeCall; }
CHistoryManagerImp* CZeltoImp::CreateHistoryManagerImp() { return new test::FakeHistory; }
CChatManagerImp* CZeltoImp::CreateChatManagerImp() { return new recording::ChatManager; }

void CZelhostLifeCycle::BeginShutdown() {
  if (FakeService::onBeginShutdown) FakeService::onBeginShutdown();
}

void CZelhostLifeCycle::KillRuntime() {
  if (FakeService::onKillRuntime) FakeService::onKillRuntime();
}

// As the real one does it: through its own facade, which is still being made.
void test::FakeAccount::Init() {
  CZeltoManager::SetEventHandler(CZeltoManager::ACCOUNT_LOGGED_OUT, CAccountManager::GetInstance());
}
