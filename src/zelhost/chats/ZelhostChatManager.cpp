#include "zelhost/chats/ZelhostChatManager.h"

#include <utility>

#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/PropertyList.h"
#include "zelhost/apiwrapper/client/CChat.h"
#include "zelhost/apiwrapper/client/CSearch.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/chats/RecentMessages.h"

using zelhost::ServiceHostLock;

namespace {

// What the list keeps of every chat, in the order of the request.
constexpr int kListedProperties[] = {Chat::P_TYPE, Chat::P_POSTER, Chat::P_NAME,
                                     Chat::P_3,    Chat::P_11,     Chat::P_LAST_ACTIVITY};
constexpr int kUnreadProperties[] = {ChatMessage::P_TYPE, ChatMessage::P_STATUS};

// Messages that follow one another quickly are told together.
constexpr int kNewMessageDelay = 3'000'000;  // microseconds

bool IsUnreadText(const ZEIntDict& message) {
  return CChatMessage::IsText(message.find(ChatMessage::P_TYPE).toInt()) &&
         message.find(ChatMessage::P_STATUS).toInt() == ChatMessage::STATUS_NOT_READ;
}

}  // namespace

CZelhostChatManager::~CZelhostChatManager() { m_instance.Forget(); }

// Chats have no engine events to react to.
void CZelhostChatManager::Init() {}
bool CZelhostChatManager::OnEvent(const CZeltoEvent*) { return true; }

bool CZelhostChatManager::IsReady() { return g_lpZelto != nullptr && CZeltoManager::IsZeltoReady(); }

const char* CZelhostChatManager::Result(std::string_view text) {
  m_strResult = text;
  return m_strResult.c_str();
}

bool CZelhostChatManager::RefreshChatList() {
  ServiceHostLock lock("RefreshChatList");
  if (g_lpZelto == nullptr) return false;
  CSearch::GiveUp(m_pSearch);
  ForgetCurrentChat();
  m_ChatList.Clear();
  ZELTO_DEBUG("Send a request for Search::CHAT");
  m_pSearch = CSearch::Start(*g_lpZelto, Search::CHAT);
  return m_pSearch != nullptr;
}

void CZelhostChatManager::ClearChatList() {
  ServiceHostLock lock("ClearChatList");
  CSearch::GiveUp(m_pSearch);
  ForgetCurrentChat();
  m_ChatList.Clear();
  m_newMessageAlarm.Stop();
  m_bNewMessagePending = false;
}

void CZelhostChatManager::ForgetSearch(const CSearch* search) {
  ServiceHostLock lock("ForgetSearch");
  CZelhostChatManager* manager = m_instance.Existing();
  if (manager != nullptr && manager->m_pSearch == search) manager->m_pSearch = nullptr;
}

bool CZelhostChatManager::AddToChatList(Chat* reported) {
  ServiceHostLock lock("AddToChatList");
  auto* chat = dynamic_cast<CChat*>(reported);
  if (chat == nullptr) return false;
  const ZEIntDict values = chat->GetProps(zelhost::ListOf(kListedProperties));
  const ZEString name = values.find(Chat::P_NAME);
  if (CChatInfo* known = m_ChatList.Find(name.view())) {
    ZELTO_DEBUG("%s: This chat object is already in the Chat list\n", "AddToChatList");
    if (known->Chat() == nullptr) known->SetChat(chat);
    return false;
  }
  if (values.find(Chat::P_POSTER).isEmpty() && values.find(Chat::P_TYPE).toInt() != Chat::TYPE_DIALOG) {
    ZELTO_DEBUG("this chat object has no poster");
    return false;
  }
  CChatInfo* added = m_ChatList.Add(std::make_unique<CChatInfo>(chat, values));
  added->SetUnread(GetNumOfUnreadMessages(chat));
  ZELTO_DEBUG("%s: %s is added\n", "AddToChatList", static_cast<const char*>(name));
  return true;
}

int CZelhostChatManager::GetNumOfUnreadMessages(Chat* chat) {
  ServiceHostLock lock("GetNumOfUnreadMessages");
  ZEPtrVector messages;
  if (!zelhost::GetRecentMessages(chat, zelhost::ListOf(kUnreadProperties), messages)) return 0;
  int unread = 0;
  for (unsigned i = 0; i < messages.size(); ++i) {
    CChatMessage* message = zelhost::MessageAt(messages, i);
    if (!IsUnreadText(zelhost::TakeValues(*message))) continue;
    message->CountAsUnread();
    ++unread;
  }
  return unread;
}

CChatInfo* CZelhostChatManager::GetChatInfo(const char* name) {
  ServiceHostLock lock("GetChatInfo");
  return name == nullptr ? m_pCurrentChat : m_ChatList.Find(name);
}

void CZelhostChatManager::ForgetCurrentChat() {
  m_pCurrentChat = nullptr;
  m_bChatOpened = false;
}

void CZelhostChatManager::RemoveEntry(CChatInfo* info) {
  if (info == m_pCurrentChat) ForgetCurrentChat();
  m_ChatList.Remove(info);
}

void CZelhostChatManager::TellRemoved() {
  CZeltoManager::SendEvent(CZeltoManager::UNREAD_COUNT_CHANGED, 0);
  CZeltoManager::SendEvent(CZeltoManager::CHAT_REMOVED, 0);
}

void CZelhostChatManager::OnDelete(Chat* deleted) {
  ServiceHostLock lock("OnDelete");
  const auto* chat = dynamic_cast<CChat*>(deleted);
  if (chat == nullptr || chat->GetInfo() == nullptr) return;
  ZELTO_DEBUG("Chat Object was deleted from somewhere !!!n");
  RemoveEntry(chat->GetInfo());
  TellRemoved();
}

// The chat may be new, and its counts may know the message already; a message of the account's own, or one
// that another device has read, is shown but not told.
void CZelhostChatManager::OnNewMessage(Chat* reportedChat, ChatMessage* reported) {
  ServiceHostLock lock("OnNewMessage");
  auto* chat = dynamic_cast<CChat*>(reportedChat);
  auto* message = dynamic_cast<CChatMessage*>(reported);
  if (chat == nullptr || message == nullptr) return;
  const ZEIntDict values = message->GetProps(zelhost::ListOf(kUnreadProperties));
  if (!CChatMessage::IsText(values.find(ChatMessage::P_TYPE).toInt())) return;
  if (chat->GetInfo() != nullptr) {
    Refresh(chat->GetInfo());
  } else {
    AddToChatList(chat);
  }
  CChatInfo* info = chat->GetInfo();
  if (info == nullptr) return;
  if (info->IsOpened()) info->m_Dialog.Append(message);
  if (!IsUnreadText(values)) return;
  if (message->CountAsUnread()) info->SetUnread(info->Unread() + 1);
  ArmNewMessageAlarm();
}

// What is told under another name is about another chat, or nothing at all.
void CZelhostChatManager::Refresh(CChatInfo* info) {
  const ZEIntDict values = info->Chat()->GetProps(zelhost::ListOf(kListedProperties));
  if (values.find(Chat::P_NAME).view() == info->Name()) m_ChatList.Update(info, values);
}

void CZelhostChatManager::ArmNewMessageAlarm() {
  if (std::exchange(m_bNewMessagePending, true)) return;
  m_newMessageAlarm.Start(kNewMessageDelay, &t_NewMessageAlarmCallback);
}

bool CZelhostChatManager::t_NewMessageAlarmCallback(const void* number) {
  ServiceHostLock lock("NewMessageAlarm");
  ZELTO_DEBUG(" t_NewMessageAlarmCallback");
  CZelhostChatManager* manager = m_instance.Existing();
  if (manager == nullptr || !manager->m_newMessageAlarm.IsCurrent(number)) return false;
  manager->m_newMessageAlarm.Stop();
  if (!std::exchange(manager->m_bNewMessagePending, false)) return false;
  CZeltoManager::SendEvent(CZeltoManager::UNREAD_COUNT_CHANGED, 0);
  if (!manager->m_bChatOpened) CZeltoManager::SendEvent(CZeltoManager::CHAT_NEW_MESSAGE, 0);
  return true;
}
