// Orders about what has been: voicemails, calls that are over, what is deleted at another place, and when
// searches find it.
#include <ctime>

#include "simulator/runtime/door/OrderArguments.h"
#include "simulator/runtime/door/OrderTable.h"
#include "simulator/runtime/protocol/Message.h"

namespace simulator {
namespace orders {
namespace {

using nlohmann::json;

constexpr int kMostHistory = 20000;  // what the world holds with room for everything else
constexpr int kVoicemailEvery = 10;
constexpr int kUsualVoicemail = 5;  // seconds

}  // namespace

void LeaveVoicemail(Controls& controls, const json& order, json& answer) {
  const int seconds = NumberOf(order, "seconds", 1, kLongestVoicemail, kUsualVoicemail);
  const Object* voicemail = SessionOf(controls).voicemails.Come(TextOf(order, "from"), seconds);
  if (voicemail == nullptr) Refuse("nobody is signed in, or that is nobody");
  answer["object"] = voicemail->id;
}

void InventHistory(Controls& controls, const json& order, json& answer) {
  Session& session = SessionOf(controls);
  const int count = NumberOf(order, "count", 1, kMostHistory);
  const int voicemails = count / kVoicemailEvery;
  const std::int64_t now = std::time(nullptr) + session.surroundings.clockDifference;
  if (!session.pastCalls.Invent(count - voicemails, now) || !session.voicemails.Invent(voicemails)) {
    Refuse("nobody is signed in, or there are too many objects");
  }
  answer["calls"] = count - voicemails;
  answer["voicemails"] = voicemails;
}

void DeleteElsewhere(Controls& controls, const json& order, json&) {
  Session& session = SessionOf(controls);
  const std::string name = TextOf(order, "object");
  const Object* chat = session.chats.Find(name);
  const unsigned id = chat != nullptr ? chat->id : ToUnsigned(name);
  if (!session.chats.Delete(id) && !session.pastCalls.Delete(id) && !session.voicemails.Delete(id)) {
    Refuse("there is no chat, past call or voicemail " + name);
  }
}

void HoldSearches(Controls& controls, const json& order, json&) {
  SessionOf(controls).searches.Hold(order.value("on", true));
}

}  // namespace orders
}  // namespace simulator
