// Orders about contacts: what other people do, and lists of any length.
#include <limits>

#include "simulator/runtime/door/OrderArguments.h"
#include "simulator/runtime/door/OrderTable.h"
#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/Pictures.h"
#include "simulator/runtime/world/ContactProperties.h"

namespace simulator {
namespace orders {
namespace {

using nlohmann::json;

constexpr int kMostInvented = 50000;  // what the world holds with room for everything else

struct AvailabilityName {
  const char* name;
  int availability;
};

struct TextArgument {
  const char* key;
  int property;  // of the other side's account
};

// clang-format off
constexpr AvailabilityName kAvailabilities[] = {
    {"online",  contact::kOnline},
    {"away",    contact::kAway},
    {"busy",    contact::kBusy},
    {"offline", contact::kOffline},
};

constexpr TextArgument kTexts[] = {
    {"name", account::kFullName},
    {"mood", account::kMood},
};
// clang-format on

Object& ContactOf(Session& session, const json& order, const char* key) {
  const std::string identity = TextOf(order, key);
  Object* contact = session.contacts.Find(identity);
  if (contact == nullptr) Refuse("\"" + identity + "\" is neither an account's name nor a phone number");
  return *contact;
}

int AvailabilityOf(const json& order) {
  if (order["availability"].is_number()) return NumberOf(order, "availability", 1, 18);
  return Choose(kAvailabilities, TextOf(order, "availability")).availability;
}

}  // namespace

void ChangeContact(Controls& controls, const json& order, json& answer) {
  Session& session = SessionOf(controls);
  Object& contact = ContactOf(session, order, "identity");
  Service::Properties values;
  for (const TextArgument& row : kTexts) {
    if (order.contains(row.key)) values[row.property] = {TextOf(order, row.key)};
  }
  if (order.contains("picture")) {
    // The word decides what the picture looks like.
    const std::string word = TextOf(order, "picture");
    values[account::kPicture] = word.empty() ? Value{} : Value{EscapeBinary(PictureOf(word)), true};
  }
  if (!values.empty()) {
    if (!session.service.StoreProfile(Contacts::IdentityOf(contact), values))
      Refuse("there is no such account");
    session.contacts.RefreshProfile(contact);
  }
  if (order.contains("availability")) session.contacts.SetPresence(contact, AvailabilityOf(order));
  answer["object"] = contact.id;
}

void ChangePresence(Controls& controls, const json& order, json&) {
  SessionOf(controls).presence.Every(NumberOf(order, "milliseconds", 0, std::numeric_limits<int>::max()));
}

void InventContacts(Controls& controls, const json& order, json& answer) {
  Session& session = SessionOf(controls);
  const bool signedIn = !session.signIn.Name().empty();
  const std::string account = TextOf(order, "account", signedIn ? session.signIn.Name() : "demo");
  const int count = NumberOf(order, "count", 1, kMostInvented);
  const int seed = NumberOf(order, "seed", 1, std::numeric_limits<int>::max(), 1);
  if (!session.world.HasRoomFor(count)) Refuse("there are too many contacts already");
  if (!session.service.Exists(account)) Refuse("there is no account " + account);
  const std::vector<std::string> invented =
      session.service.AddInventedContacts(account, count, static_cast<unsigned>(seed));
  answer["added"] = invented.size();
  if (account == session.signIn.Name()) session.contacts.TakeIn(invented);
}

void RequestAuthorization(Controls& controls, const json& order, json& answer) {
  Session& session = SessionOf(controls);
  Object& contact = ContactOf(session, order, "from");
  if (session.signIn.Name().empty()) Refuse("nobody is signed in");
  if (!session.contacts.Request(contact)) Refuse("the contact is authorized or blocked already");
  answer["object"] = contact.id;
}

void AnswerAuthorization(Controls& controls, const json& order, json& answer) {
  Session& session = SessionOf(controls);
  Object& contact = ContactOf(session, order, "from");
  if (session.signIn.Name().empty()) Refuse("nobody is signed in");
  const std::string word = TextOf(order, "answer");
  if (word != "yes" && word != "no") Refuse("the answer is yes or no");
  session.contacts.Answer(contact, word == "yes");
  answer["object"] = contact.id;
  answer["asked"] = contact.GetText(contact::kAsked);
}

}  // namespace orders
}  // namespace simulator
