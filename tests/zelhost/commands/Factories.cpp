// Puts managers that note their calls behind the facades.
#include "Common/ZeltoImp.h"
#include "tests/support/RecordingManagers.h"
#include "zelhost/ZelhostZeltoManager.h"

CZeltoManagerImp* CZeltoImp::CreateZeltoManagerImp() { return CZelhostZeltoManager::GetInstance(); }
CAccountManagerImp* CZeltoImp::CreateAccountManagerImp() { return new recording::AccountManager; }
CContactManagerImp* CZeltoImp::CreateContactManagerImp() { return new recording::ContactManager; }
CCallManagerImp* CZeltoImp::CreateCallManagerImp() { return new recording::CallManager; }
CHistoryManagerImp* CZeltoImp::CreateHistoryManagerImp() { return new recording::HistoryManager; }
CChatManagerImp* CZeltoImp::CreateChatManagerImp() { return new recording::ChatManager; }
