#pragma once

#include "Common/ChatManagerImp.h"
#include "zelhost/ManagerInstance.h"

class Chat;
class ChatMessage;

// The chats of the signed-in account.
// It keeps no list yet: questions are answered as for an account without chats, and operations are
// refused.
// Threads: any.
class CZelhostChatManager : public CChatManagerImp {
 public:
  static CZelhostChatManager* GetInstance() { return m_instance.Get(); }
  ~CZelhostChatManager() override;

  // A message has arrived in a chat; both objects stay the root object's.
  void OnNewMessage(Chat* chat, ChatMessage* message);
  // Empties the list; part of every sign-out.
  void ClearChatList();

  void Init() override;
  bool OnEvent(const CZeltoEvent* event) override;

  bool OpenChatWithChatName(const char* name) override;
  bool OpenChatWithContact(const char* identity) override;
  bool CloseChat(const char* name) override;
  bool LeaveChat(const char* name) override;

  const char* GetMessages(const char* name) override;
  const char* GetMessages(int start, int end, const char* name) override;
  int GetNumOfMessages(const char* name) override;
  bool SendMessage(const char* text) override;
  bool SendMessage(const char* name, const char* text) override;
  const char* GetRecentMessages(const char* name) override;

  int GetNumOfChatList() override;
  int GetTotalNumOfUnReadMessages() override;
  int GetTotalNumOfUnReadChats() override;
  const char* GetChatList() override;
  const char* GetChatList(int index, int num, int before) override;
  const char* GetChatList(const char* name, int num, int before) override;
  const char* GetChatProperty(int index, int property) override;
  const char* GetCurrentChatProperty(int property) override;

  bool SetAllMessagesRead(const char* name) override;
  bool RefreshChatList() override;

 private:
  friend class zelhost::ManagerInstance<CZelhostChatManager>;
  CZelhostChatManager() = default;

  static inline zelhost::ManagerInstance<CZelhostChatManager> m_instance;
};
