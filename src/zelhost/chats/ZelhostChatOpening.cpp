// How chats are opened, closed and left.
#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/PropertyList.h"
#include "zelhost/apiwrapper/client/CChat.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/chats/RecentMessages.h"
#include "zelhost/chats/ZelhostChatManager.h"

using zelhost::ServiceHostLock;

namespace {

constexpr int kType[] = {ChatMessage::P_TYPE};
constexpr int kPartner[] = {Chat::P_DIALOG_PARTNER};
constexpr auto kLeftByUser = static_cast<Chat::LEAVEREASON>(2);

}  // namespace

// The runtime's object; for null the current chat's. Null when there is none.
CChat* CZelhostChatManager::RuntimeChat(const char* name) {
  if (name != nullptr) return dynamic_cast<CChat*>(g_lpZelto->GetChat(name));
  return m_pCurrentChat != nullptr ? m_pCurrentChat->Chat() : nullptr;
}

bool CZelhostChatManager::OpenChatWithChatName(const char* name) {
  ServiceHostLock lock("OpenChatWithChatName");
  if (!IsReady()) return false;
  CChat* chat = RuntimeChat(name);
  if (chat == nullptr) return false;
  AddToChatList(chat);
  CChatInfo* info = GetChatInfo(name);
  if (info != nullptr) return Open(info);
  ZELTO_DEBUG("fail to open chat: There is no chat object with name %s\n", name);
  return false;
}

bool CZelhostChatManager::OpenChatWithContact(const char* identity) {
  ServiceHostLock lock("OpenChatWithContact");
  if (identity == nullptr || *identity == '\0' || !IsReady()) return false;
  if (CChatInfo* known = FindDialogWith(identity)) return Open(known);
  Chat* chat = g_lpZelto->OpenChatTo(identity);
  if (chat == nullptr) return false;
  AddToChatList(chat);
  CChatInfo* info = GetChatInfo(chat->GetProp(Chat::P_NAME));
  if (info != nullptr) return Open(info);
  ZELTO_DEBUG("fail to open chat: There is no opened chat with %s\n", identity);
  return false;
}

CChatInfo* CZelhostChatManager::FindDialogWith(const ZEString& identity) {
  const ChatList::Entries& entries = m_ChatList.Ordered();
  ZEPtrVector chats(static_cast<unsigned>(entries.size()));
  for (unsigned i = 0; i < chats.size(); ++i) {
    ZEObject* chat = entries[i]->Type() == Chat::TYPE_MULTI_PERSON ? nullptr : entries[i]->Chat();
    chats[i] = chat;
  }
  g_lpZelto->GetMultipleObjectsProps(chats, zelhost::ListOf(kPartner));
  for (unsigned i = 0; i < chats.size(); ++i) {
    const auto* chat = zeObjectAt<CChat>(chats, i);
    if (chat != nullptr && chat->propCache.find(Chat::P_DIALOG_PARTNER) == identity) return chat->GetInfo();
  }
  return nullptr;
}

// A chat whose messages the runtime withholds is open all the same.
bool CZelhostChatManager::Open(CChatInfo* info) {
  info->Open();
  m_pCurrentChat = info;
  m_bChatOpened = true;
  ZEPtrVector messages;
  if (info->Chat() != nullptr) zelhost::GetRecentMessages(info->Chat(), zelhost::ListOf(kType), messages);
  info->m_Dialog.Fill(messages);
  info->m_nMessages = info->m_Dialog.Count();
  return true;
}

bool CZelhostChatManager::CloseChat(const char* name) {
  ServiceHostLock lock("CloseChat");
  if (!IsReady()) return false;
  CChatInfo* info = GetChatInfo(name);
  if (info != m_pCurrentChat && info != nullptr) {
    ZELTO_DEBUG("Try to close chat that is not current chat object");
    return false;
  }
  m_bChatOpened = false;
  if (info == nullptr) return true;
  info->Close();
  ForgetCurrentChat();
  return true;
}

bool CZelhostChatManager::LeaveChat(const char* name) {
  ServiceHostLock lock("LeaveChat");
  if (!IsReady()) return false;
  CChatInfo* info = name == nullptr ? nullptr : GetChatInfo(name);
  if (info != nullptr) {
    CChat* chat = info->Chat();
    const int type = info->Type();
    ForgetCurrentChat();
    RemoveEntry(info);
    if (type != Chat::TYPE_MULTI_PERSON) {
      ZELTO_DEBUG("Do not unsubscribe for Dialog chat type=%d\n", type);
    } else if (chat != nullptr) {
      chat->Leave(kLeftByUser);
    }
    if (chat != nullptr) chat->Delete();
  }
  TellRemoved();
  return true;
}
