// What a far end can do to the runtime and to the engine.
#include "apiwrapper/tables/Classes.h"
#include "simulator/runtime/world/CallCourse.h"

namespace simulator {
namespace {

// Frames that are nearly events; "%" stands for the call's id.
constexpr const char* kNonsense[] = {
    "",
    " ",
    "e",
    "e 1133",
    "e 1133 1122",
    "e 1133 1122 1137=\"0\"",
    "e 1133 1122 1137=\"x\"",
    "e 1133 2073 1137=\"%\" 1551=\"9999\" 1667=\"1\"",
    "e 1133 2073 1137=\"%\" 1551=\"1265\" 1667=\"99999999999999999999\"",
    "e 1133 2073 1137=\"%\" 1551=\"1178\" 1667=\"-5\"",
    "e 1133 2073 1137=\"%\" 1551=\"1801",
    "e 1133 2073 1137=\"%\" 1551=1801 1667=\"1\"",
    "e 1988 2073 1137=\"%\" 1551=\"1532\" 1667=\"1229\"",
    "e 1311 2073 1137=\"%\" 1551=\"1532\" 1667=\"1132\"",
    "e 1988 1025 1137=\"%\" 1901=\"no tone\"",
    "e 1311 1890 1137=\"%\" 1700=r\"\\0\\\\\" 1492=\"4294967295\" 1337=\"-1\"",
    "e 9999 2073 1137=\"%\"",
    "e 1133 9999 1137=\"%\"",
    "e \xff\xfe \x01\x02 \"\\",
    "b 0=\"1\"",
    "d nobody has asked",
    "#FFFFFFFF b 0=\"%\"",
};

constexpr int kLongText = 100000;

struct Whirl {
  int property;
  int first;  // the values go round from here
  int count;
};

// What a storm changes, round and round; the members stay on the line.
constexpr Whirl kOfTheCall[] = {{call::kDuration, 0, 100000}, {call::kActiveMembers, 0, 4}};
constexpr Whirl kOfAMember[] = {
    {member::kVoiceLevel, 0, 11}, {member::kQuality, 1, 17}, {member::kVideoStatus, 1, 4}};
constexpr Whirl kOfAVideo[] = {{video::kStatus, 1, 7}};

template <std::size_t N>
void Turn(World& world, unsigned id, const Whirl (&whirls)[N], int turn) {
  Object* object = world.Find(id);
  if (object == nullptr) return;
  const Whirl& whirl = whirls[static_cast<std::size_t>(turn) % N];
  world.SetInt(*object, whirl.property, whirl.first + turn / static_cast<int>(N) % whirl.count);
}

}  // namespace

bool CallCourse::Strike(int signal) {
  m_context.strike(signal);
  return true;
}

bool CallCourse::Garbage(int) {
  const std::string id = std::to_string(m_id);
  for (const char* nonsense : kNonsense) {
    std::string text = nonsense;
    const auto place = text.find('%');
    if (place != std::string::npos) text.replace(place, 1, id);
    m_context.outbox.Send(text);
  }
  m_context.outbox.Send("e 1988 2073 1137=\"" + id + "\" 1551=\"1643\" 1667=\"" +
                        std::string(kLongText, 'x') + "\"");
  return true;
}

bool CallCourse::Storm(int changes) {
  World& world = m_context.world;
  for (int turn = 0; turn < changes; ++turn) {
    Turn(world, m_id, kOfTheCall, turn);
    for (const auto& member : m_members) {
      Turn(world, member->Id(), kOfAMember, turn);
      if (member->Received() == nullptr) continue;
      Turn(world, member->Received()->Id(), kOfAVideo, turn);
      Turn(world, member->Sent()->Id(), kOfAVideo, turn);
    }
  }
  // Calm again: everything as it really is.
  CountMembers();
  SetCall(call::kDuration, 0);
  for (const auto& member : m_members) {
    for (CallVideo* video : {member->Received(), member->Sent()}) {
      Object* object = video == nullptr ? nullptr : world.Find(video->Id());
      if (object != nullptr) world.SetInt(*object, video::kStatus, video->Status());
    }
  }
  return true;
}

}  // namespace simulator
