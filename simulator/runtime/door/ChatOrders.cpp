// Orders about chats: what others say, and chats of any number and length.
#include <limits>

#include "simulator/runtime/door/OrderArguments.h"
#include "simulator/runtime/door/OrderTable.h"
#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/world/ChatProperties.h"

namespace simulator {
namespace orders {
namespace {

using nlohmann::json;

// What the world holds with room for everything else.
constexpr int kMostChats = 20000;
constexpr int kMostMessages = static_cast<int>(kMostRecentMessages);

std::vector<std::string> IdentitiesIn(const std::string& list) {
  std::vector<std::string> identities;
  for (const auto piece : SplitList(list)) identities.push_back(Unescape(piece));
  return identities;
}

Object& Found(Object* chat, const std::string& name) {
  if (chat == nullptr) Refuse("nobody is signed in, or there is no chat " + name);
  return *chat;
}

// The chat of that key, or the dialog with somebody.
Object& ChatOf(Session& session, const json& order, const char* partner) {
  if (order.contains("chat")) {
    const std::string name = TextOf(order, "chat");
    return Found(session.chats.Find(name), name);
  }
  const std::string identity = TextOf(order, partner);
  return Found(session.chats.OpenTo(identity), "with " + identity);
}

void Describe(const Object& chat, json& answer) {
  answer["chat"] = chat.GetText(chat::kName);
  answer["object"] = chat.id;
  answer["title"] = chat.GetText(chat::kTitle);
  answer["unread"] = chat.GetInt(chat::kUnread);
}

}  // namespace

void OpenChat(Controls& controls, const json& order, json& answer) {
  Session& session = SessionOf(controls);
  const std::vector<std::string> people = IdentitiesIn(TextOf(order, "with"));
  const bool shared = people.size() > 1 || order.contains("topic");
  if (people.empty()) Refuse("a chat is with somebody");
  Object& chat =
      Found(shared ? session.chats.Create() : session.chats.OpenTo(people.front()), "with " + people.front());
  if (shared && !session.chats.AddMembers(chat.id, people)) Refuse("there is nobody in it");
  if (order.contains("topic")) session.chats.SetTopic(chat.id, TextOf(order, "topic"));
  if (order.contains("text")) {
    answer["message"] = session.chats.Receive(chat.id, people.front(), TextOf(order, "text"));
  }
  Describe(chat, answer);
}

void Say(Controls& controls, const json& order, json& answer) {
  Session& session = SessionOf(controls);
  Object& chat = ChatOf(session, order, "from");
  const unsigned message = session.chats.Receive(chat.id, TextOf(order, "from"), TextOf(order, "text"));
  if (message == 0) Refuse("that is nobody who can speak there");
  answer["message"] = message;
  Describe(chat, answer);
}

void InventChats(Controls& controls, const json& order, json&) {
  const int count = NumberOf(order, "count", 1, kMostChats);
  const int seed = NumberOf(order, "seed", 1, std::numeric_limits<int>::max(), 1);
  if (!SessionOf(controls).chats.InventChats(count, static_cast<std::uint32_t>(seed))) {
    Refuse("nobody is signed in, or there are too many objects");
  }
}

void InventMessages(Controls& controls, const json& order, json& answer) {
  Session& session = SessionOf(controls);
  const Object& chat = ChatOf(session, order, "with");
  if (!session.chats.InventMessages(chat.id, NumberOf(order, "count", 1, kMostMessages))) {
    Refuse("there is nobody in it");
  }
  Describe(chat, answer);
}

}  // namespace orders
}  // namespace simulator
