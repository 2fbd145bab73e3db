#include "Common/ChatManager.h"

#include "Common/ZeltoImp.h"

CChatManagerImp* CChatManager::CreateImp() { return CZeltoImp::CreateChatManagerImp(); }
