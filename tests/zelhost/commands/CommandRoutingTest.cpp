#include <gtest/gtest.h>

#include "tests/support/RecordingHost.h"
#include "tests/support/RecordingManagers.h"

namespace {

// What commands with these parameters call: where it begins with a parenthesis, the operation of the
// command's own name. Their answer is known from the kind of the operation's.
struct Route {
  std::vector<std::string> commands;
  const char* parameters[4];
  std::string called;
  const char* answer;
};

constexpr char kText[] = "a text from memory";

// clang-format off
const Route kRoutes[] = {
    {{"GetLoginState", "GetLogoutReason", "GetNumOfContacts", "GetNumOfContactsWithoutUnauthorizedContacts",
      "GetNumOfChatList", "GetTotalNumOfUnReadChats", "GetTotalNumOfUnReadMessages", "GetNumOfHistories",
      "GetCallType", "GetNumOfCallMembers"},                {},                         "()", "42"},
    {{"IsDefaultAccountAvailable", "AnswerWithVideo", "AnswerWithVoice", "BlockIncomingCall", "IsSendingVideo",
      "IsConference", "IsCallMemberVideoAvailable", "StartSendVideo", "StopSendVideo", "StartRecvVideo",
      "StopRecvVideo", "CancelVoicemail"},                  {},                         "()", "1"},
    {{"GetSuggestedZeltoNameList", "GetBlockedContactList", "GetSearchedContactList", "GetOnlineContacts",
      "GetZeltoOutHistoryList"},                            {},                         "()", kText},
    {{"SetAvailability", "DeleteHistory", "PlayVoicemail", "StopVoicemail", "SendDTMF"},
                                                            {"3"},                      "(3)", "1"},
    {{"GetLastLoginID", "GetAccountInfo", "GetAccountCapability", "GetAccountCapabilityExpireDate",
      "GetCurrentChatProperty", "GetCallMemberIdentity", "GetCallMemberDisplayName", "GetCallMemberAvatarPath",
      "GetCallMemberStatus", "GetCallMemberOnlineState"},   {"3"},                      "(3)", kText},
    {{"GetCallMemberIdentity"},                             {""},                       "(0)", kText},
    {{"IsDefaultAccountZeltoName", "IsAccountAvailable", "IsValidEmail", "SearchNewContact", "LeaveVoicemail",
      "SearchContactProfile", "IsBlocked", "IsMyBuddy", "Unblock", "Remove", "OpenChatWithContact",
      "OpenChatWithChatName", "LeaveChat", "CloseChat", "SendMessage", "IsEmergencyCall"},
                                                            {"ann"},                    "(\"ann\")", "1"},
    {{"GetIndexOfContact", "GetHistoryIndexWithTimestamp"}, {"12"},                     "(\"12\")", "42"},
    {{"NormalizeIdentityForNewAccount", "GetZeltoNameWithDisplayName", "NormalizeIdentity", "GetMessages",
      "GetAvailableZeltoname"},                             {"Ann"},                    "(\"Ann\")", kText},
    {{"Logout", "CallEnd", "UnblockIncomingCall"},          {"-1"},                     "(true)", "1"},
    {{"GetContactListWithoutCallMember", "GetContactListWithoutUnauthorizedContacts", "GetChatProperty",
      "GetContactListWithoutCallMemberAndUnauthorizedContacts", "GetCallMemberInfo"},
                                                            {"1", "9"},                 "(1, 9)", kText},
    {{"ChangePassword", "AddContact", "AddZeltoOutContact", "Rename", "SendMessage"},
                                                            {"a", "b"},                 "(\"a\", \"b\")", "1"},

    {{"Login"},                            {"ann", "secret", "7"},      "(\"ann\", \"secret\", true)", "1"},
    {{"Login"},                            {},                          "(\"\", \"\", false)", "1"},
    {{"AutoLogin"},                        {"ann", "secret", "0"},      "Login(null, null, true)", "1"},
    {{"IsAutoSignInSet"},                  {},                          "IsAutoSignInEnabled()", "1"},
    {{"Register"},                         {"ann", "s", "a@b", "11"},   "(\"ann\", \"s\", \"a@b\", true, true)", "1"},
    {{"Register"},                         {"ann", "s", "a@b", "10"},   "(\"ann\", \"s\", \"a@b\", true, false)", "1"},
    {{"Register"},                         {"ann", "s", "a@b", "01"},   "(\"ann\", \"s\", \"a@b\", false, true)", "1"},
    {{"Register"},                         {"ann", "s", "a@b", "111"},  "(\"ann\", \"s\", \"a@b\", false, false)", "1"},
    {{"ValidatePasswd"},                   {"ann", "s"},                "(\"ann\", \"s\")", "42"},
    {{"ValidatePasswdWithoutID"},          {"s"},                       "ValidatePasswd(\"\", \"s\")", "42"},
    {{"SetProp"},                          {"16", "fine"},              "(16, \"fine\")", "1"},
    {{"SetCallAllowPolicy"},               {"0"},                       "SetServerSideProp(36, \"2\")", "1"},
    {{"SetCallAllowPolicy"},               {"1"},                       "SetServerSideProp(36, \"1\")", "1"},
    {{"SetChatAllowPolicy"},               {""},                        "SetServerSideProp(35, \"2\")", "1"},
    {{"SetCallForwardNumbers"},            {"+1 2"},                    "SetServerSideProp(34, \"+1 2\")", "1"},

    {{"GetContactPropWithIndex"},          {"4", "21"},                 "GetContactInfo(4, 21)", kText},
    {{"GetContactPropWithName"},           {"4", "21"},                 "GetContactInfo(\"4\", 21)", kText},
    {{"GetContactList"},                   {"ann", "5", "2"},           "GetContactInfo(\"ann\", 5, 2)", kText},
    {{"HasVoiceMailCapability"},           {"ann"},                     "HasCapability(\"ann\", 1, false)", "1"},
    {{"Authorize"},                        {"ann", "1"},                "(\"ann\", false, false)", "1"},
    {{"RejectAndBlock"},                   {"ann", "1"},                "Authorize(\"ann\", true, true)", "1"},
    {{"RejectAndBlock"},                   {"ann", "0"},                "Authorize(\"ann\", true, false)", "1"},
    {{"Block"},                            {"ann", "1"},                "(\"ann\", true)", "1"},
    {{"GetSearchedProfileInfo"},           {"ann"},                     "GetProfileInfo(null)", kText},
    {{"AddContact"},                       {"", "hello"},               "(\"\", null)", "1"},
    {{"AddContact", "AddZeltoOutContact"}, {"ann", ""},                 "(\"ann\", null)", "1"},
    {{"AddZeltoOutContact"},               {"", "Ann"},                 "", "0"},
    {{"SetAssignedPhoneNumber"},           {"ann", "2", "home", "12"},  "(\"ann\", 2, \"home\", \"12\")", "1"},

    {{"GetChatListWithChatName"},          {"1", "2", "3"},             "GetChatList(\"1\", 2, 3)", kText},
    {{"GetChatListWithIndex"},             {"1", "2", "3"},             "GetChatList(1, 2, 3)", kText},
    {{"LeaveChat"},                        {},                          "(\"\")", "1"},
    {{"CloseChat"},                        {""},                        "(null)", "1"},
    {{"GetMessages"},                      {},                          "(null)", kText},
    {{"GetMessages"},                      {"1", "5"},                  "(1, 5, null)", kText},
    {{"GetMessages"},                      {"1", "5", "#a"},            "(1, 5, \"#a\")", kText},
    {{"GetMessages"},                      {"", "5"},                   "", ""},
    {{"GetMessages"},                      {"1", "", "#a"},             "", ""},
    {{"GetNumOfMessages"},                 {"#a"},                      "(null)", "42"},
    {{"SendMessage"},                      {"", "hello"},               "", ""},
    {{"GetHistoryListIncludingTimestamp"}, {"1", "2", "3"},             "GetHistoryInfoIncludingTimestamp(1, 2, 3)", kText},
    {{"GetHistoryPropWithIndex"},          {"1", "2"},                  "GetHistoryInfo(1, 2)", kText},

    {{"CreateCall"},                       {"ann", "1"},                "(\"ann\", 1)", "1"},
    {{"RejectCall"},                       {},                          "Reject()", "1"},
    {{"IsInCall"},                         {},                          "IsInCalling()", "1"},
    {{"IsInVideoCall"},                    {},                          "GetCallType()", "0"},
    {{"Hold"},                             {"1"},                       "()", "1"},
    {{"Hold"},                             {"0"},                       "Resume()", "1"},
    {{"MuteMic"},                          {"1"},                       "Mute(true)", "1"},
    {{"MuteMic"},                          {"0"},                       "Mute(false)", "1"},
};
// clang-format on

// The managers answer from memory that all is well and a call is up.
class CommandsInACall : public testing::Test {
 protected:
  CommandsInACall() {
    recording::TheNotes() = {};
    recording::TheNotes().noting = true;
  }

  std::string Run(const std::string& command, const char* p1 = nullptr, const char* p2 = nullptr,
                  const char* p3 = nullptr, const char* p4 = nullptr) {
    m_television.TakeControls();
    recording::TheNotes().calls.clear();
    return m_television.Execute(command, p1, p2, p3, p4);
  }
  static int Calls(const std::string& operation) {
    const auto& calls = recording::TheNotes().calls;
    return static_cast<int>(std::count(calls.begin(), calls.end(), operation));
  }
  // What the last command told the television.
  std::string Told() {
    std::string controls;
    for (const auto& control : m_television.TakeControls()) controls += control + " ";
    return controls;
  }

  test::RecordingHost m_television;
};

TEST_F(CommandsInACall, ReachTheirOperationWithTheirArguments) {
  for (const Route& route : kRoutes) {
    for (const std::string& command : route.commands) {
      SCOPED_TRACE(command);
      const auto& p = route.parameters;
      EXPECT_EQ(Run(command, p[0], p[1], p[2], p[3]), route.answer);
      const auto& calls = recording::TheNotes().calls;
      EXPECT_EQ(calls.empty() ? "" : calls.back(), (route.called[0] == '(' ? command : "") + route.called);
    }
  }
}

TEST_F(CommandsInACall, AnswerWhatTheirOperationAnswers) {
  recording::TheNotes().text = nullptr;
  EXPECT_EQ(Run("GetAccountInfo", "1"), "");
  recording::TheNotes().number = -1;
  EXPECT_EQ(Run("GetCallType"), "-1");
  recording::TheNotes().number = 1;
  EXPECT_EQ(Run("IsInVideoCall"), "1");
  recording::TheNotes().truth = false;
  EXPECT_EQ(Run("IsInVideoCall"), "0");
  EXPECT_EQ(Run("RejectCall"), "0");
}

TEST_F(CommandsInACall, TellTheTelevisionAndAnswerWhatItAnswers) {
  struct Case {
    const char* command;
    const char* parameter;
    const char* control;
    const char* told;
  };
  // clang-format off
  constexpr Case kCases[] = {
      {"CloseExtAudio",       "1",     "CloseExtAudio",      "CloseExtAudio() "},
      {"DisconnectZeltoEmp",  nullptr, "DisconnectEmp",      "DisconnectEmp() "},
      {"GoToTVMode",          nullptr, "StartPIGMode",       "StartPIGMode() "},
      {"SetAutoStart",        "1",     "SetAutoStart",       "SetAutoStart(1) "},
      {"SetRemoteInputType",  "",      "SetRemoteInputType", "SetRemoteInputType() "},
      {"SaveCameraLightMode", "3",     "SetCameraLightMode", "SetCameraLightMode(3) "},
  };
  // clang-format on
  for (const Case& c : kCases) {
    EXPECT_EQ(Run(c.command, c.parameter), "");
    EXPECT_EQ(Told(), c.told);
    m_television.Answers(c.control, "as it says");
    EXPECT_EQ(Run(c.command, c.parameter), "as it says");
  }
}

TEST_F(CommandsInACall, StopEndsTheCallOnATelevisionThatDoesOneThing) {
  EXPECT_EQ(Run("Stop"), "");  // the widget is closed
  EXPECT_EQ(Told(), "");
  Run("SetZeltoWidgetState", "1");
  EXPECT_EQ(Run("Stop"), "1");
  EXPECT_EQ(Calls("CallEnd(true)"), 1);
  EXPECT_EQ(Told(), "IsZeltoSupportMultitasking() ");
}

TEST_F(CommandsInACall, StopKeepsTheCallOnATelevisionThatDoesSeveralThings) {
  m_television.Answers("IsZeltoSupportMultitasking", "1");
  Run("SetZeltoWidgetState", "1");
  Run("SetTVMixVolume", "30");
  EXPECT_EQ(Run("Stop"), "1");
  EXPECT_EQ(Calls("CallEnd(true)"), 0);
  EXPECT_EQ(Calls("StopRecvVideo()") + Calls("StopSendVideo()"), 2);
  EXPECT_EQ(Told(),
            "IsZeltoSupportMultitasking() CloseExtVideo() ReleaseMixVideo() StopPIGMode() "
            "SetMainMixAudioVolume(100) ");
  Run("SetZeltoWidgetState", "2");
  EXPECT_EQ(Run("Stop"), "1");
  EXPECT_EQ(Told(), "IsZeltoSupportMultitasking() CloseExtVideo() ReleaseMixVideo() ");
}

TEST_F(CommandsInACall, SetSourceModeEntersTVModeWithTheViewThatWasSet) {
  EXPECT_EQ(Run("SetTvViewRect", "10", "20", "-300", "99999999999"), "1");
  EXPECT_EQ(Run("SetSourceMode", "1"), "1");
  EXPECT_EQ(Told(),
            "DiscardExtVideoRenderCommand(1) CloseExtVideo() StopPreview() "
            "RegisterAfterSourceChangeCallback(ResumeTVModeVideo) SupportDoubleTalk() "
            "SetMainMixAudioVolume(0) StartPIGMode(10, 20, -300, 2147483647) ");
  EXPECT_EQ(Run("SetSourceMode", "0"), "1");
  EXPECT_EQ(Told(),
            "DiscardExtVideoRenderCommand(1) StopPreview() CloseExtVideo() "
            "RegisterAfterSourceChangeCallback(ResumeNormalModeVideo) StopPIGMode() ");
}

TEST_F(CommandsInACall, ResumeShowsTheFarEndAgainWhenItIsReceived) {
  const std::string inTVMode =
      "SupportDoubleTalk() SetMainMixAudioVolume(0) SetExtVideoSize(0, 0, 1920, 1080) "
      "DiscardExtVideoRenderCommand(0) ";
  EXPECT_EQ(Run("ResumeTVModeVideo"), "1");
  EXPECT_EQ(Calls("StartRecvVideo()"), 1);
  EXPECT_EQ(Told(), inTVMode + "OpenExtVideo() StartExtVideo() ");
  EXPECT_TRUE(m_television.WaitFor(430));
  EXPECT_EQ(Run("ResumeNormalModeVideo"), "1");
  EXPECT_EQ(Told(),
            "SetMainMixAudioVolume(100) SetExtVideoSize(124, 34, 1144, 858) DiscardExtVideoRenderCommand(0) "
            "OpenExtVideo() StartExtVideo() StartPreview(1438, 634, 320, 240) ");
  EXPECT_TRUE(m_television.WaitFor(431));
  recording::TheNotes().truth = false;
  Run("ResumeTVModeVideo");
  EXPECT_EQ(Calls("StartRecvVideo()"), 0);
  EXPECT_EQ(Told(), inTVMode);
}

TEST_F(CommandsInACall, KeepVolumesBetween0And100) {
  Run("SetSpeakerVolume", "-5");
  EXPECT_EQ(Told(), "SetSpeakerVolume(0) ");
  Run("SetCallMixVolume", "150");
  EXPECT_EQ(Told(), "SetSubMixAudioVolume(100) ");
  m_television.Answers("GetMainMixAudioVolume", "37");
  EXPECT_EQ(Run("GetTVMixVolume"), "37");
  EXPECT_EQ(Run("GetSpeakerVolume"), "0");
}

TEST_F(CommandsInACall, RaiseTheirEvents) {
  EXPECT_EQ(Run("OSDTimerExpired", "2147483647"), "");
  EXPECT_EQ(Run("OSDTimerExpired", "2"), "");
  EXPECT_EQ(Run("HideConnectingWnd"), "1");
  EXPECT_EQ(Run("StartOutgoingRing"), "1");
  for (const int event : {405, 417, 8}) EXPECT_TRUE(m_television.WaitFor(event)) << event;
}

TEST_F(CommandsInACall, StartTheWidgetWithAParameterThatItCanAskFor) {
  m_television.Answers("StartWidgetWithParam", "started");
  EXPECT_EQ(Run("CheckMissedCall"), "started");
  EXPECT_EQ(Told(), "StartWidgetWithParam(MissedCallHistory) ");
  EXPECT_TRUE(m_television.WaitFor(427));
  EXPECT_EQ(Run("GetRunWidgetParam"), "MissedCallHistory");
  EXPECT_FALSE(CZeltoManager::IsWidgetStarted());
  Run("StartWidget");
  EXPECT_TRUE(CZeltoManager::IsWidgetStarted());
}

}  // namespace
