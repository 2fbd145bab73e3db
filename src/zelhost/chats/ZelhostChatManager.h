#pragma once

#include <string>

#include "Common/ChatManagerImp.h"
#include "zelhost/ManagerAlarm.h"
#include "zelhost/ManagerInstance.h"
#include "zelhost/chats/ChatList.h"

class CChat;
class CChatMessage;
class CSearch;
class Chat;
class ChatMessage;

// The chats of the signed-in account: a list with the counts of unread messages, and the messages of those
// chats that the widget has opened, one of which is the current one. Messages become read as they are handed
// out. Values of messages are not kept: the runtime is asked once for each answer, however many messages it
// is about. Without a ready runtime questions are answered null or 0, and operations are refused; only the
// length of the list and its refresh do without one. Threads: any; every operation takes the service-host
// mutex.
class CZelhostChatManager : public CChatManagerImp {
 public:
  static CZelhostChatManager* GetInstance() { return m_instance.Get(); }
  ~CZelhostChatManager() override;

  // Adds a chat that a search or an opening brought up. False when there is nothing to add: it is listed
  // already, or is neither a dialog nor has anybody posted in it.
  bool AddToChatList(Chat* chat);
  // The entry of that name, for null the current chat's; null when there is none.
  CChatInfo* GetChatInfo(const char* name);
  // Text messages of the chat that nobody has read; 0 when the runtime doesn't tell.
  int GetNumOfUnreadMessages(Chat* chat);
  // For a destructor: the search is going. It creates no manager.
  static void ForgetSearch(const CSearch* search);
  // Empties the list and gives up a search for chats; part of every sign-out.
  void ClearChatList();
  // The runtime deletes the chat: it leaves the list, and the widget is told.
  void OnDelete(Chat* chat);
  // A message has come into a chat; both objects stay the root object's. An unread one is counted, and the
  // widget hears of it a little later.
  void OnNewMessage(Chat* chat, ChatMessage* message);

  void Init() override;
  bool OnEvent(const CZeltoEvent* event) override;

  bool OpenChatWithChatName(const char* name) override;
  bool OpenChatWithContact(const char* identity) override;
  // False, and nothing changes, for a chat that is not the current one. Without a chat to close it answers
  // true: the widget's screen is closed in any case.
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

  static bool IsReady();
  const char* Result(std::string_view text);

  CChat* RuntimeChat(const char* name);
  CChatInfo* FindDialogWith(const ZEString& identity);
  bool Open(CChatInfo* info);
  void Refresh(CChatInfo* info);
  void RemoveEntry(CChatInfo* info);
  void ForgetCurrentChat();
  void TellRemoved();
  void MarkRead(CChatInfo* info, CChatMessage* message);

  void ArmNewMessageAlarm();
  static bool t_NewMessageAlarmCallback(const void* number);

  static inline zelhost::ManagerInstance<CZelhostChatManager> m_instance;

  CSearch* m_pSearch = nullptr;  // null when it has answered
  ChatList m_ChatList;
  CChatInfo* m_pCurrentChat = nullptr;
  bool m_bChatOpened = false;  // a chat screen is open
  std::string m_strResult;
  zelhost::ManagerAlarm m_newMessageAlarm;
  bool m_bNewMessagePending = false;
};
