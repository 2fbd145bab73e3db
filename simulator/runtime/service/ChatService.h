// The part of a service that keeps chats and their messages.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

struct ChatPerson {
  std::string identity;
  bool member = true;   // takes part; false after leaving
  bool posted = false;  // has said something
};

// One account's view of a chat; the account itself is one of the people.
struct ChatRecord {
  std::int64_t number = 0;  // given by the service, never 0
  int type = 0;             // chat::Type
  std::string partner;      // of a dialog
  std::string topic;
  std::int64_t created = 0;  // seconds since the epoch
  std::int64_t active = 0;   // when something was last said
  bool left = false;         // by the account
  bool bookmarked = false;
  int unread = 0;  // messages; counted by the service
  std::vector<ChatPerson> people;
};

struct MessageRecord {
  std::int64_t number = 0;  // given by the service, grows with time
  int type = 0;             // message::Type
  std::string author;
  std::int64_t at = 0;  // seconds since the epoch
  std::string body;
  int status = 0;        // message::Status
  std::string contacts;  // posted ones, blanks between them
};

// Threads: called by the event loop's only thread.
class ChatService {
 public:
  virtual ~ChatService() = default;

  // In the order in which they were made.
  virtual std::vector<ChatRecord> Chats(std::string_view account) = 0;
  // Answers its number.
  virtual std::int64_t AddChat(std::string_view account, const ChatRecord& chat) = 0;
  // Stores topic, activity and marks of a chat.
  virtual void ChangeChat(const ChatRecord& chat) = 0;
  virtual void ChangeChatPerson(std::int64_t chat, const ChatPerson& person) = 0;
  // Its messages go with it.
  virtual void DeleteChat(std::int64_t chat) = 0;

  // The last ones, at most so many, oldest first.
  virtual std::vector<MessageRecord> Messages(std::int64_t chat, std::size_t most) = 0;
  // Answers its number.
  virtual std::int64_t AddMessage(std::int64_t chat, const MessageRecord& message) = 0;
  virtual void ChangeMessageStatus(std::int64_t message, int status) = 0;
  virtual void ChangeMessageBody(std::int64_t message, std::string_view body) = 0;
  virtual void DeleteMessages(std::int64_t chat) = 0;
};

}  // namespace simulator
