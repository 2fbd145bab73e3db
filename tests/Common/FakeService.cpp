#include "tests/Common/FakeService.h"

#include "Common/AccountManager.h"
#include "Common/ZeltoImp.h"
#include "Common/ZeltoManager.h"
#include "zelhost/ZelhostLifeCycle.h"

using test::FakeService;

CZeltoManagerImp* CZeltoImp::CreateZeltoManagerImp() { return FakeService::host = new test::FakeServiceHost; }
CAccountManagerImp* CZeltoImp::CreateAccountManagerImp() {
  return FakeService::account = new test::FakeAccount;
}
CContactManagerImp* CZeltoImp::CreateContactManagerImp() {
  return FakeService::contacts = new test::FakeContacts;
}
CCallManagerImp* CZeltoImp::CreateCallManagerImp() { return FakeService::call = new test::FakeCall; }
CHistoryManagerImp* CZeltoImp::CreateHistoryManagerImp() {
  return FakeService::history = new test::FakeHistory;
}
CChatManagerImp* CZeltoImp::CreateChatManagerImp() { return new test::FakeChat; }

void CZelhostLifeCycle::BeginShutdown() {
  if (FakeService::onBeginShutdown) FakeService::onBeginShutdown();
}

namespace test {

// As the real one does it: through its own facade, which is still being made.
void FakeAccount::Init() {
  CZeltoManager::SetEventHandler(CZeltoManager::ACCOUNT_LOGGED_OUT, CAccountManager::GetInstance());
}

}  // namespace test
