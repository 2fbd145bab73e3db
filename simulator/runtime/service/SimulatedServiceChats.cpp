// The simulated service's side of chats.
#include <algorithm>

#include "simulator/runtime/service/SimulatedService.h"
#include "simulator/runtime/world/ChatProperties.h"

namespace simulator {

// Three questions whatever the number of chats, their answers in the same order.
std::vector<ChatRecord> SimulatedService::Chats(std::string_view account) {
  std::vector<ChatRecord> chats;
  {
    auto rows = m_database.Ask(
        "SELECT number, type, partner, topic, created, active, gone, bookmarked FROM chats"
        " WHERE account = ? ORDER BY number",
        {account});
    while (rows.Next()) {
      ChatRecord chat;
      chat.number = rows.Number(0);
      chat.type = static_cast<int>(rows.Number(1));
      chat.partner = rows.Text(2);
      chat.topic = rows.Text(3);
      chat.created = rows.Number(4);
      chat.active = rows.Number(5);
      chat.left = rows.Number(6) != 0;
      chat.bookmarked = rows.Number(7) != 0;
      chats.push_back(std::move(chat));
    }
  }
  // Null for a chat that somebody else has made meanwhile.
  const auto recordOf = [&](std::int64_t number) -> ChatRecord* {
    const auto found =
        std::lower_bound(chats.begin(), chats.end(), number,
                         [](const ChatRecord& chat, std::int64_t wanted) { return chat.number < wanted; });
    return found == chats.end() || found->number != number ? nullptr : &*found;
  };
  auto people = m_database.Ask(
      "SELECT chat, identity, member, posted FROM chats JOIN chat_people ON chat = number"
      " WHERE account = ?",
      {account});
  while (people.Next()) {
    if (ChatRecord* chat = recordOf(people.Number(0))) {
      chat->people.push_back({people.Text(1), people.Number(2) != 0, people.Number(3) != 0});
    }
  }
  auto unread = m_database.Ask(
      "SELECT chat, count(*) FROM chats JOIN messages ON chat = chats.number AND status = ?2"
      " WHERE account = ?1 GROUP BY chat",
      {account, std::int64_t{message::kUnread}});
  while (unread.Next()) {
    if (ChatRecord* chat = recordOf(unread.Number(0))) chat->unread = static_cast<int>(unread.Number(1));
  }
  return chats;
}

std::int64_t SimulatedService::AddChat(std::string_view account, const ChatRecord& chat) {
  Database::Transaction transaction(m_database);
  m_database.Run(
      "INSERT INTO chats (account, type, partner, topic, created, active, gone, bookmarked)"
      " VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
      {account, std::int64_t{chat.type}, std::string_view(chat.partner), std::string_view(chat.topic),
       chat.created, chat.active, std::int64_t{chat.left}, std::int64_t{chat.bookmarked}});
  const std::int64_t number = LastNumber();
  for (const ChatPerson& person : chat.people) ChangeChatPerson(number, person);
  transaction.Commit();
  return number;
}

void SimulatedService::ChangeChat(const ChatRecord& chat) {
  m_database.Run("UPDATE chats SET topic = ?2, active = ?3, gone = ?4, bookmarked = ?5 WHERE number = ?1",
                 {chat.number, std::string_view(chat.topic), chat.active, std::int64_t{chat.left},
                  std::int64_t{chat.bookmarked}});
}

void SimulatedService::ChangeChatPerson(std::int64_t chat, const ChatPerson& person) {
  m_database.Run(
      "INSERT INTO chat_people VALUES (?1, ?2, ?3, ?4)"
      " ON CONFLICT DO UPDATE SET member = ?3, posted = ?4",
      {chat, std::string_view(person.identity), std::int64_t{person.member}, std::int64_t{person.posted}});
}

void SimulatedService::DeleteChat(std::int64_t chat) {
  m_database.Run("DELETE FROM chats WHERE number = ?", {chat});
}

std::vector<MessageRecord> SimulatedService::Messages(std::int64_t chat, std::size_t most) {
  std::vector<MessageRecord> messages;
  auto rows = m_database.Ask(
      "SELECT number, type, author, at, body, status, contacts FROM messages WHERE chat = ?"
      " ORDER BY number DESC LIMIT ?",
      {chat, static_cast<std::int64_t>(most)});
  while (rows.Next()) {
    messages.push_back({rows.Number(0), static_cast<int>(rows.Number(1)), rows.Text(2), rows.Number(3),
                        rows.Text(4), static_cast<int>(rows.Number(5)), rows.Text(6)});
  }
  std::reverse(messages.begin(), messages.end());
  return messages;
}

std::int64_t SimulatedService::AddMessage(std::int64_t chat, const MessageRecord& message) {
  m_database.Run(
      "INSERT INTO messages (chat, type, author, at, body, status, contacts) VALUES (?, ?, ?, ?, ?, ?, ?)",
      {chat, std::int64_t{message.type}, std::string_view(message.author), message.at,
       std::string_view(message.body), std::int64_t{message.status}, std::string_view(message.contacts)});
  return LastNumber();
}

void SimulatedService::ChangeMessageStatus(std::int64_t message, int status) {
  m_database.Run("UPDATE messages SET status = ?2 WHERE number = ?1", {message, std::int64_t{status}});
}

void SimulatedService::ChangeMessageBody(std::int64_t message, std::string_view body) {
  m_database.Run("UPDATE messages SET body = ?2 WHERE number = ?1", {message, body});
}

void SimulatedService::DeleteMessages(std::int64_t chat) {
  m_database.Run("DELETE FROM messages WHERE chat = ?", {chat});
}

}  // namespace simulator
