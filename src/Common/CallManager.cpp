#include "Common/CallManager.h"

#include "Common/ZeltoImp.h"

CCallManagerImp* CCallManager::CreateImp() { return CZeltoImp::CreateCallManagerImp(); }
