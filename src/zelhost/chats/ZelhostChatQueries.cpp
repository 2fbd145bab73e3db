// The chat manager's answers about the list.
#include <algorithm>

#include "Common/Log.h"
#include "zelhost/chats/ChatRecords.h"
#include "zelhost/chats/ZelhostChatManager.h"

using zelhost::ServiceHostLock;

int CZelhostChatManager::GetNumOfChatList() {
  ServiceHostLock lock("GetNumOfChatList");
  return m_ChatList.Count();
}

int CZelhostChatManager::GetTotalNumOfUnReadMessages() {
  ServiceHostLock lock("GetTotalNumOfUnReadMessages");
  if (!IsReady()) return 0;
  int unread = 0;
  for (const auto& chat : m_ChatList.Ordered()) unread += chat->Unread();
  return unread;
}

int CZelhostChatManager::GetTotalNumOfUnReadChats() {
  ServiceHostLock lock("GetTotalNumOfUnReadChats");
  if (!IsReady()) return 0;
  const ChatList::Entries& chats = m_ChatList.Ordered();
  return static_cast<int>(
      std::count_if(chats.begin(), chats.end(), [](const auto& chat) { return chat->Unread() >= 1; }));
}

const char* CZelhostChatManager::GetChatList() {
  ServiceHostLock lock("GetChatList");
  if (!IsReady()) return nullptr;
  m_strResult.clear();
  zelto::RecordWriter writer(m_strResult);
  for (const auto& chat : m_ChatList.Ordered()) zelhost::WriteChat(writer, *chat);
  return m_strResult.c_str();
}

const char* CZelhostChatManager::GetChatList(int index, int num, int before) {
  ServiceHostLock lock("GetChatList");
  if (!IsReady() || index < 0) return nullptr;
  const int total = m_ChatList.Count();
  before = std::clamp(before, 0, index);
  num = std::min(num, total - index);
  ZELTO_DEBUG("%s: index=%d, num=%d, before=%d, total=%d\n", "GetChatList", index, num, before, total);
  m_strResult.clear();
  zelto::RecordWriter writer(m_strResult);
  for (int i = 0; i < num; ++i) zelhost::WriteChatWithType(writer, *m_ChatList.At(index - before + i));
  return m_strResult.c_str();
}

const char* CZelhostChatManager::GetChatList(const char* name, int num, int before) {
  ServiceHostLock lock("GetChatList");
  const CChatInfo* info = IsReady() ? GetChatInfo(name) : nullptr;
  return info == nullptr ? nullptr : GetChatList(m_ChatList.PositionOf(info), num, before);
}

const char* CZelhostChatManager::GetChatProperty(int index, int property) {
  ServiceHostLock lock("GetChatProperty");
  const CChatInfo* info = IsReady() ? m_ChatList.At(index) : nullptr;
  return info == nullptr ? nullptr : Result(info->Get(property).view());
}

const char* CZelhostChatManager::GetCurrentChatProperty(int property) {
  ServiceHostLock lock("GetCurrentChatProperty");
  if (!IsReady() || m_pCurrentChat == nullptr) return nullptr;
  return Result(m_pCurrentChat->Get(property).view());
}
