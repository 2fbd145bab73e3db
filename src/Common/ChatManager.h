// The facade of the chat manager: the chats.
#pragma once

#include "Common/ChatManagerImp.h"
#include "Common/ManagerFacade.h"

// The operations are those of CChatManagerImp, which states their contracts.
// Threads: any; see ManagerFacade.
class CChatManager : public zelto::ManagerFacade<CChatManager, CChatManagerImp> {
 public:
  CChatManagerImp* GetChatManagerImp() { return GetImp(); }

  bool OpenChatWithChatName(const char* name) { return GetImp()->OpenChatWithChatName(name); }
  bool OpenChatWithContact(const char* identity) { return GetImp()->OpenChatWithContact(identity); }
  bool CloseChat(const char* name) { return GetImp()->CloseChat(name); }
  bool LeaveChat(const char* name) { return GetImp()->LeaveChat(name); }
  const char* GetMessages(const char* name) { return GetImp()->GetMessages(name); }
  const char* GetMessages(int start, int end, const char* name) {
    return GetImp()->GetMessages(start, end, name);
  }
  int GetNumOfMessages(const char* name) { return GetImp()->GetNumOfMessages(name); }
  bool SendMessage(const char* text) { return GetImp()->SendMessage(text); }
  bool SendMessage(const char* name, const char* text) { return GetImp()->SendMessage(name, text); }
  const char* GetRecentMessages(const char* name) { return GetImp()->GetRecentMessages(name); }
  int GetNumOfChatList() { return GetImp()->GetNumOfChatList(); }
  int GetTotalNumOfUnReadMessages() { return GetImp()->GetTotalNumOfUnReadMessages(); }
  int GetTotalNumOfUnReadChats() { return GetImp()->GetTotalNumOfUnReadChats(); }
  const char* GetChatList() { return GetImp()->GetChatList(); }
  const char* GetChatList(int index, int num, int before) {
    return GetImp()->GetChatList(index, num, before);
  }
  const char* GetChatList(const char* name, int num, int before) {
    return GetImp()->GetChatList(name, num, before);
  }
  const char* GetChatProperty(int index, int property) { return GetImp()->GetChatProperty(index, property); }
  const char* GetCurrentChatProperty(int property) { return GetImp()->GetCurrentChatProperty(property); }
  bool SetAllMessagesRead(const char* name) { return GetImp()->SetAllMessagesRead(name); }
  bool RefreshChatList() { return GetImp()->RefreshChatList(); }

 private:
  friend class zelto::ManagerFacade<CChatManager, CChatManagerImp>;
  CChatManager() = default;

  static CChatManagerImp* CreateImp();
};
