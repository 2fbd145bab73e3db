#include "Common/ZeltoImp.h"

#include "zelhost/ZelhostAccountManager.h"
#include "zelhost/ZelhostCallManager.h"
#include "zelhost/chats/ZelhostChatManager.h"
#include "zelhost/ZelhostContactManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"
#include "zelhost/ZelhostZeltoManager.h"

CZeltoManagerImp* CZeltoImp::CreateZeltoManagerImp() { return CZelhostZeltoManager::GetInstance(); }
CAccountManagerImp* CZeltoImp::CreateAccountManagerImp() { return CZelhostAccountManager::GetInstance(); }
CContactManagerImp* CZeltoImp::CreateContactManagerImp() { return CZelhostContactManager::GetInstance(); }
CCallManagerImp* CZeltoImp::CreateCallManagerImp() { return CZelhostCallManager::GetInstance(); }
CHistoryManagerImp* CZeltoImp::CreateHistoryManagerImp() { return CZelhostHistoryManager::GetInstance(); }
CChatManagerImp* CZeltoImp::CreateChatManagerImp() { return CZelhostChatManager::GetInstance(); }
