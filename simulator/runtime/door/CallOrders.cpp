// Orders about calls: what the far end does.
#include <algorithm>

#include "simulator/runtime/door/OrderArguments.h"
#include "simulator/runtime/door/OrderTable.h"
#include "simulator/runtime/protocol/Message.h"

namespace simulator {
namespace orders {
namespace {

using nlohmann::json;

constexpr int kDropped = 9403;

struct Act {
  const char* name;
  bool (CallCourse::*act)(int);
  const char* argument;  // key of its value; empty for none
  int value;             // without the argument
};

// clang-format off
constexpr Act kActs[] = {
    {"answer",       &CallCourse::Answer,      "",       0},
    {"refuse",       &CallCourse::Finish,      "",       member::kRefused},
    {"busy",         &CallCourse::Finish,      "",       member::kBusy},
    {"hangup",       &CallCourse::HangUp,      "",       0},
    {"hold",         &CallCourse::HoldThere,   "",       1},
    {"resume",       &CallCourse::HoldThere,   "",       0},
    {"video",        &CallCourse::ShowVideo,   "on",     1},
    {"refuse-video", &CallCourse::RefuseVideo, "on",     1},
    {"drop",         &CallCourse::Fail,        "number", kDropped},
};
// clang-format on

// The call with that id, or the last that has begun and is not over.
CallCourse& CourseOf(Controls& controls, const json& order) {
  Session& session = SessionOf(controls);
  CallCourse* course = order.contains("call") ? session.calls.Find(ToUnsigned(TextOf(order, "call")))
                                              : session.calls.Current();
  if (course == nullptr) Refuse("no such call");
  return *course;
}

void Describe(const CallCourse& course, json& answer) {
  answer["call"] = course.Id();
  json& members = answer["members"] = json::array();
  for (const auto& member : course.Members()) {
    json& row = members.emplace_back();
    row["identity"] = member->Identity();
    row["object"] = member->Id();
    row["status"] = member->Status();
    if (member->Sent() == nullptr) continue;
    row["send"] = {{"object", member->Sent()->Id()}, {"status", member->Sent()->Status()}};
    row["receive"] = {{"object", member->Received()->Id()}, {"status", member->Received()->Status()}};
  }
}

// "0", "off" and false are no.
int NumberOf(const json& order, const char* key, int otherwise) {
  const auto value = order.find(key);
  if (value == order.end()) return otherwise;
  if (value->is_string()) return *value == "on" ? 1 : ToInt(value->get<std::string>());
  return value->get<int>();
}

}  // namespace

void Call(Controls& controls, const json& order, json& answer) {
  if (!order.contains("from")) {
    Describe(CourseOf(controls, order), answer);
    return;
  }
  IncomingCall incoming;
  incoming.from = TextOf(order, "from");
  incoming.video = NumberOf(order, "video", 0) != 0;
  incoming.conference = NumberOf(order, "conference", 0) != 0;
  incoming.givesUpAfter = order.value("milliseconds", incoming.givesUpAfter);
  const CallCourse* course = SessionOf(controls).calls.Come(incoming);
  if (course == nullptr) Refuse("nobody is signed in, or that is nobody");
  Describe(*course, answer);
}

void ActInCall(Controls& controls, const json& order, json& answer) {
  const Act& act = Choose(kActs, order.at("order").get<std::string>());
  CallCourse& course = CourseOf(controls, order);
  if (!(course.*act.act)(NumberOf(order, act.argument, act.value))) Refuse("not at this moment");
  Describe(course, answer);
}

void ChangeMembers(Controls& controls, const json& order, json& answer) {
  CallCourse& course = CourseOf(controls, order);
  const bool joins = order.contains("join");
  const std::string who = TextOf(order, joins ? "join" : "leave");
  if (!(joins ? course.Join(who) : course.Leave(who))) Refuse("not at this moment");
  Describe(course, answer);
}

void Speak(Controls& controls, const json& order, json&) {
  CourseOf(controls, order).Speak(TextOf(order, "who", ""));
}

void SendTone(Controls& controls, const json& order, json&) {
  if (!CourseOf(controls, order).SendTone(NumberOf(order, "tone", 1))) Refuse("not at this moment");
}

}  // namespace orders
}  // namespace simulator
