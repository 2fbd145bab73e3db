#include "zelhost/calls/ZelhostCallManager.h"

#include <gmock/gmock.h>

#include <atomic>
#include <iterator>

#include "Common/CallManager.h"
#include "apiwrapper/Voicemail.h"
#include "tests/support/FastClock.h"
#include "tests/zelhost/RootFixture.h"
#include "tests/zelhost/calls/CallScript.h"
#include "zelhost/apiwrapper/client/CCall.h"
#include "zelhost/history/ZelhostHistoryManager.h"

using namespace test::call;
using zelhost::ServiceHostLock;
using Texts = std::vector<std::string>;

namespace {

struct FastTime {
  test::FastClock clock{50};
};

class ACall : private FastTime, public test::RootFixture {
 protected:
  ACall() {
    test::call::Serve(m_runtime, m_memory);
    m_host.Answers("SupportDoubleTalk", "1");
    CCallManager::GetInstance();
  }
  ~ACall() override { CCallManager::DeleteInstance(); }

  CZelhostCallManager& Calls() { return *CZelhostCallManager::GetInstance(); }
  void Show(int widget) { m_host.Execute("SetZeltoWidgetState", std::to_string(widget).c_str()); }
  void Ring() { Deliver(kCallClass, kNewCall, Id(kCall)); }
  void Status(int status) { Deliver(kMemberClass, kChanged, MemberStatus(status)); }
  void End() { Deliver(kCallClass, kChanged, Ongoing(kCall, "0")); }
  void Video(unsigned id, int status) { Change(kVideoClass, id, "1532", Token(VIDEO_STATUS_MAP, status)); }
  void Member(int property, const char* value) {
    Change(kMemberClass, kMember, Token(CALLMEMBER_PROPERTY_MAP, property), value);
  }
  // What the television is told by everything that has been sent up to now. Left out are the media threads'
  // questions about the camera's microphone and what notices ask.
  Texts Controls() {
    m_host.CountUntilNow();
    Texts controls = m_host.TakeControls();
    const auto isQuestion = [](const std::string& control) {
      return control.rfind("IsCamera", 0) == 0 || control.rfind("GetCamera", 0) == 0 ||
             control == "GetCurrentLangID()";
    };
    controls.erase(std::remove_if(controls.begin(), controls.end(), isQuestion), controls.end());
    return controls;
  }
  std::size_t Requests(const char* method, unsigned object) {
    CZelhostLocalSetting::GetIntValue(kSettingInitialized);  // answered behind what was sent one-way
    const auto requests = m_runtime.requests(method);
    return static_cast<std::size_t>(std::count_if(requests.begin(), requests.end(), [&](const auto& request) {
      return request.arguments.at("1137") == std::to_string(object);
    }));
  }
};

struct Screen {
  int widget;
  Texts started;
  Texts ended;
};

class ACallOnTheScreen : public ACall, public testing::WithParamInterface<Screen> {};

TEST_P(ACallOnTheScreen, IsArrangedAndRestored) {
  m_memory.Set("*UI/Setting/TV_MIX_RATIO", "40");
  Show(GetParam().widget);
  Ring();
  Calls().AnswerWithVoice();
  Controls();
  for (const bool resumed : {false, true}) {
    Status(8);
    EXPECT_EQ(Controls(), GetParam().started) << resumed;
    EXPECT_TRUE(Calls().IsInCall());
    EXPECT_TRUE(Calls().IsCallInProgress());
    if (!resumed) Status(10);
    EXPECT_EQ(Controls(), Texts{});
    EXPECT_EQ(Calls().IsInHold(), !resumed);
    Status(8);  // from hold: the preview stays as it is
    Texts again = GetParam().started;
    if (!resumed) again.erase(again.begin());
    EXPECT_EQ(Controls(), again);
  }
  End();
  EXPECT_EQ(Controls(), GetParam().ended);
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CALL_ENDED_POPUP));
  EXPECT_EQ(Calls().GetCallInfo(), nullptr);
  EXPECT_EQ(Calls().GetNumOfCallMembers(), 0);
  EXPECT_FALSE(Calls().IsInCalling());
  EXPECT_FALSE(Exists(kCall));
}

INSTANTIATE_TEST_SUITE_P(
    WidgetStates, ACallOnTheScreen,
    testing::Values(
        Screen{0, {"StopPreview()"}, {"HideVoiceHelpbar()", "SetCameraLightMode(0)", "ReleaseMixVideo()"}},
        Screen{1,
               {"StopPreview()", "SetExtVideoSize(124, 34, 1144, 858)", "StartCall()", "SupportDoubleTalk()",
                "SetMainMixAudioVolume(40)", "MuteSpeakerVolume(0)", "SetSubMixAudioVolume(100)"},
               {"HideVoiceHelpbar()", "SetCameraLightMode(0)", "StopCall()", "SupportDoubleTalk()",
                "SetMainMixAudioVolume(100)", "ReleaseMixVideo()"}},
        Screen{3,
               {"StopPreview()", "MuteReceiverSound(1)", "SetExtVideoSize(0, 0, 1920, 1080)",
                "StartCallWithTV()", "SetSubMixAudioVolume(100)"},
               {"HideVoiceHelpbar()", "SetCameraLightMode(0)", "StopCallWithTV()", "MuteReceiverSound(0)",
                "SetMainMixAudioVolume(100)", "ReleaseMixVideo()"}}),
    [](const auto& screen) { return std::to_string(screen.param.widget); });

TEST_F(ACall, SendsPicturesOnceBothSidesAreReadyAndTellsOfARefusalLater) {
  m_memory.Set("Lib/Video/RecvPolicy", "callpolicy");
  m_memory.Set("*UI/Setting/CAMERA_LIGHT_MODE", "2");
  Show(1);
  Ring();
  Calls().AnswerWithVideo();
  Status(8);
  Controls();
  EXPECT_EQ(Requests(kAnswer, kMember), 1u);
  Video(kSendVideo, 2);
  EXPECT_EQ(Controls(), Texts{});
  EXPECT_EQ(Requests(kStartVideo, kSendVideo), 0u);
  for (const char* status : {"1745", "1387"}) Member(CallMember::P_VIDEOSTATUS, status);
  EXPECT_EQ(Controls(), Texts{});
  EXPECT_EQ(Requests(kStartVideo, kSendVideo), 1u);
  Video(kRecvVideo, 3);
  EXPECT_EQ(Controls(), Texts{"SetCameraLightMode(2)"});
  EXPECT_EQ(Requests(kStartVideo, kRecvVideo), 1u);
  EXPECT_STREQ(Calls().GetCallInfo(),
               "0\x03\x02"
               "1\x03\x02"
               "1\x03\x02"
               "bob\x03\x02"
               "Bob    B\x03\x02"
               "\x03\x02"
               "1\x03\x02"
               "1\x03\x02"
               "1\x03\x02");

  Video(kSendVideo, 4);  // withdrawn by the viewer
  EXPECT_EQ(m_host.Execute("StopSendVideo"), "1");
  EXPECT_EQ(Controls(), Texts{"StopPreview()"});
  EXPECT_EQ(Calls().GetCallType(), 1);  // the far end is still seen
  Video(kSendVideo, 4);                 // nobody sends
  EXPECT_EQ(m_host.Execute("StartSendVideo"), "1");
  EXPECT_EQ(Controls(), (Texts{"SetCamVideoSize(1438, 634, 320, 240)", "StartPreview(1438, 634, 320, 240)"}));
  Video(kSendVideo, 4);
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CALLMEMBER_REFUSE_RECEIVE_VIDEO, "4"));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CALLMEMBER_REFUSE_RECEIVE_VIDEO), 1);

  Member(CallMember::P_15, "1");
  EXPECT_EQ(Controls(), Texts{"StopPreview()"});
  EXPECT_FALSE(Calls().IsSendingVideo());
  EXPECT_STREQ(Calls().GetCallMemberInfo(0, CallMember::P_TYPE), "4");
  Video(kRecvVideo, 7);
  EXPECT_EQ(Controls(), Texts{"SetCameraLightMode(0)"});
  EXPECT_EQ(Calls().GetCallType(), 0);
}

TEST_F(ACall, ShowsNoPreviewOverTheProgrammeAndKnowsTwoSourceModes) {
  Ring();
  Show(2);
  Controls();
  EXPECT_TRUE(Calls().StartSendVideo());
  Calls().StartPreview();
  for (const char* mode : {"2", "", static_cast<const char*>(nullptr)}) Calls().ChangeSourceMode(mode);
  EXPECT_EQ(Controls(), Texts{"SetCamVideoSize(0, 0, 1920, 1080)"});
  Calls().SetTvRecvRect(1, 2, 3, 4);
  Calls().SetMixVideoSize();
  Calls().ChangeSourceMode("0");
  EXPECT_EQ(Controls(), (Texts{"SetExtVideoSize(1, 2, 3, 4)", "SetCamVideoSize(0, 0, 1920, 1080)",
                               "SetExtVideoSize(124, 34, 1144, 858)", "SetCamVideoSize(0, 0, 1920, 1080)"}));
}

TEST_F(ACall, AnsweredAtAClosedWidgetIsTakenOnceTheWidgetIsThere) {
  m_host.Answers("IsUserWatchingTV", "1");
  Ring();
  Controls();
  Calls().AnswerWithVoice();
  Calls().AnswerWithVideo();
  EXPECT_EQ(Controls(), (Texts{"IsUserWatchingTV()", "StartWidgetWithParam(TVModeAudio, 1)",
                               "IsUserWatchingTV()", "StartWidgetWithParam(TVModeAudio, 1)"}));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::WIDGET_LAUNCH), 2);
  EXPECT_EQ(Calls().PendingAnswer(), 1);
  EXPECT_EQ(Requests(kAnswer, kMember), 0u);
  EXPECT_EQ(m_host.Execute("SetZeltoWidgetState", "1"), "0");
  EXPECT_EQ(Requests(kAnswer, kMember), 1u);
  EXPECT_EQ(Calls().PendingAnswer(), -1);
  EXPECT_EQ(Calls().GetCallType(), 1);
}

TEST_F(ACall, IsRefusedWhenABlockComesBeforeItsEvent) {
  {
    ServiceHostLock lock("the test");
    Ring();
    EXPECT_TRUE(Calls().BlockIncomingCall());
  }
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::INCOMING_CALL), 0);
  EXPECT_EQ(Requests(kEnd, kCall), 1u);
}

TEST_F(ACall, DoesNotFallToASecondOneNorLeaveItBehind) {
  m_memory.Set("*UI/Setting/VMforBusy", "1");
  Show(1);
  Ring();
  Deliver(kCallClass, kNewCall, Id(kOtherCall));
  Deliver(kCallClass, kChanged, Ongoing(kOtherCall, "0"));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CALL_ENDED), 0);
  EXPECT_FALSE(Exists(kOtherCall));
  Deliver(kCallClass, kNewCall, Id(kOtherCall));
  End();
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CALL_ENDED), 1);
  EXPECT_FALSE(Exists(kCall));
  Deliver(kCallClass, kChanged, Ongoing(kOtherCall, "0"));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CALL_ENDED), 2);
  EXPECT_FALSE(Exists(kOtherCall));
  Calls().UnblockIncomingCall(false);
  Ring();
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::INCOMING_CALL, 2));
}

TEST_F(ACall, IsOverForTheTelevisionWhenASignOutTakesItAway) {
  Show(2);
  Ring();
  Calls().AnswerWithVoice();
  Status(8);
  Controls();
  {
    ServiceHostLock lock("the test");
    m_root->FlushQuickLists();
  }
  EXPECT_THAT(Controls(), testing::Contains("StopCallWithTV()"));
  EXPECT_EQ(Calls().GetCallType(), -1);
}

TEST_F(ACall, ToAVoicemailUsesSoundOnlyAndStaysThroughTheGreeting) {
  m_runtime.reply("1941", ScriptedRuntime::pair("0", std::to_string(kCall)));
  EXPECT_FALSE(Calls().LeaveVoicemail("bob"));  // the runtime refuses
  m_runtime.reply("1930", ScriptedRuntime::pair("0", "1"));
  EXPECT_TRUE(Calls().LeaveVoicemail("bob"));
  Deliver(kVoicemailClass, kNewVoicemail, Id(kVoicemail));
  Controls();
  const auto voicemail = [&](int status) {
    Change(kVoicemailClass, kVoicemail, "1532", Token(VOICEMAIL_STATUS_MAP, status));
    return Controls();
  };
  EXPECT_EQ(voicemail(5), Texts{"StartCall()"});
  EXPECT_EQ(voicemail(5), Texts{});
  EXPECT_EQ(voicemail(6), Texts{});
  EXPECT_EQ(voicemail(13), Texts{"StopCallWithTV()"});
}

TEST_F(ACall, ReportsFailuresAndSpeakersByTheirNumbers) {
  Ring();
  const std::pair<const char*, int> failures[] = {{"10404 no such number", CZeltoManager::CALL_FAILURE_10404},
                                                  {"9407", CZeltoManager::CALL_FAILURE_9403},
                                                  {"no number", CZeltoManager::CALL_FAILURE_OTHER}};
  for (const auto& [text, event] : failures) {
    Member(CallMember::P_FAILURE_TEXT, text);
    EXPECT_TRUE(m_host.WaitFor(event)) << text;
  }
  const std::ptrdiff_t before = m_host.CountUntilNow();
  Member(CallMember::P_FAILURE_TEXT, "6102 busy");
  for (const char* level : {"3", "4", "9", "0"}) Member(CallMember::P_VOICE_LEVEL, level);
  EXPECT_EQ(m_host.CountUntilNow() - before, 3);  // began, ended, and the mark itself
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CALLMEMBER_SPEAKING, "1"));
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CALLMEMBER_SPEAKING, "0"));
  m_memory.SetProperty(kMember, Token(CALLMEMBER_PROPERTY_MAP, CallMember::P_FAILUREREASON), "1912");
  Status(4);
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CALLMEMBER_CALL_FAILED, "3"));
  EXPECT_FALSE(Exists(kMember));
}

// Every object dropped by the runtime at every point of a call, at once or while the engine waits for an
// answer.
class AStormOfChanges : public ACall {
 protected:
  struct Step {
    const char* classToken;
    unsigned id;
    const char* property;  // null: the object is new
    const char* value;
  };
  // clang-format off
  static constexpr Step kTour[] = {
      {kVoicemailClass, kVoicemail, nullptr, kNewVoicemail},
      {kCallClass,      kCall,      nullptr, kNewCall},
      {kVoicemailClass, kVoicemail, "1532",  "1994"},  // played
      {kMemberClass,    kMember,    "1769",  "1745"},  // takes and sends pictures
      {kVideoClass,     kSendVideo, "1532",  "1142"},  // may be sent
      {kMemberClass,    kMember,    "1532",  "1410"},  // in progress
      {kVideoClass,     kRecvVideo, "1532",  "1584"},  // comes
      {kMemberClass,    kMember,    "1013",  "9"},     // speaks
      {kCallClass,      kCall,      "1178",  "2"},     // members
      {kCallClass,      kCall,      "1245",  "1"},     // a conference
      {kVideoClass,     kRecvVideo, "1532",  "1779"},  // over
      {kMemberClass,    kMember,    "1477",  "1"},     // takes no pictures
      {kVoicemailClass, kVoicemail, "1532",  "1663"},  // played to its end
      {kMemberClass,    kMember,    "1532",  "1862"},  // failed
      {kCallClass,      kCall,      "1265",  "0"},     // over
  };
  // clang-format on
  // What the widget might ask at any time.
  void Ask() {
    for (const char* command : {"GetCallInfo", "IsInVideoCall", "AnswerWithVideo", "StartSendVideo",
                                "StopRecvVideo", "GetCallMemberAvatarPath"}) {
      m_host.Execute(command);
    }
    Calls().CallEnd(true);
    ServiceHostLock lock("the test");
    CZelhostHistoryManager::GetInstance()->StopPlayingVoicemail();
    CZelhostHistoryManager::GetInstance()->SetCurrentPlayingVoicemail(
        m_root->findObject<Voicemail>(kVoicemail));
  }
  void Take(const Step& step) {
    if (step.property == nullptr) return Deliver(step.classToken, step.value, Id(step.id));
    Change(step.classToken, step.id, step.property, step.value);
  }
  void Drop(unsigned id) { Deliver(kCallClass, kDeleted, Id(id)); }
  void DropAll() {
    for (const unsigned id : {kSendVideo, kVoicemail, kRecvVideo, kCall, kMember}) Drop(id);
  }
};

TEST_F(AStormOfChanges, IsSurvivedWhateverIsDroppedAndWhen) {
  m_memory.Set("Lib/Video/RecvPolicy", "callpolicy");
  Show(1);
  std::atomic<unsigned> dropped{0};  // with the next answer about members
  m_runtime.on(kMembers, [&](ScriptedRuntime& runtime, const ScriptedRequest& request) {
    if (const unsigned id = dropped.exchange(0)) runtime.sendEvent(kCallClass, kDeleted, Id(id));
    runtime.answer(request, ScriptedRuntime::pair("0", std::to_string(kMember)));
  });
  for (const unsigned victim : {kCall, kMember, kRecvVideo, kSendVideo, kVoicemail}) {
    for (std::size_t when = 0; when < 2 * std::size(kTour); ++when) {
      Calls().UnblockIncomingCall(false);
      for (std::size_t i = 0; i < std::size(kTour); ++i) {
        if (when == 2 * i) Drop(victim);
        if (when == 2 * i + 1) dropped = victim;
        Take(kTour[i]);
        Ask();
      }
      dropped = 0;
      DropAll();
      m_host.CountUntilNow();
      EXPECT_FALSE(Calls().IsCallInProgress()) << victim << " " << when;
      EXPECT_EQ(Calls().GetCallType(), -1) << victim << " " << when;
    }
  }
  DropAll();
  for (const unsigned id : {kSendVideo, kVoicemail, kRecvVideo, kCall, kMember}) EXPECT_FALSE(Exists(id));
  Calls().UnblockIncomingCall(false);
  const std::ptrdiff_t before = m_host.CountUntilNow(CZeltoManager::INCOMING_CALL);
  Ring();
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::INCOMING_CALL, before + 1));
  EXPECT_EQ(m_host.Execute("GetNumOfCallMembers"), "1");
}

TEST_F(ACall, FindsNoMemberInTheShadowOfItsOwnVideo) {
  m_runtime.reply("1513", ScriptedRuntime::pair("0", std::to_string(kMember)));
  m_runtime.reply("1781", ScriptedRuntime::pair("0", std::to_string(kCall)));
  Ring();
  Status(8);
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CALLMEMBER_INPROGRESS));
  EXPECT_TRUE(Calls().StartRecvVideo());
}

}  // namespace
