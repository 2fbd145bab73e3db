#include "Common/ZeltoImp.h"

#include "zelhost/ZelhostZeltoManager.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/calls/ZelhostCallManager.h"
#include "zelhost/chats/ZelhostChatManager.h"
#include "zelhost/contacts/ZelhostContactManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"

CZeltoManagerImp* CZeltoImp::CreateZeltoManagerImp() { return CZelhostZeltoManager::GetInstance(); }
CAccountManagerImp* CZeltoImp::CreateAccountManagerImp() { return CZelhostAccountManager::GetInstance(); }
CContactManagerImp* CZeltoImp::CreateContactManagerImp() { return CZelhostContactManager::GetInstance(); }
CCallManagerImp* CZeltoImp::CreateCallManagerImp() { return CZelhostCallManager::GetInstance(); }
CHistoryManagerImp* CZeltoImp::CreateHistoryManagerImp() { return CZelhostHistoryManager::GetInstance(); }
CChatManagerImp* CZeltoImp::CreateChatManagerImp() { return CZelhostChatManager::GetInstance(); }
