// What is said in chats.
#include <algorithm>

#include "apiwrapper/tables/Classes.h"
#include "apiwrapper/tables/Events.h"
#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/ChatProperties.h"
#include "simulator/runtime/world/Chats.h"
#include "simulator/runtime/world/MagicNames.h"

namespace simulator {
namespace {

constexpr int kSentMilliseconds = 50;
constexpr int kAnswerMilliseconds = 1000;
constexpr std::string_view kEmotePrefix = "/me ";
constexpr int kUnreadPart = 10;  // of invented messages one in so many is new

bool IsNews(int type) { return type == message::kText || type == message::kEmote; }

}  // namespace

Chats::Message* Chats::MessageOf(unsigned id) {
  if (!IsReady()) return nullptr;
  const auto found = m_messages.find(id);
  return found == m_messages.end() ? nullptr : &found->second;
}

Object& Chats::NewMessage(unsigned id, Chat& of, const MessageRecord& record, int shownStatus) {
  Object& object = m_world.Create(CHATMESSAGE_CLASS);
  m_messages[object.id] = {id, record.number, record.contacts};
  of.messages[record.number] = object.id;
  m_world.Put(object, message::kChat, m_world.Find(id)->GetText(chat::kName));
  m_world.PutInt(object, message::kAt, record.at);
  m_world.Put(object, message::kAuthor, record.author);
  m_world.Put(object, message::kAuthorName, m_contacts.NameOf(record.author));
  m_world.PutInt(object, message::kType, record.type);
  m_world.Put(object, message::kBody, record.body);
  m_world.PutInt(object, message::kStatus, shownStatus);
  return object;
}

unsigned Chats::Add(unsigned id, Chat& to, MessageRecord record, int shownStatus) {
  if (m_world.IsFull()) return 0;
  record.at = Now();
  to.record.active = record.at;
  to.record.unread += record.status == message::kUnread;
  const auto author =
      std::find_if(to.record.people.begin(), to.record.people.end(),
                   [&](const ChatPerson& person) { return person.identity == record.author; });
  m_service.Together([&] {
    record.number = m_service.AddMessage(to.record.number, record);
    m_service.ChangeChat(to.record);
    if (author == to.record.people.end() || author->posted || !IsNews(record.type)) return;
    author->posted = true;
    m_service.ChangeChatPerson(to.record.number, *author);
  });
  return NewMessage(id, to, record, shownStatus).id;
}

void Chats::Announce(unsigned chat, unsigned id) {
  std::string pairs;
  PairWriter(pairs).Number(ZEKey::Chat, chat);
  m_world.Event(*m_world.Find(id), ZEEventNumber::ChatMessage, pairs);
}

unsigned Chats::Say(unsigned id, const std::string& text) {
  Chat* chat = Of(id);
  if (chat == nullptr || chat->record.left || text.empty() || text.size() > kLongestMessage) return 0;
  MessageRecord record;
  const bool emote = text.rfind(kEmotePrefix, 0) == 0;
  record.type = emote ? message::kEmote : message::kText;
  record.author = m_account;
  record.body = emote ? text.substr(kEmotePrefix.size()) : text;
  record.status = message::kSent;
  const unsigned said = Add(id, *chat, std::move(record), message::kSending);
  if (said == 0) return 0;
  Show(id, *chat, true);
  m_scheduler.After(kSentMilliseconds, [this, said] {
    if (Object* object = m_world.Find(said)) m_world.SetInt(*object, message::kStatus, message::kSent);
  });
  PlanAnswer(id, *chat, text);
  return said;
}

// Of several persons the first one who has something to say speaks for all.
void Chats::PlanAnswer(unsigned id, const Chat& in, const std::string& text) {
  for (const ChatPerson& person : in.record.people) {
    if (!person.member || person.identity == m_account) continue;
    const ChatAnswer answer = ChatAnswerOf(person.identity, m_contacts.Find(person.identity), text);
    if (answer.times == 0) continue;
    m_scheduler.After(kAnswerMilliseconds, [this, id, who = person.identity, answer] {
      for (int i = 0; i < answer.times; ++i) Receive(id, who, answer.text);
    });
    return;
  }
}

unsigned Chats::Receive(unsigned id, std::string_view author, const std::string& text) {
  Chat* chat = Of(id);
  const NormalizedIdentity who = NormalizeIdentity(author, false);
  if (chat == nullptr || chat->record.left || who.verdict != NameVerdict::Good || who.identity == m_account) {
    return 0;
  }
  const auto isAuthor = [&](const ChatPerson& person) { return person.identity == who.identity; };
  auto& people = chat->record.people;
  const bool known = std::any_of(people.begin(), people.end(), isAuthor);
  if (!known && (chat->record.type == chat::kDialog || !AddMembers(id, {who.identity}))) return 0;
  const bool first = chat->messages.empty() && chat->record.unread == 0;
  MessageRecord record;
  record.type = message::kText;
  record.author = who.identity;
  record.body = text.substr(0, kLongestMessage);
  record.status = message::kUnread;
  const unsigned received = Add(id, *chat, std::move(record), message::kUnread);
  if (received == 0) return 0;
  // Somebody who begins to talk: the engine may not want to, and sees it when the chat comes about.
  if (first) m_world.PutInt(*m_world.Find(id), chat::kMyStatus, chat::kConnecting);
  Announce(id, received);
  Show(id, *chat, true);
  return received;
}

unsigned Chats::PostContacts(unsigned id, const std::vector<unsigned>& contacts) {
  Chat* chat = Of(id);
  MessageRecord record;
  for (const unsigned contact : contacts) {
    const Object* object = m_world.Find(contact);
    if (object == nullptr || object->type != &CONTACT_CLASS) continue;
    record.contacts += (record.contacts.empty() ? "" : " ") + Contacts::IdentityOf(*object);
  }
  if (chat == nullptr || chat->record.left || record.contacts.empty()) return 0;
  record.type = message::kContacts;
  record.author = m_account;
  record.status = message::kSent;
  const unsigned posted = Add(id, *chat, std::move(record), message::kSent);
  if (posted != 0) Show(id, *chat, true);
  return posted;
}

std::vector<unsigned> Chats::ContactsOf(unsigned id) {
  std::vector<unsigned> contacts;
  const Message* message = MessageOf(id);
  std::string_view rest = message == nullptr ? std::string_view() : std::string_view(message->contacts);
  while (!rest.empty()) {
    const auto end = std::min(rest.find(' '), rest.size());
    if (const Object* contact = m_contacts.Find(rest.substr(0, end))) contacts.push_back(contact->id);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return contacts;
}

bool Chats::MarkRead(unsigned id) {
  const Message* message = MessageOf(id);
  if (message == nullptr) return false;
  Object& object = *m_world.Find(id);
  if (object.GetInt(message::kStatus) != message::kUnread) return true;
  const unsigned in = message->chat;
  m_service.ChangeMessageStatus(message->number, message::kRead);
  ChatRecord& record = m_chats[in].record;
  const int unread = record.unread = std::max(0, record.unread - 1);
  m_world.SetInt(object, message::kStatus, message::kRead);
  // An order that is carried out at the frame just sent may have taken the chat away.
  if (Object* chat = m_world.Find(in)) m_world.SetInt(*chat, chat::kUnread, unread);
  return true;
}

bool Chats::IsEditable(unsigned id) {
  if (MessageOf(id) == nullptr) return false;
  const Object& object = *m_world.Find(id);
  return object.GetText(message::kAuthor) == m_account && IsNews(object.GetInt(message::kType));
}

bool Chats::Edit(unsigned id, const std::string& text) {
  if (!IsEditable(id) || text.size() > kLongestMessage) return false;
  m_service.ChangeMessageBody(MessageOf(id)->number, text);
  m_world.Set(*m_world.Find(id), message::kBody, text);
  return true;
}

bool Chats::ClearMessages(unsigned id) {
  Chat* chat = Of(id);
  if (chat == nullptr) return false;
  m_service.DeleteMessages(chat->record.number);
  RemoveMessages(*chat);
  chat->record.unread = 0;
  Show(id, *chat, true);
  return true;
}

void Chats::ClearAllMessages() {
  m_service.Together([this] {
    for (const unsigned chat : All()) ClearMessages(chat);
  });
}

bool Chats::InventMessages(unsigned id, int count) {
  Chat* chat = Of(id);
  if (chat == nullptr || chat->record.people.size() < 2) return false;
  const std::int64_t now = Now();
  m_service.Together([&] {
    for (int i = 0; i < count; ++i) {
      ChatPerson& author = chat->record.people[static_cast<std::size_t>(i) % chat->record.people.size()];
      const bool own = author.identity == m_account;
      const bool unread = !own && i >= count - count / kUnreadPart;
      MessageRecord record;
      record.type = message::kText;
      record.author = author.identity;
      record.at = now - count + i;
      record.body = "Message " + std::to_string(i + 1);
      record.status = own ? message::kSent : unread ? message::kUnread : message::kRead;
      m_service.AddMessage(chat->record.number, record);
      chat->record.unread += unread;
      if (!author.posted) {
        author.posted = true;
        m_service.ChangeChatPerson(chat->record.number, author);
      }
    }
    chat->record.active = std::max(chat->record.active, now - 1);
    m_service.ChangeChat(chat->record);
  });
  chat->loaded = false;
  Show(id, *chat, false);
  return true;
}

}  // namespace simulator
