#include "simulator/runtime/world/Chats.h"

#include <ctime>

#include "apiwrapper/tables/Classes.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/ChatProperties.h"
#include "simulator/runtime/world/ObjectLists.h"

namespace simulator {
namespace {

// A key as people never choose one.
std::string KeyOf(std::int64_t number) { return "chat." + std::to_string(number); }

}  // namespace

Chats::Chats(World& world, Contacts& contacts, Service& service, Scheduler& scheduler, const SignIn& signIn,
             std::int64_t clockDifference)
    : m_world(world),
      m_contacts(contacts),
      m_service(service),
      m_scheduler(scheduler),
      m_signIn(signIn),
      m_clockDifference(clockDifference) {}

std::int64_t Chats::Now() const { return std::time(nullptr) + m_clockDifference; }

// From the service, and back.

bool Chats::IsReady() {
  const std::string& account = m_signIn.Name();
  if (account.empty()) return false;
  if (account == m_account) return true;
  Forget();
  for (ChatRecord& record : m_service.Chats(account)) Insert(std::move(record));
  m_account = account;
  return true;
}

void Chats::Forget() {
  m_account.clear();
  for (auto& [id, chat] : m_chats) {
    RemoveMessages(chat);
    for (const auto& [identity, member] : chat.members) m_world.Remove(member);
    m_world.Remove(id);
  }
  m_chats.clear();
  m_byName.clear();
  m_dialogs.clear();
}

void Chats::RemoveMessages(Chat& chat) {
  for (const auto& [number, id] : chat.messages) {
    m_messages.erase(id);
    m_world.Remove(id);
  }
  chat.messages.clear();
}

Object& Chats::Insert(ChatRecord record) {
  Object& object = m_world.Create(CHAT_CLASS);
  Chat& chat = m_chats[object.id];
  chat.record = std::move(record);
  const std::string key = KeyOf(chat.record.number);
  m_byName[key] = object.id;
  if (chat.record.type == chat::kDialog) m_dialogs[chat.record.partner] = object.id;
  m_world.Put(object, chat::kName, key);
  m_world.PutInt(object, chat::kType, chat.record.type);
  m_world.PutInt(object, chat::kCreated, chat.record.created);
  m_world.Put(object, chat::kPartner, chat.record.partner);
  Show(object.id, chat, false);
  return object;
}

Object* Chats::Make(ChatRecord record) {
  if (m_world.IsFull()) return nullptr;
  record.created = record.active = Now();
  record.people.insert(record.people.begin(), {m_account});
  record.number = m_service.AddChat(m_account, record);
  return &Insert(std::move(record));
}

void Chats::Load(unsigned id, Chat& chat) {
  if (chat.loaded) return;
  for (const MessageRecord& record : m_service.Messages(chat.record.number, kMostRecentMessages)) {
    if (m_world.IsFull()) return;
    if (chat.messages.count(record.number) == 0) NewMessage(id, chat, record, record.status);
  }
  chat.loaded = true;
}

// Finding and making.

Chats::Chat* Chats::Of(unsigned id) {
  if (!IsReady()) return nullptr;
  const auto found = m_chats.find(id);
  return found == m_chats.end() ? nullptr : &found->second;
}

Object* Chats::Find(std::string_view name) {
  if (!IsReady()) return nullptr;
  const auto found = m_byName.find(name);
  return found == m_byName.end() ? nullptr : m_world.Find(found->second);
}

Object* Chats::OpenTo(std::string_view identity) {
  const NormalizedIdentity partner = NormalizeIdentity(identity, false);
  if (!IsReady() || partner.verdict != NameVerdict::Good || partner.identity == m_account ||
      TypeOfIdentity(partner.identity) != IdentityType::Account) {
    return nullptr;
  }
  const auto found = m_dialogs.find(partner.identity);
  if (found != m_dialogs.end()) return m_world.Find(found->second);
  ChatRecord record;
  record.type = chat::kDialog;
  record.partner = partner.identity;
  record.people.push_back({partner.identity});
  return Make(std::move(record));
}

Object* Chats::Create() {
  if (!IsReady()) return nullptr;
  ChatRecord record;
  record.type = chat::kMultiPerson;
  return Make(std::move(record));
}

std::vector<unsigned> Chats::All() {
  if (!IsReady()) return {};
  return NewestFirst(m_chats, [](const Chat& chat) { return chat.record.active; });
}

std::vector<unsigned> Chats::Unread() {
  return Only(All(), [this](unsigned id) { return m_chats[id].record.unread != 0; });
}

std::vector<unsigned> Chats::Bookmarked() {
  return Only(All(), [this](unsigned id) { return m_chats[id].record.bookmarked; });
}

bool Chats::Recent(unsigned id, std::vector<unsigned>& messages) {
  Chat* chat = Of(id);
  if (chat == nullptr) return false;
  Load(id, *chat);
  for (const auto& [number, message] : chat->messages) messages.push_back(message);
  return true;
}

// What a chat looks like.

std::string Chats::TitleOf(const Chat& chat) {
  if (chat.record.type == chat::kDialog) return m_contacts.NameOf(chat.record.partner);
  if (!chat.record.topic.empty()) return chat.record.topic;
  std::string names;
  for (const ChatPerson& person : chat.record.people) {
    if (!person.member || person.identity == m_signIn.Name()) continue;
    names += (names.empty() ? "" : ", ") + m_contacts.NameOf(person.identity);
  }
  return names;
}

void Chats::Show(unsigned id, const Chat& chat, bool tell) {
  std::string posters;
  std::string members;
  int count = 0;
  for (const ChatPerson& person : chat.record.people) {
    if (person.posted) posters += (posters.empty() ? "" : " ") + person.identity;
    count += person.member;
    if (!person.member || person.identity == m_signIn.Name()) continue;
    members += (members.empty() ? "" : ", ") + m_contacts.NameOf(person.identity);
  }
  const std::pair<int, std::string> values[] = {
      {chat::kTitle, TitleOf(chat)},
      {chat::kPosters, std::move(posters)},
      {chat::kMembers, std::move(members)},
      {chat::kMemberCount, std::to_string(count)},
      {chat::kTopic, chat.record.topic},
      {chat::kUnread, std::to_string(chat.record.unread)},
      {chat::kBookmarked, std::to_string(int{chat.record.bookmarked})},
      {chat::kActive, std::to_string(chat.record.active)},
      {chat::kMyStatus, std::to_string(chat.record.left ? int{chat::kLeft} : int{chat::kTakingPart})},
  };
  Object& object = *m_world.Find(id);
  for (const auto& [property, value] : values) {
    if (tell) {
      m_world.Set(object, property, value);
    } else {
      m_world.Put(object, property, value);
    }
  }
}

}  // namespace simulator
