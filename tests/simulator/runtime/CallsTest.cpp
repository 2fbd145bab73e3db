#include <csignal>
#include <cstdio>
#include <iterator>
#include <utility>

#include "simulator/runtime/world/MagicNames.h"
#include "tests/simulator/runtime/RuntimeFixture.h"

namespace simulator {
namespace {

using nlohmann::json;
using test::RuntimeFixture;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr char kMedia[] = "media ";

// Writes what a call asks of sound and pictures down between the messages to the engine.
class NotingMedia : public MediaPort {
 public:
  void BeginSound(FarSound sound) override { Note("sound=" + std::to_string(static_cast<int>(sound))); }
  void PlayRecording(unsigned number) override { Note("recording=" + std::to_string(number)); }
  void EndSound() override { Note("silence"); }
  void ShowPicture(FarPicture picture) override {
    Note("picture=" + std::to_string(static_cast<int>(picture)));
  }
  int VoiceLevel() const override { return 4; }
  MediaCounts Counts() const override { return {}; }
  std::vector<std::string>* notes = nullptr;

 private:
  void Note(const std::string& note) {
    if (notes != nullptr) notes->push_back(kMedia + note);
  }
};

struct WithMedia {
  NotingMedia media;
};

class Calling : private WithMedia, public RuntimeFixture {
 protected:
  Calling() : RuntimeFixture(&media) {
    SignIn("demo", "demo1234");
    outbox.texts.clear();
    media.notes = &outbox.texts;
  }
  ~Calling() override { media.notes = nullptr; }

  static std::string OnId(unsigned id) { return Pair(ZEKey::ObjectId, std::to_string(id)); }
  unsigned Create() { return ToUnsigned(Result(RootMethod::CreateCall)); }
  bool Ring(unsigned call, const std::string& identity) {
    return Result(CallMethod::Ring, OnId(call) + Pair(ZEKey::Identity, identity)) == "1";
  }
  CallCourse& Rung(const std::string& identity) {
    const unsigned call = Create();
    EXPECT_TRUE(Ring(call, identity)) << identity;
    return *session.calls.Find(call);
  }
  CallCourse& Incoming(const std::string& words) {
    EXPECT_TRUE(Order("call from=" + words)["ok"].get<bool>());
    return *session.calls.Current();
  }
  json Order(const std::string& words) { return orders.Execute(Orders::FromWords(words)); }
  void End(unsigned id, int action, const ZEMethod& method = CallMethod::End) {
    const char* token = ZEProtocol::TokenOf(CALLMEMBER_ENDACTION_MAP, action);
    Tell(method, OnId(id) + Pair(ZEKey::EndAction, token == nullptr ? "" : token));
  }
  static CallMember& Partner(const CallCourse& course) { return *course.Members().front(); }

  // Time passes, and an engine that wants pictures starts those that it can have.
  void Live(std::int64_t milliseconds, bool video = false) {
    for (; milliseconds > 0; milliseconds -= 10) {
      Pass(10);
      CallCourse* course = video ? session.calls.Current() : nullptr;
      if (course == nullptr) continue;
      CallMember& partner = Partner(*course);
      if (partner.Sent() == nullptr) continue;
      if (partner.Sent()->Status() == video::kAvailable) Tell(VideoMethod::Start, OnId(partner.Sent()->Id()));
      if (partner.Received()->Status() == video::kStarting) {
        Tell(VideoMethod::Start, OnId(partner.Received()->Id()));
      }
    }
  }

  // What has happened since the last question, without the seconds, levels and names:
  // "new c11=1 m9=8 send=5 picture=2 gone ...", c and m for properties of calls and members.
  std::string Events() {
    std::string events;
    Decoder decoder;
    for (const std::string& text : std::exchange(outbox.texts, {})) {
      const bool ofMedia = text.rfind(kMedia, 0) == 0;
      const std::string note = ofMedia ? text.substr(sizeof kMedia - 1) : NoteOf(decoder.Words(text));
      if (!note.empty()) events += (events.empty() ? "" : " ") + note;
    }
    return events;
  }

 private:
  std::string NoteOf(const std::string& words) {
    if (words.rfind("event Call.NewCall", 0) == 0) return "new";
    if (words.find(".ObjectDelete ") != std::string::npos) return "gone";
    char type[32] = "";
    char value[300] = "";
    unsigned id = 0;
    int property = 0;
    if (std::sscanf(words.c_str(), "event %31[^.].PropertyChange object=%u property=%d value=%299[^\n]", type,
                    &id, &property, value) != 4) {
      return {};
    }
    const std::string number = std::to_string(property) + "=" + value;
    if (type == std::string(VIDEO_CLASS.name)) {
      bool sent = false;
      for (const auto& member : session.calls.OfVideo(id)->Members())
        sent = sent || (member->Sent() != nullptr && member->Sent()->Id() == id);
      return (sent ? "send=" : "receive=") + std::string(value);
    }
    if (type == std::string(CALLMEMBER_CLASS.name)) {
      return property == member::kVoiceLevel ? std::string() : "m" + number;
    }
    const bool noise =
        property == call::kPartner || property == call::kStartTime || property == call::kDuration;
    return type != std::string(CALL_CLASS.name) || noise ? std::string() : "c" + number;
  }

  Wire m_wire{false};
  Controls m_controls{m_wire, faults, &session};
  Orders orders{m_controls};
};

struct Course {
  const char* name;
  bool video;
  int milliseconds;
  const char* events;
};

// clang-format off
const Course kCourses[] = {
    {"sndtest",     true,  3000,  "c11=1 new m9=2 m9=6 m9=8 c10=1 picture=1 sound=1 m18=4 send=2 send=3 send=5 receive=2 receive=3 receive=5"},
    {"sndtest",     false, 3000,  "c11=1 new m9=2 m9=6 m9=8 c10=1 picture=1 sound=1 m18=4 send=2"},
    {"maria",       true,  4000,  "c11=1 new m9=2 m9=6 m9=8 c10=1 sound=2 m18=4 send=2 send=3 send=5 receive=2 receive=3 receive=5 picture=2"},
    {"+35121000000", true, 4000,  "c11=1 new m9=2 m9=6 m9=8 c10=1 sound=2"},
    {"busy",        false, 5000,  "c11=1 new m9=2 m9=14 c11=0 gone gone gone gone"},
    {"noanswer",    false, 31000, "c11=1 new m9=2 m9=6 m9=3 c11=0"},
    {"missed2",     false, 8500,  "c11=1 new m9=2 m9=6 m9=13 c11=0 c17=1 c11=1 new gone gone gone gone m9=12 c4=1 c11=0"},
    {"hangup3",     true,  5000,  "c11=1 new m9=2 m9=6 m9=8 c10=1 sound=2 m18=4 send=2 send=3 send=5 receive=2 receive=3 receive=5 picture=2 send=1 receive=1 m9=11 picture=0 silence c10=0 c11=0"},
    {"refusevideo", true,  2000,  "c11=1 new m9=2 m9=6 m9=8 c10=1 sound=2 m18=4 send=2 send=3 send=4"},
    {"conference",  false, 2000,  "c11=1 new m9=2 m9=6 m9=8 c10=3 c18=1 sound=2 m18=4 send=2"},
    {"holder",      false, 8000,  "c11=1 new m9=2 m9=6 m9=8 c10=1 sound=2 m18=4 send=2 m9=10 silence m9=8 sound=2"},
    {"voicemail",   false, 8000,  "c11=1 new m9=2 m9=6 m9=16 m9=17 sound=2 m9=18 sound=0"},
    {"fail-10404",  false, 200,   "c11=1 new m9=2 m13=\"10404 the far end cannot be found\" m10=8 m9=4 c11=0"},
    {"fail-12345",  false, 200,   "c11=1 new m9=2 m13=\"12345 the call failed\" m10=12 m9=4 c11=0"},
};
// clang-format on

class ACallTo : public Calling, public ::testing::WithParamInterface<Course> {};

TEST_P(ACallTo, TakesItsCourse) {
  const Course& course = GetParam();
  Rung(course.name);
  Live(course.milliseconds, course.video);
  EXPECT_EQ(course.events, Events());
  session.calls.EndAll();
  Live(4000);
  EXPECT_TRUE(session.calls.All().empty());
}

INSTANTIATE_TEST_SUITE_P(Names, ACallTo, ::testing::ValuesIn(kCourses));

class AnIncomingCall : public Calling {};

TEST_F(AnIncomingCall, RingsUntilThisSideOrTheOtherHasHadEnough) {
  const struct {
    int action;  // 0: nothing is done
    const char* end;
  } cases[] = {{call::kHangUp, "m9=13 c11=0"},
               {call::kToVoicemail, "m9=13 c11=0"},
               {call::kForward, "m9=11 c11=0"},
               {0, "m9=12 c4=1 c11=0"}};
  for (const auto& [action, end] : cases) {
    const CallCourse& course = Incoming("maria milliseconds=2000");
    EXPECT_EQ("c17=1 c11=1 new", Events());
    if (action != 0) End(course.Id(), action);
    Live(2000);
    EXPECT_EQ(end, Events()) << action;
    Live(3000);
    EXPECT_EQ("gone gone gone gone", Events()) << action;
  }
}

TEST_F(AnIncomingCall, ShowsTheCallerOnceItIsAnswered) {
  CallCourse& course = Incoming("maria video=1");
  Tell(CallMemberMethod::Answer, OnId(Partner(course).Id()));
  Live(400, true);
  EXPECT_EQ(
      "c17=1 c11=1 new receive=2 m9=8 c10=1 sound=2 m18=4 send=2 receive=3 send=3 send=5 receive=5 picture=2",
      Events());
  EXPECT_FALSE(Order("answer")["ok"].get<bool>());
  Tell(VideoMethod::Stop, OnId(Partner(course).Received()->Id()));
  Live(200);
  EXPECT_EQ("receive=6 picture=0 receive=2", Events());
  Order("video");
  Live(200, true);
  Order("video off");
  Live(200);
  EXPECT_EQ("receive=3 receive=5 picture=2 receive=6 picture=0 receive=1", Events());
  Order("refuse-video");
  Order("drop 6423");
  EXPECT_THAT(Events(), AllOf(StartsWith("send=4 m13=\"6423 "), EndsWith("m9=4 silence c10=0 c11=0")));
}

TEST_F(AnIncomingCall, OfAConferenceHasItsMembers) {
  CallCourse& course = Incoming("maria conference=1");
  EXPECT_EQ("c17=1 c18=1 c11=1 new", Events());
  const std::string members = Result(CallMethod::GetMembers, OnId(course.Id()));
  EXPECT_EQ(2, std::count(members.begin(), members.end(), ','));
  Tell(CallMemberMethod::Answer, OnId(Partner(course).Id()));
  Order("speaking guest.two");
  EXPECT_TRUE(Order("member join=demo")["ok"].get<bool>());
  Live(400);
  EXPECT_THAT(Events(), StartsWith("m9=8 c10=3 sound=2 c10=4 m18=4"));
  EXPECT_EQ(6, session.world.Find(course.Members()[2]->Id())->GetInt(member::kVoiceLevel));
  for (const char* who : {"guest.one", "demo", "maria"}) Order(std::string("member leave=") + who);
  EXPECT_THAT(Events(), HasSubstr("m9=11 c10=1"));
  End(course.Members()[2]->Id(), call::kHangUp, CallMemberMethod::End);
  EXPECT_THAT(Events(), EndsWith("m9=11 silence c10=0 c11=0"));
}

class ACall : public Calling {
 protected:
  CallCourse& Answered(const std::string& identity) {
    CallCourse& course = Rung(identity);
    Live(4000, true);
    Events();
    return course;
  }
};

TEST_F(ACall, IsHeldAndResumedByEitherSide) {
  CallCourse& course = Answered("sndtest");
  const std::string on = OnId(course.Id());
  EXPECT_EQ("1", Result(CallMethod::CanHold, on));
  Tell(CallMethod::Hold, on + Pair(ZEKey::Hold, "1"));
  EXPECT_EQ("send=7 receive=7 m9=9 picture=0 silence", Events());
  EXPECT_EQ("0", Result(CallMethod::CanHold, on));
  EXPECT_EQ("1", Result(CallMethod::CanResume, on));
  EXPECT_FALSE(Order("resume")["ok"].get<bool>());
  Tell(VideoMethod::Stop, OnId(Partner(course).Received()->Id()));
  Tell(CallMethod::Hold, on + Pair(ZEKey::Hold, "0"));
  Live(200, true);
  EXPECT_EQ("m9=8 send=3 picture=1 sound=1 receive=3 send=5 receive=5", Events());
  EXPECT_TRUE(Order("hold")["ok"].get<bool>());
  EXPECT_THAT(Events(), EndsWith("m9=10 picture=0 silence"));
  // Another call rings meanwhile, and is refused.
  const unsigned second = Incoming("maria").Id();
  End(second, call::kHangUp);
  EXPECT_THAT(Events(), EndsWith("m9=13 c11=0"));
  EXPECT_EQ(&course, session.calls.Current());
}

TEST_F(ACall, CountsItsSecondsTellsItsLevelsAndReturnsTones) {
  CallCourse& course = Answered("sndtest");
  const unsigned partner = Partner(course).Id();
  EXPECT_EQ(1, session.world.Find(course.Id())->GetInt(call::kDuration));
  EXPECT_EQ(4, session.world.Find(partner)->GetInt(member::kVoiceLevel));
  Tell(CallMethod::PlayAndSendDTMF, OnId(course.Id()) + Pair(ZEKey::Dtmf, CALLMEMBER_DTMF_MAP[6].name));
  EXPECT_EQ("event CallMember.IncomingDTMF object=" + std::to_string(partner) + " dtmf=7", Words().back());
  Tell(CallMethod::Mute, OnId(course.Id()) + Pair(ZEKey::Mute, "1"));
  EXPECT_EQ("sound=0", Events());
  Live(400);
  EXPECT_EQ(0, session.world.Find(partner)->GetInt(member::kVoiceLevel));
}

TEST_F(ACall, LeavesAVoicemailUnlessItIsCancelled) {
  for (const auto& [action, end] : {std::pair{call::kHangUp, "m9=19 silence m9=20 c11=0"},
                                    std::pair{call::kCancelVoicemail, "m9=21 silence c11=0"}}) {
    const unsigned id = Create();
    Tell(CallMethod::Mute, OnId(id) + Pair(ZEKey::Mute, "0"));
    EXPECT_EQ("1", Result(CallMethod::LeaveVoicemail, OnId(id) + Pair(ZEKey::Identity, "maria")));
    Live(1000);
    Tell(CallMemberMethod::SkipVoicemailGreeting, OnId(Partner(*session.calls.Find(id)).Id()));
    Live(1500);
    EXPECT_EQ("c11=1 new m9=16 m9=17 sound=2 m9=18 sound=0", Events());
    End(id, action);
    Live(1000);
    EXPECT_EQ(end, Events());
    Live(3000);
    Events();
  }
}

TEST_F(ACall, IsOverWhenTheAccountSignsOutAndThenThereIsNone) {
  Answered("sndtest");
  session.signIn.Drop(LogoutReason::SignedInElsewhere);
  EXPECT_THAT(Events(), HasSubstr("m9=11 picture=0 silence c10=0 c11=0"));
  EXPECT_FALSE(Ring(Create(), "sndtest"));
  EXPECT_FALSE(Order("call from=maria")["ok"].get<bool>());
}

TEST_F(ACall, ToACrashKillsTheProcess) {
  EXPECT_EXIT((Rung("crash"), Live(2000)), ::testing::KilledBySignal(SIGKILL), "");
}

TEST_F(ACall, AssimilatesAnotherAndIsAConferenceThen) {
  CallCourse& first = Answered("sndtest");
  Tell(CallMethod::Hold, OnId(first.Id()) + Pair(ZEKey::Hold, "1"));
  CallCourse& second = Answered("maria");
  const std::string other = OnId(second.Id()) + Pair(ZEKey::OtherCall, std::to_string(first.Id()));
  EXPECT_EQ("1", Result(CallMethod::Assimilate, other));
  EXPECT_THAT(Events(), EndsWith("m9=11 c10=0 c11=0 c10=2 c18=1"));
  EXPECT_EQ("0", Result(CallMethod::Assimilate, other));
  EXPECT_EQ(&second, session.calls.Current());
}

// Every request on every object at every stage of a call, the objects deleted in between; then a call works.
TEST_F(ACall, SurvivesRequestsThatFitNowhere) {
  const std::string junk = Pair(ZEKey::EndAction, "1849") + Pair(ZEKey::Hold, "1") + Pair(ZEKey::Dtmf, "x") +
                           Pair(ZEKey::Identity, std::string(300, 'a')) + Pair(ZEKey::OtherCall, "1");
  const char* const names[] = {"sndtest", "conference", "holder", "voicemail", "storm", "garbage", "missed2"};
  for (const ZEMethod* method : CLASS_METHODS) {
    const bool ofCall = method->owner == &CALL_CLASS || method->owner == &CALLMEMBER_CLASS;
    if (!ofCall && method->owner != &VIDEO_CLASS) continue;
    for (int stage = 0; stage < 28; ++stage) {
      CallCourse& course = Rung(names[static_cast<std::size_t>(stage) % std::size(names)]);
      Live(stage / 7 * 1200, true);
      std::vector<unsigned> objects{course.Id()};
      for (const auto& member : course.Members()) {
        objects.push_back(member->Id());
        if (member->Sent() != nullptr)
          objects.insert(objects.end(), {member->Sent()->Id(), member->Received()->Id()});
      }
      for (const unsigned object : objects) dispatcher.Serve("#1  a " + TextOf(*method, OnId(object) + junk));
      session.world.Delete(objects[static_cast<std::size_t>(stage) % objects.size()]);
      for (const unsigned object : objects) dispatcher.Serve("#1  a " + TextOf(*method, OnId(object) + junk));
      Live(500, true);
      session.calls.EndAll();
      outbox.texts.clear();
    }
    Live(10000);
  }
  EXPECT_TRUE(session.calls.All().empty());
  outbox.texts.clear();
  Rung("sndtest");
  Live(3000, true);
  EXPECT_THAT(Events(), EndsWith("receive=5"));
  for (std::size_t i = 0; i < 2 * kMaxCalls; ++i) Create();
  EXPECT_EQ(kMaxCalls, session.calls.All().size());
}

}  // namespace
}  // namespace simulator
