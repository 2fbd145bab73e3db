#include "Common/HistoryManager.h"

#include "Common/ZeltoImp.h"

CHistoryManagerImp* CHistoryManager::CreateImp() { return CZeltoImp::CreateHistoryManagerImp(); }
