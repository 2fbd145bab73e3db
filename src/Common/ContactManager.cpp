#include "Common/ContactManager.h"

#include "Common/ZeltoImp.h"

CContactManagerImp* CContactManager::CreateImp() { return CZeltoImp::CreateContactManagerImp(); }
