#include "Common/AccountManager.h"

#include "Common/ZeltoImp.h"

CAccountManagerImp* CAccountManager::CreateImp() { return CZeltoImp::CreateAccountManagerImp(); }
