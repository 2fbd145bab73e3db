// The chats of the account that is signed in.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "simulator/runtime/service/Service.h"
#include "simulator/runtime/world/Contacts.h"
#include "simulator/runtime/world/Scheduler.h"
#include "simulator/runtime/world/SignIn.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

inline constexpr std::size_t kMostChatMembers = 100;
inline constexpr std::size_t kMostRecentMessages = 20000;
inline constexpr std::size_t kLongestMessage = 64 * 1024;  // bytes

// Chats are taken from the service when they are first asked for after a sign-in, a chat's messages when
// somebody wants to see them; every change is stored there before anybody hears of it. While nobody is
// signed in there are none: operations answer null, 0, false or nothing, as they do for an object that is
// no chat or no message. The same account finds the same objects when it signs in again.
// Threads: none of its own; the scheduler delivers answers.
class Chats {
 public:
  // Seconds that the television's clock is ahead.
  Chats(World& world, Contacts& contacts, Service& service, Scheduler& scheduler, const SignIn& signIn,
        std::int64_t clockDifference);
  Chats(const Chats&) = delete;
  Chats& operator=(const Chats&) = delete;

  // By its key.
  Object* Find(std::string_view name);
  // The dialog with somebody, made when there is none; null for telephones, oneself and what is no name.
  Object* OpenTo(std::string_view identity);
  // One of several persons, without anybody else so far.
  Object* Create();

  // The chats that were active last come first.
  std::vector<unsigned> All();
  std::vector<unsigned> Unread();
  std::vector<unsigned> Bookmarked();
  // Oldest first.
  bool Recent(unsigned chat, std::vector<unsigned>& messages);
  std::vector<unsigned> Members(unsigned chat);

  // What the user does. Answers the message, 0 when it cannot be said.
  unsigned Say(unsigned chat, const std::string& text);
  unsigned PostContacts(unsigned chat, const std::vector<unsigned>& contacts);
  bool MarkRead(unsigned message);
  bool IsEditable(unsigned message);
  bool Edit(unsigned message, const std::string& text);
  // The contacts that it posted.
  std::vector<unsigned> ContactsOf(unsigned message);
  bool SetBookmark(unsigned chat, bool bookmarked);
  bool ClearMessages(unsigned chat);
  void ClearAllMessages();
  // Those of several persons only.
  bool SetTopic(unsigned chat, const std::string& topic);
  bool AddMembers(unsigned chat, const std::vector<std::string>& identities);
  bool RemoveMember(unsigned chat, const std::string& identity);
  bool Leave(unsigned chat);
  // Deletes it with its messages, the engine being told of the chat alone.
  bool Delete(unsigned chat);

  // What others do: somebody says something, in a dialog or where he becomes a member. Answers the message.
  unsigned Receive(unsigned chat, std::string_view author, const std::string& text);

  // For trying out how much there can be: chats of three messages, the tenth of several persons; messages,
  // the last one in ten unread. The engine is not told, and finds them when it looks.
  bool InventChats(int count, std::uint32_t seed);
  bool InventMessages(unsigned chat, int count);

 private:
  struct Chat {
    ChatRecord record;
    bool loaded = false;                        // its messages are all known
    std::map<std::int64_t, unsigned> messages;  // objects by number: oldest first
    std::map<std::string, unsigned> members;    // objects of those who were asked for
  };
  struct Message {
    unsigned chat;
    std::int64_t number;
    std::string contacts;
  };

  bool IsReady();
  void Forget();
  Chat* Of(unsigned chat);
  Message* MessageOf(unsigned message);
  std::int64_t Now() const;
  Object& Insert(ChatRecord record);
  Object* Make(ChatRecord record);
  void Load(unsigned id, Chat& chat);
  void Show(unsigned id, const Chat& chat, bool tell);
  std::string TitleOf(const Chat& chat);
  Object& NewMessage(unsigned chat, Chat& of, const MessageRecord& record, int shownStatus);
  unsigned Add(unsigned chat, Chat& to, MessageRecord record, int shownStatus);
  void Announce(unsigned chat, unsigned message);
  void PlanAnswer(unsigned chat, const Chat& in, const std::string& text);
  void RemoveMessages(Chat& chat);
  bool IsSharable(const Chat* chat) const;

  World& m_world;
  Contacts& m_contacts;
  Service& m_service;
  Scheduler& m_scheduler;
  const SignIn& m_signIn;
  const std::int64_t m_clockDifference;
  std::string m_account;  // whose chats these are
  std::unordered_map<unsigned, Chat> m_chats;
  std::unordered_map<unsigned, Message> m_messages;
  std::map<std::string, unsigned, std::less<>> m_byName;
  std::map<std::string, unsigned, std::less<>> m_dialogs;  // by the partner
};

}  // namespace simulator
