#pragma once

struct CZeltoEvent;

// The chats, one of which is open at a time.
// The order of the operations is that of the implementing class, CZelhostChatManager.
// Threads: any; an implementation takes the service-host mutex.
// A null name means the open chat. Failures answer false, 0 or null. Texts answered stay the manager's
// and valid until its next one.
class CChatManagerImp {
 public:
  CChatManagerImp() = default;
  CChatManagerImp(const CChatManagerImp&) = delete;
  CChatManagerImp& operator=(const CChatManagerImp&) = delete;
  virtual ~CChatManagerImp() = default;

  virtual void Init() = 0;
  // True lets the event through to the host. On the event thread.
  virtual bool OnEvent(const CZeltoEvent* event) = 0;

  virtual bool OpenChatWithChatName(const char* name) = 0;
  virtual bool OpenChatWithContact(const char* identity) = 0;
  virtual bool CloseChat(const char* name) = 0;
  virtual bool LeaveChat(const char* name) = 0;

  // Messages not handed out before; messages of a range, both ends included.
  virtual const char* GetMessages(const char* name) = 0;
  virtual const char* GetMessages(int start, int end, const char* name) = 0;
  virtual int GetNumOfMessages(const char* name) = 0;
  virtual bool SendMessage(const char* text) = 0;
  virtual bool SendMessage(const char* name, const char* text) = 0;
  virtual const char* GetRecentMessages(const char* name) = 0;

  virtual int GetNumOfChatList() = 0;
  virtual int GetTotalNumOfUnReadMessages() = 0;
  virtual int GetTotalNumOfUnReadChats() = 0;
  virtual const char* GetChatList() = 0;
  // Records of `num` chats, `before` of them ahead of the given one.
  virtual const char* GetChatList(int index, int num, int before) = 0;
  virtual const char* GetChatList(const char* name, int num, int before) = 0;
  virtual const char* GetChatProperty(int index, int property) = 0;
  virtual const char* GetCurrentChatProperty(int property) = 0;

  virtual bool SetAllMessagesRead(const char* name) = 0;
  // Starts the search; the chats arrive with an event.
  virtual bool RefreshChatList() = 0;
};
