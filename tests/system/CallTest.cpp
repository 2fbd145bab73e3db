#include <gmock/gmock.h>
#include <signal.h>

#include <thread>

#include "tests/support/SurvivalCheck.h"
#include "tests/system/CallScenario.h"

using ::testing::HasSubstr;

namespace test {

namespace {

using Clock = std::chrono::steady_clock;

// What the television is told, piece by piece, for a widget over the whole screen and one over the
// programme.
#define IN_WIDGET "SetExtVideoSize(124, 34, 1144, 858) "
#define OVER_PROGRAMME "SetExtVideoSize(0, 0, 1920, 1080) "
#define CAMERA_IN_WIDGET "SetCamVideoSize(1438, 634, 320, 240) "
#define CAMERA_OVER_PROGRAMME "SetCamVideoSize(0, 0, 1920, 1080) "
#define PREVIEW "StartPreview(1438, 634, 320, 240) "
#define STARTS_IN_WIDGET \
  IN_WIDGET "StartCall() SupportDoubleTalk() MuteSpeakerVolume(0) SetSubMixAudioVolume(100) "
#define STARTS_OVER_PROGRAMME(camera) \
  "MuteReceiverSound(1) " OVER_PROGRAMME camera "StartCallWithTV() SetSubMixAudioVolume(100) "
#define IS_HIDDEN "HideVoiceHelpbar() SetCameraLightMode(0) "
#define STOPS_IN_WIDGET "StopCall() SupportDoubleTalk() ReleaseMixVideo() "
#define STOPS_OVER_PROGRAMME \
  "StopCallWithTV() MuteReceiverSound(0) SetMainMixAudioVolume(100) ReleaseMixVideo() "
// The far end's pictures are taken when they are announced, and again when they run.
#define PICTURES_COME "SetCameraLightMode(2) SetCameraLightMode(2) "
#define PICTURES_END "SetCameraLightMode(0) "
#define WIDGET_OPENS(parameter)                        \
  "IsUserWatchingTV() StartWidgetWithParam(" parameter \
  ", 1) SetWidgetState(1) MuteReceiverSound(1) "       \
  "SetMoIPVideoEnhancement(1) "
#define WIDGET_CLOSES                                                               \
  IN_WIDGET                                                                         \
  "SetMoIPVideoEnhancement(0) SetTVMode(0) SetWidgetState(0) MuteReceiverSound(0) " \
  "SetSubMixAudioVolume(100) "

struct Stages {
  CallKind kind;
  const char* rings;
  const char* talks;  // from the answer on
  const char* ends;
};

struct Course {
  const char* widget;  // when it rings
  Stages stages[3];

  friend std::ostream& operator<<(std::ostream& out, const Course& course) { return out << course.widget; }
};

constexpr char kSilence[] = "MuteSpeakerVolume(0) ";

#define TALKS_IN_WIDGET "StopPreview() " STARTS_IN_WIDGET
#define TALKS_OVER_PROGRAMME(camera) "StopPreview() " STARTS_OVER_PROGRAMME(camera)

// clang-format off
constexpr Stages kOverProgramme[] = {
    {CallKind::Voice,      kSilence, TALKS_OVER_PROGRAMME(""), IS_HIDDEN STOPS_OVER_PROGRAMME},
    {CallKind::Video,      kSilence, TALKS_OVER_PROGRAMME(CAMERA_OVER_PROGRAMME) CAMERA_OVER_PROGRAMME PICTURES_COME,
                                     PICTURES_END IS_HIDDEN STOPS_OVER_PROGRAMME},
    {CallKind::Conference, kSilence, TALKS_OVER_PROGRAMME(""),
                                     IS_HIDDEN STOPS_OVER_PROGRAMME},
};
constexpr char kVoiceEnds[] = IS_HIDDEN STOPS_IN_WIDGET;
constexpr char kVideoEnds[] = PICTURES_END IS_HIDDEN "StopPreview() " STOPS_IN_WIDGET;
constexpr Course kCourses[] = {
    {"0", {{CallKind::Voice,      "", WIDGET_OPENS("TVModeAudio") TALKS_IN_WIDGET, kVoiceEnds},
           {CallKind::Video,      "", WIDGET_OPENS("TVModeAudio") TALKS_IN_WIDGET CAMERA_IN_WIDGET PREVIEW PICTURES_COME,
                                      kVideoEnds},
           {CallKind::Conference, "", WIDGET_OPENS("") TALKS_IN_WIDGET, kVoiceEnds}}},
    {"1", {{CallKind::Voice,      kSilence, TALKS_IN_WIDGET, kVoiceEnds},
           {CallKind::Video,      kSilence, TALKS_IN_WIDGET CAMERA_IN_WIDGET PREVIEW PICTURES_COME, kVideoEnds},
           {CallKind::Conference, kSilence, TALKS_IN_WIDGET, kVoiceEnds}}},
    {"2", {kOverProgramme[0], kOverProgramme[1], kOverProgramme[2]}},
    {"3", {kOverProgramme[0], kOverProgramme[1], kOverProgramme[2]}},
};
// clang-format on

// A call that is refused before it rings changes nothing that would be restored.
constexpr char kRefused[] = IS_HIDDEN "ReleaseMixVideo() ";

constexpr std::chrono::seconds kBlock(4);
constexpr std::chrono::seconds kForwarding(6);  // a second, and five in which the widget counts down

}  // namespace

class AnIncomingCall : public ACalledViewer, public ::testing::WithParamInterface<Course> {};

TEST_P(AnIncomingCall, ArrangesTheTelevisionAndLeavesItAsItWas) {
  const bool closed = GetParam().widget[0] == '0';
  for (const Stages& stages : GetParam().stages) {
    for (const bool here : {true, false}) {
      SCOPED_TRACE("kind " + std::to_string(static_cast<int>(stages.kind)) + (here ? ", here" : ", there"));
      EXPECT_EQ(Enter(GetParam().widget), "1");
      Told();
      ASSERT_NO_FATAL_FAILURE(Rings(stages.kind));
      EXPECT_EQ(Told(), stages.rings);
      Answers(stages.kind);
      std::string told = Told();
      if (closed) {
        EXPECT_EQ(Execute("IsWidgetActivatedByAnswer"), "1");
        EXPECT_EQ(Enter("1"), "0");
      }
      ASSERT_NO_FATAL_FAILURE(Talks(stages.kind));
      EXPECT_EQ(told += Told(), stages.talks);
      EXPECT_TRUE(HearsSomething());
      if (here) {
        HangsUp();
      } else {
        IsHungUpOn();
      }
      ASSERT_NO_FATAL_FAILURE(CallIsOver(stages.kind));
      EXPECT_EQ(Told(), stages.ends);
      EXPECT_FALSE(HearsSomething());
      EXPECT_EQ(Execute("IsInCall"), "0");
      EXPECT_EQ(Enter("0"), "1");
      EXPECT_EQ(Told(), WIDGET_CLOSES);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(InWidgetState, AnIncomingCall, ::testing::ValuesIn(kCourses),
                         [](const auto& course) { return std::string(course.param.widget); });

class AChoosyViewer : public ACalledViewer {
 protected:
  // Somebody calls and is refused before the viewer hears of it.
  void Refuses(const char* from, int statusThere) {
    Told();
    const int rung = Heard(kIncomingCall);
    const int call = IsCalled(from);
    ASSERT_NO_FATAL_FAILURE(CallIsOver());
    EXPECT_EQ(Told(), kRefused);
    EXPECT_EQ(StatusThere(call), statusThere);
    EXPECT_EQ(Heard(kIncomingCall), rung);
    EXPECT_EQ(Execute("UnblockIncomingCall", "0"), "1");
  }
  void IsReached() {
    ASSERT_NO_FATAL_FAILURE(Rings());
    EXPECT_EQ(Execute("RejectCall"), "1");
    ASSERT_NO_FATAL_FAILURE(CallIsOver());
    EXPECT_EQ(Execute("UnblockIncomingCall", "0"), "1");
  }
};

TEST_F(AChoosyViewer, WhoTakesCallsFromContactsOnlyHearsNoStranger) {
  ASSERT_EQ(Execute("SetCallAllowPolicy", "0"), "1");
  ASSERT_TRUE(Arrives(kCommitted));
  ASSERT_NO_FATAL_FAILURE(Refuses("some.stranger", kRefusedThere));
  ASSERT_NO_FATAL_FAILURE(IsReached());
}

TEST_F(AChoosyViewer, WhoDoesNotWantToBeDisturbedIsCalledOnlyInTheWidget) {
  ASSERT_EQ(Execute("SetAvailability", "6"), "1");
  ASSERT_TRUE(Arrives(kAvailabilityChanged, "6"));
  ASSERT_NO_FATAL_FAILURE(Refuses("maria", kRefusedThere));
  Enter("1");
  ASSERT_NO_FATAL_FAILURE(IsReached());
}

TEST_F(AChoosyViewer, HasCallsPassedOnAtOnceOrInTime) {
  ASSERT_EQ(Execute("SetCallForwardTimer", "0"), "1");
  ASSERT_EQ(Execute("SetVoicemailForward", "1"), "1");
  ASSERT_NO_FATAL_FAILURE(Refuses("maria", kRefusedThere));
  ASSERT_EQ(Execute("SetCallForward", "1"), "1");  // goes before voicemail
  ASSERT_NO_FATAL_FAILURE(Refuses("maria", kFinishedThere));

  ASSERT_EQ(Execute("SetCallForwardTimer", "1"), "1");
  const auto begin = Clock::now();
  ASSERT_NO_FATAL_FAILURE(Rings());
  ASSERT_NO_FATAL_FAILURE(CallIsOver());
  EXPECT_GE(Clock::now() - begin, kForwarding);
  EXPECT_LT(Clock::now() - begin, kForwarding + std::chrono::seconds(2));
  EXPECT_EQ(Execute("UnblockIncomingCall", "0"), "1");

  Enter("1");
  ASSERT_NO_FATAL_FAILURE(Rings());
  Answers();
  ASSERT_NO_FATAL_FAILURE(Talks());
  EXPECT_FALSE(Arrives(kCallEnded, nullptr, 7));  // whoever answers is not passed on
}

TEST_F(ACalledViewer, IsLeftAloneForFourSecondsAfterACall) {
  Enter("1");
  ASSERT_NO_FATAL_FAILURE(Rings());
  Answers();
  ASSERT_NO_FATAL_FAILURE(Talks());
  HangsUp();
  ASSERT_TRUE(Arrives(kCallEnded));
  const auto end = Clock::now();
  ASSERT_TRUE(Arrives(kMembersCleared));
  Told();
  while (IsCalled(),
         !m_host.WaitFor([](const television::Report& report) { return report.type == kIncomingCall; },
                         std::chrono::milliseconds(100))) {
    ASSERT_LT(Clock::now() - end, kBlock * 2);
  }
  EXPECT_GE(Clock::now() - end, kBlock - std::chrono::milliseconds(200));
  EXPECT_LT(Clock::now() - end, kBlock + std::chrono::seconds(1));
  EXPECT_EQ(Told(), kSilence);
}

TEST_F(AChoosyViewer, IsBusyForASecondCaller) {
  Enter("1");
  ASSERT_NO_FATAL_FAILURE(Rings());
  Answers();
  ASSERT_NO_FATAL_FAILURE(Talks());
  Told();
  for (const char* toVoicemail : {"0", "1"}) {
    ASSERT_EQ(Execute("SetVoicemailInBusy", toVoicemail), "1");
    const int second = IsCalled("anna");
    for (int tenths = 0; StatusThere(second) != kRefusedThere && tenths < 20; ++tenths) {
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    EXPECT_EQ(StatusThere(second), kRefusedThere);
    EXPECT_EQ(Told(), "");
    EXPECT_EQ(Execute("GetCallMemberIdentity", "0"), "maria");
    EXPECT_EQ(Execute("IsCallInProgress"), "1");
  }
  EXPECT_EQ(Heard(kIncomingCall), 1);
  EXPECT_EQ(Heard(kCallEnded), 0);
  HangsUp();
  ASSERT_NO_FATAL_FAILURE(CallIsOver());
  EXPECT_EQ(Told(), kVoiceEnds);
  Execute("UnblockIncomingCall", "0");
  ASSERT_NO_FATAL_FAILURE(IsReached());
}

TEST_F(ACalledViewer, HoldsAVideoCallAndGoesOn) {
  Enter("1");
  ASSERT_NO_FATAL_FAILURE(Rings(CallKind::Video));
  Answers(CallKind::Video);
  ASSERT_NO_FATAL_FAILURE(Talks(CallKind::Video));
  Told();
  constexpr int kHeld = 264;
  EXPECT_EQ(Execute("Hold", "1"), "1");
  ASSERT_TRUE(Arrives(kHeld));
  EXPECT_EQ(Told(), PICTURES_END);
  EXPECT_EQ(Execute("Hold", "0"), "1");
  ASSERT_TRUE(Arrives(kCallInProgress));
  ASSERT_TRUE(Arrives(kVideoRunning));
  EXPECT_EQ(Told(), STARTS_IN_WIDGET CAMERA_IN_WIDGET PICTURES_COME);
}

TEST_F(ACalledViewer, TakesACallAlongWhenTheWidgetMoves) {
  Enter("1");
  ASSERT_NO_FATAL_FAILURE(Rings(CallKind::Video));
  Answers(CallKind::Video);
  ASSERT_NO_FATAL_FAILURE(Talks(CallKind::Video));
  Told();
  EXPECT_EQ(Enter("2"), "1");
  EXPECT_EQ(Told(), "SetTVMode(1) SetPIPSourceMedia() " OVER_PROGRAMME CAMERA_OVER_PROGRAMME
                    "MuteReceiverSound(1) SupportDoubleTalk() SetWidgetState(1) ");
  EXPECT_EQ(Enter("1"), "1");
  EXPECT_EQ(Told(),
            "SetWidgetState(1) MuteReceiverSound(1) MuteSpeakerVolume(0) SetMoIPVideoEnhancement(1) ");
  EXPECT_EQ(Enter("0"), "1");
  ASSERT_TRUE(Arrives(kVideoOffered));  // the pictures have stopped there
  EXPECT_EQ(Told(),
            "IsZeltoSupportMultitasking() SetCameraLightMode(0) CloseExtVideo() StopPreview() "
            "ReleaseMixVideo() StopPIGMode() " WIDGET_CLOSES PICTURES_END);
  EXPECT_EQ(Execute("IsCallInProgress"), "1");
  IsHungUpOn();
  ASSERT_NO_FATAL_FAILURE(CallIsOver());
  EXPECT_EQ(Told(), PICTURES_END IS_HIDDEN STOPS_OVER_PROGRAMME);
}

TEST_F(ACalledViewer, HearsTheProgrammeBesideTheCallWhereTheTelevisionCanKeepThemApart) {
  m_host.WithState([](television::TelevisionState& state) {
    state.Set("doubleTalk", "1");
    state.Set("watchingTv", "0");
  });
  ASSERT_NO_FATAL_FAILURE(Rings());
  Answers();
  EXPECT_EQ(Told(), "IsUserWatchingTV() StartWidgetWithParam(, 1) ");
  EXPECT_EQ(Enter("1"), "0");
  ASSERT_NO_FATAL_FAILURE(Talks());
  EXPECT_THAT(Told(), HasSubstr("SupportDoubleTalk() SetMainMixAudioVolume(50) MuteSpeakerVolume(0) "));
  HangsUp();
  ASSERT_NO_FATAL_FAILURE(CallIsOver());
  EXPECT_EQ(Told(), IS_HIDDEN "StopCall() SupportDoubleTalk() SetMainMixAudioVolume(100) ReleaseMixVideo() ");
}

TEST_F(ACalledViewer, WhoseCallerGivesUpWhileTheWidgetLoadsFindsNobody) {
  ASSERT_NO_FATAL_FAILURE(Rings());
  Answers();
  EXPECT_EQ(Execute("AnswerWithVideo"), "1");  // changes the mind only
  IsHungUpOn();
  ASSERT_NO_FATAL_FAILURE(CallIsOver());
  EXPECT_EQ(Enter("1"), "1");
  EXPECT_EQ(Execute("IsInCall"), "0");
}

TEST_F(ACalledViewer, CanBeCalledAgainAfterTheRuntimeHasDiedInACall) {
  SwitchOff();
  {
    const SurvivalCheck survival;
    ASSERT_NO_FATAL_FAILURE(SetUp());
    Enter("1");
    ASSERT_NO_FATAL_FAILURE(Rings(CallKind::Video));
    Answers(CallKind::Video);
    ASSERT_NO_FATAL_FAILURE(Talks(CallKind::Video));
    SignalRuntime(SIGKILL);
    EXPECT_EQ(Execute("GetMicVolume"), "0");
    SwitchOff();
    m_host.WithState([](television::TelevisionState& state) {
      EXPECT_EQ(state.Get("call"), "none");
      EXPECT_EQ(state.Get("preview"), "off");
    });
  }
  ASSERT_NO_FATAL_FAILURE(SetUp());
  Enter("1");
  ASSERT_NO_FATAL_FAILURE(Rings());
  Answers();
  ASSERT_NO_FATAL_FAILURE(Talks());
  EXPECT_TRUE(HearsSomething());
}

}  // namespace test
