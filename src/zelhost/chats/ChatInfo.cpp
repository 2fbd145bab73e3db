#include "zelhost/chats/ChatInfo.h"

#include <algorithm>

#include "zelhost/apiwrapper/client/CChat.h"

CChatInfo::CChatInfo(CChat* chat, const ZEIntDict& values)
    : m_properties(values), m_name(values.find(Chat::P_NAME)) {
  SetChat(chat);
  SetUnread(0);
}

CChatInfo::~CChatInfo() {
  if (m_pChat != nullptr) m_pChat->m_info = nullptr;
}

bool CChatInfo::Compare(const CChatInfo* a, const CChatInfo* b) {
  return a->m_activity != b->m_activity ? a->m_activity > b->m_activity : a->m_sequence < b->m_sequence;
}

int CChatInfo::Type() const { return Get(Chat::P_TYPE).toInt(); }

void CChatInfo::SetChat(CChat* chat) {
  if (chat->m_info != nullptr) chat->m_info->ForgetChat();
  chat->m_info = this;
  m_pChat = chat;
}

void CChatInfo::SetUnread(int messages) {
  m_nUnread = std::max(messages, 0);
  m_properties.insert(kUnread, ZEString::from(m_nUnread));
}

void CChatInfo::Open() {
  Close();
  m_bOpened = true;
}

void CChatInfo::Close() {
  m_bOpened = false;
  m_Dialog.Clear();
  m_nMessages = 0;
}
