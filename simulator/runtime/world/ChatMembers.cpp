// Who takes part in chats, what they are about, and their end.
#include <algorithm>

#include "apiwrapper/tables/Classes.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/ChatProperties.h"
#include "simulator/runtime/world/Chats.h"

namespace simulator {
namespace {

constexpr int kInventedMessages = 3;  // of each invented chat
constexpr int kSharedEvery = 10;      // of the invented chats one in so many has several persons

ChatPerson* PersonIn(ChatRecord& record, std::string_view identity) {
  for (ChatPerson& person : record.people) {
    if (person.identity == identity) return &person;
  }
  return nullptr;
}

}  // namespace

// Whether the account can change what all its members share.
bool Chats::IsSharable(const Chat* chat) const {
  return chat != nullptr && chat->record.type == chat::kMultiPerson && !chat->record.left;
}

std::vector<unsigned> Chats::Members(unsigned id) {
  std::vector<unsigned> ids;
  Chat* chat = Of(id);
  if (chat == nullptr) return ids;
  for (const ChatPerson& person : chat->record.people) {
    if (!person.member) continue;
    unsigned& known = chat->members[person.identity];
    if (known == 0 && !m_world.IsFull()) {
      Object& object = m_world.Create(CHATMEMBER_CLASS);
      known = object.id;
      const bool creator = &person == &chat->record.people.front();
      m_world.Put(object, chatmember::kChat, m_world.Find(id)->GetText(chat::kName));
      m_world.Put(object, chatmember::kIdentity, person.identity);
      m_world.PutInt(object, chatmember::kRole, creator ? chatmember::kCreator : chatmember::kUser);
      m_world.PutInt(object, chatmember::kActive, 1);
      m_world.PutInt(object, chatmember::kActivity, chatmember::kQuiet);
    }
    if (known != 0) ids.push_back(known);
  }
  return ids;
}

bool Chats::AddMembers(unsigned id, const std::vector<std::string>& identities) {
  Chat* chat = Of(id);
  if (!IsSharable(chat)) return false;
  MessageRecord record;
  for (const std::string& identity : identities) {
    const NormalizedIdentity who = NormalizeIdentity(identity, false);
    const bool person =
        who.verdict == NameVerdict::Good && TypeOfIdentity(who.identity) == IdentityType::Account;
    ChatPerson* known = PersonIn(chat->record, who.identity);
    if (!person || (known != nullptr && known->member)) continue;
    if (known == nullptr) {
      if (chat->record.people.size() >= kMostChatMembers) break;
      known = &chat->record.people.emplace_back();
      known->identity = who.identity;
    }
    known->member = true;
    m_service.ChangeChatPerson(chat->record.number, *known);
    record.body += (record.body.empty() ? "" : " ") + who.identity;
  }
  if (record.body.empty()) return false;
  record.type = message::kMembersAdded;
  record.author = m_account;
  record.status = message::kSent;
  Add(id, *chat, std::move(record), message::kSent);
  Show(id, *chat, true);
  return true;
}

bool Chats::RemoveMember(unsigned id, const std::string& identity) {
  Chat* chat = Of(id);
  const std::string who = NormalizeIdentity(identity, false).identity;
  ChatPerson* person = IsSharable(chat) ? PersonIn(chat->record, who) : nullptr;
  if (person == nullptr || !person->member) return false;
  person->member = false;
  m_service.ChangeChatPerson(chat->record.number, *person);
  const auto known = chat->members.find(who);
  if (known != chat->members.end()) {
    m_world.Delete(known->second);
    chat->members.erase(known);
  }
  MessageRecord record;
  record.type = message::kMemberLeft;
  record.author = who;
  record.status = message::kSent;
  Add(id, *chat, std::move(record), message::kSent);
  Show(id, *chat, true);
  return true;
}

bool Chats::Leave(unsigned id) {
  if (!RemoveMember(id, m_account)) return false;
  Chat& chat = m_chats[id];
  chat.record.left = true;
  m_service.ChangeChat(chat.record);
  Show(id, chat, true);
  return true;
}

bool Chats::SetTopic(unsigned id, const std::string& topic) {
  Chat* chat = Of(id);
  if (!IsSharable(chat) || topic.size() > kLongestMessage) return false;
  chat->record.topic = topic;
  MessageRecord record;
  record.type = message::kTopicSet;
  record.author = m_account;
  record.body = topic;
  record.status = message::kSent;
  if (Add(id, *chat, std::move(record), message::kSent) == 0) return false;
  Show(id, *chat, true);
  return true;
}

bool Chats::SetBookmark(unsigned id, bool bookmarked) {
  Chat* chat = Of(id);
  if (chat == nullptr) return false;
  chat->record.bookmarked = bookmarked;
  m_service.ChangeChat(chat->record);
  Show(id, *chat, true);
  return true;
}

bool Chats::Delete(unsigned id) {
  Chat* chat = Of(id);
  if (chat == nullptr) return false;
  m_service.DeleteChat(chat->record.number);
  RemoveMessages(*chat);
  for (const auto& [identity, member] : chat->members) m_world.Remove(member);
  m_byName.erase(m_world.Find(id)->GetText(chat::kName));
  if (chat->record.type == chat::kDialog) m_dialogs.erase(chat->record.partner);
  m_chats.erase(id);
  m_world.Delete(id);
  return true;
}

bool Chats::InventChats(int count, std::uint32_t seed) {
  if (!IsReady() || !m_world.HasRoomFor(count)) return false;
  const std::vector<std::string> friends = m_contacts.Acquaintances();
  std::vector<ChatRecord> records;
  m_service.Together([&] {
    for (int i = 0; i < count; ++i) {
      const std::string& other = friends[(seed + static_cast<std::uint32_t>(i)) % friends.size()];
      const std::string pal = "pal." + std::to_string(seed) + "." + std::to_string(i + 1);
      ChatRecord record;
      const bool shared = i % kSharedEvery == kSharedEvery - 1;
      record.type = shared ? chat::kMultiPerson : chat::kDialog;
      record.people = {{m_account}, {pal, true, true}};
      if (shared) {
        record.topic = "Topic " + std::to_string(i + 1);
        record.people.push_back({other});
      } else if (m_dialogs.count(pal) != 0) {
        continue;
      } else {
        record.partner = pal;
      }
      record.created = record.active = Now() - 60 * (i + 1);
      record.unread = i % 2;
      record.number = m_service.AddChat(m_account, record);
      for (int number = 1; number <= kInventedMessages; ++number) {
        const bool unread = record.unread != 0 && number == kInventedMessages;
        m_service.AddMessage(
            record.number,
            {0, message::kText, pal, record.active - kInventedMessages + number,
             "Message " + std::to_string(number), unread ? message::kUnread : message::kRead, std::string()});
      }
      records.push_back(std::move(record));
    }
  });
  for (ChatRecord& record : records) Insert(std::move(record));
  return true;
}

}  // namespace simulator
