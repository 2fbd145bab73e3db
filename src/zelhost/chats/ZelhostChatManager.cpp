#include "zelhost/chats/ZelhostChatManager.h"

CZelhostChatManager::~CZelhostChatManager() { m_instance.Forget(); }

// Chats have no engine events to react to.
void CZelhostChatManager::Init() {}
bool CZelhostChatManager::OnEvent(const CZeltoEvent*) { return true; }

void CZelhostChatManager::OnNewMessage(Chat*, ChatMessage*) {}
void CZelhostChatManager::ClearChatList() {}

bool CZelhostChatManager::OpenChatWithChatName(const char*) { return false; }
bool CZelhostChatManager::OpenChatWithContact(const char*) { return false; }
bool CZelhostChatManager::CloseChat(const char*) { return false; }
bool CZelhostChatManager::LeaveChat(const char*) { return false; }

const char* CZelhostChatManager::GetMessages(const char*) { return nullptr; }
const char* CZelhostChatManager::GetMessages(int, int, const char*) { return nullptr; }
int CZelhostChatManager::GetNumOfMessages(const char*) { return 0; }
bool CZelhostChatManager::SendMessage(const char*) { return false; }
bool CZelhostChatManager::SendMessage(const char*, const char*) { return false; }
const char* CZelhostChatManager::GetRecentMessages(const char*) { return nullptr; }

int CZelhostChatManager::GetNumOfChatList() { return 0; }
int CZelhostChatManager::GetTotalNumOfUnReadMessages() { return 0; }
int CZelhostChatManager::GetTotalNumOfUnReadChats() { return 0; }
const char* CZelhostChatManager::GetChatList() { return nullptr; }
const char* CZelhostChatManager::GetChatList(int, int, int) { return nullptr; }
const char* CZelhostChatManager::GetChatList(const char*, int, int) { return nullptr; }
const char* CZelhostChatManager::GetChatProperty(int, int) { return nullptr; }
const char* CZelhostChatManager::GetCurrentChatProperty(int) { return nullptr; }

bool CZelhostChatManager::SetAllMessagesRead(const char*) { return false; }
bool CZelhostChatManager::RefreshChatList() { return false; }
