#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/RecordingManagers.h"
#include "tests/zelhost/FakeTelevision.h"

namespace {

// What a command with these parameters calls; its answer is known from the kind of the operation's.
struct Route {
  const char* command;
  const char* parameters[4];
  const char* called;
  const char* answer;
};

constexpr char kText[] = "a text from memory";

// clang-format off
constexpr Route kRoutes[] = {
    {"GetLoginState",                  {},                          "GetLoginState()",                                "42"},
    {"IsDefaultAccountAvailable",      {},                          "IsDefaultAccountAvailable()",                    "1"},
    {"IsDefaultAccountZeltoName",      {"ann"},                     "IsDefaultAccountZeltoName(\"ann\")",             "1"},
    {"GetLastLoginID",                 {"2"},                       "GetLastLoginID(2)",                              kText},
    {"IsAutoSignInSet",                {},                          "IsAutoSignInEnabled()",                          "1"},
    {"Login",                          {"ann", "secret", "7"},      "Login(\"ann\", \"secret\", true)",               "1"},
    {"Login",                          {},                          "Login(\"\", \"\", false)",                       "1"},
    {"AutoLogin",                      {"ann", "secret", "0"},      "Login(null, null, true)",                        "1"},
    {"Logout",                         {"-1"},                      "Logout(true)",                                   "1"},
    {"GetLogoutReason",                {},                          "GetLogoutReason()",                              "42"},
    {"Register",                       {"ann", "s", "a@b", "11"},   "Register(\"ann\", \"s\", \"a@b\", true, true)",  "1"},
    {"Register",                       {"ann", "s", "a@b", "10"},   "Register(\"ann\", \"s\", \"a@b\", true, false)", "1"},
    {"Register",                       {"ann", "s", "a@b", "01"},   "Register(\"ann\", \"s\", \"a@b\", false, true)", "1"},
    {"Register",                       {"ann", "s", "a@b", "111"},  "Register(\"ann\", \"s\", \"a@b\", false, false)","1"},
    {"ValidatePasswd",                 {"ann", "s"},                "ValidatePasswd(\"ann\", \"s\")",                 "42"},
    {"ValidatePasswdWithoutID",        {"s"},                       "ValidatePasswd(\"\", \"s\")",                    "42"},
    {"IsValidEmail",                   {"a@b"},                     "IsValidEmail(\"a@b\")",                          "1"},
    {"GetSuggestedZeltoNameList",      {},                          "GetSuggestedZeltoNameList()",                    kText},
    {"NormalizeIdentityForNewAccount", {"Ann"},                     "NormalizeIdentityForNewAccount(\"Ann\")",        kText},
    {"IsAccountAvailable",             {"ann"},                     "IsAccountAvailable(\"ann\")",                    "1"},
    {"GetAvailableZeltoname",          {"ann"},                     "GetAvailableZeltoname(\"ann\")",                 kText},
    {"GetAccountInfo",                 {"16"},                      "GetAccountInfo(16)",                             kText},
    {"GetAccountCapability",           {"3"},                       "GetAccountCapability(3)",                        kText},
    {"GetAccountCapabilityExpireDate", {"3"},                       "GetAccountCapabilityExpireDate(3)",              kText},
    {"SetProp",                        {"16", "fine"},              "SetProp(16, \"fine\")",                          "1"},
    {"SetAvailability",                {"3"},                       "SetAvailability(3)",                             "1"},
    {"ChangePassword",                 {"old", "new"},              "ChangePassword(\"old\", \"new\")",               "1"},
    {"SetCallAllowPolicy",             {"0"},                       "SetServerSideProp(36, \"2\")",                   "1"},
    {"SetCallAllowPolicy",             {"1"},                       "SetServerSideProp(36, \"1\")",                   "1"},
    {"SetChatAllowPolicy",             {""},                        "SetServerSideProp(35, \"2\")",                   "1"},
    {"SetCallForwardNumbers",          {"+1 2"},                    "SetServerSideProp(34, \"+1 2\")",                "1"},

    {"GetNumOfContacts",               {},                          "GetNumOfContacts()",                             "42"},
    {"GetContactPropWithIndex",        {"4", "21"},                 "GetContactInfo(4, 21)",                          kText},
    {"GetContactPropWithName",         {"4", "21"},                 "GetContactInfo(\"4\", 21)",                      kText},
    {"GetContactList",                 {"ann", "5", "2"},           "GetContactInfo(\"ann\", 5, 2)",                  kText},
    {"GetBlockedContactList",          {},                          "GetBlockedContactList()",                        kText},
    {"HasVoiceMailCapability",         {"ann"},                     "HasCapability(\"ann\", 1, false)",               "1"},
    {"GetIndexOfContact",              {"ann"},                     "GetIndexOfContact(\"ann\")",                     "42"},
    {"Authorize",                      {"ann", "1"},                "Authorize(\"ann\", false, false)",               "1"},
    {"RejectAndBlock",                 {"ann", "1"},                "Authorize(\"ann\", true, true)",                 "1"},
    {"RejectAndBlock",                 {"ann", "0"},                "Authorize(\"ann\", true, false)",                "1"},
    {"SearchNewContact",               {"ann"},                     "SearchNewContact(\"ann\")",                      "1"},
    {"SearchContactProfile",           {"ann"},                     "SearchContactProfile(\"ann\")",                  "1"},
    {"GetSearchedContactList",         {},                          "GetSearchedContactList()",                       kText},
    {"GetSearchedProfileInfo",         {"ann"},                     "GetProfileInfo(null)",                           kText},
    {"AddContact",                     {"ann", "hello"},            "AddContact(\"ann\", \"hello\")",                 "1"},
    {"AddContact",                     {"ann", ""},                 "AddContact(\"ann\", null)",                      "1"},
    {"AddContact",                     {"", "hello"},               "AddContact(\"\", null)",                         "1"},
    {"AddZeltoOutContact",             {"", "Ann"},                 "",                                               "0"},
    {"AddZeltoOutContact",             {"+12"},                     "AddZeltoOutContact(\"+12\", null)",              "1"},
    {"AddZeltoOutContact",             {"+12", "Ann"},              "AddZeltoOutContact(\"+12\", \"Ann\")",           "1"},
    {"IsBlocked",                      {"ann"},                     "IsBlocked(\"ann\")",                             "1"},
    {"IsMyBuddy",                      {"ann"},                     "IsMyBuddy(\"ann\")",                             "1"},
    {"Rename",                         {"ann", "Ann"},              "Rename(\"ann\", \"Ann\")",                       "1"},
    {"Block",                          {"ann", "1"},                "Block(\"ann\", true)",                           "1"},
    {"Unblock",                        {"ann"},                     "Unblock(\"ann\")",                               "1"},
    {"Remove",                         {"ann"},                     "Remove(\"ann\")",                                "1"},
    {"GetContactListWithoutCallMember",{"1", "9"},                  "GetContactListWithoutCallMember(1, 9)",          kText},
    {"GetContactListWithoutUnauthorizedContacts", {"1", "9"},       "GetContactListWithoutUnauthorizedContacts(1, 9)", kText},
    {"GetContactListWithoutCallMemberAndUnauthorizedContacts", {"1", "9"}, "GetContactListWithoutCallMemberAndUnauthorizedContacts(1, 9)", kText},
    {"GetNumOfContactsWithoutUnauthorizedContacts", {},             "GetNumOfContactsWithoutUnauthorizedContacts()",  "42"},
    {"SetAssignedPhoneNumber",         {"ann", "2", "home", "12"},  "SetAssignedPhoneNumber(\"ann\", 2, \"home\", \"12\")", "1"},
    {"GetOnlineContacts",              {},                          "GetOnlineContacts()",                            kText},
    {"GetZeltoNameWithDisplayName",    {"Ann"},                     "GetZeltoNameWithDisplayName(\"Ann\")",           kText},

    {"GetNumOfChatList",               {},                          "GetNumOfChatList()",                             "42"},
    {"GetTotalNumOfUnReadChats",       {},                          "GetTotalNumOfUnReadChats()",                     "42"},
    {"GetTotalNumOfUnReadMessages",    {},                          "GetTotalNumOfUnReadMessages()",                  "42"},
    {"GetChatListWithChatName",        {"1", "2", "3"},             "GetChatList(\"1\", 2, 3)",                       kText},
    {"GetChatListWithIndex",           {"1", "2", "3"},             "GetChatList(1, 2, 3)",                           kText},
    {"GetChatProperty",                {"1", "21"},                 "GetChatProperty(1, 21)",                         kText},
    {"GetCurrentChatProperty",         {"21"},                      "GetCurrentChatProperty(21)",                     kText},
    {"LeaveChat",                      {},                          "LeaveChat(\"\")",                                "1"},
    {"OpenChatWithChatName",           {"#a"},                      "OpenChatWithChatName(\"#a\")",                   "1"},
    {"OpenChatWithContact",            {"ann"},                     "OpenChatWithContact(\"ann\")",                   "1"},
    {"CloseChat",                      {"#a"},                      "CloseChat(\"#a\")",                              "1"},
    {"CloseChat",                      {""},                        "CloseChat(null)",                                "1"},
    {"GetMessages",                    {},                          "GetMessages(null)",                              kText},
    {"GetMessages",                    {"#a"},                      "GetMessages(\"#a\")",                            kText},
    {"GetMessages",                    {"1", "5"},                  "GetMessages(1, 5, null)",                        kText},
    {"GetMessages",                    {"1", "5", "#a"},            "GetMessages(1, 5, \"#a\")",                      kText},
    {"GetMessages",                    {"", "5"},                   "",                                               ""},
    {"GetMessages",                    {"1", "", "#a"},             "",                                               ""},
    {"GetNumOfMessages",               {"#a"},                      "GetNumOfMessages(null)",                         "42"},
    {"SendMessage",                    {"hello"},                   "SendMessage(\"hello\")",                         "1"},
    {"SendMessage",                    {"#a", "hello"},             "SendMessage(\"#a\", \"hello\")",                 "1"},
    {"SendMessage",                    {"", "hello"},               "",                                               ""},

    {"GetNumOfHistories",              {},                          "GetNumOfHistories()",                            "42"},
    {"GetHistoryListIncludingTimestamp", {"1", "2", "3"},           "GetHistoryInfoIncludingTimestamp(1, 2, 3)",      kText},
    {"GetHistoryPropWithIndex",        {"1", "2"},                  "GetHistoryInfo(1, 2)",                           kText},
    {"GetHistoryIndexWithTimestamp",   {"12"},                      "GetHistoryIndexWithTimestamp(\"12\")",           "42"},
    {"GetZeltoOutHistoryList",         {},                          "GetZeltoOutHistoryList()",                       kText},
    {"DeleteHistory",                  {"3"},                       "DeleteHistory(3)",                               "1"},
    {"PlayVoicemail",                  {"3"},                       "PlayVoicemail(3)",                               "1"},
    {"StopVoicemail",                  {"3"},                       "StopVoicemail(3)",                               "1"},

    {"NormalizeIdentity",              {"Ann"},                     "NormalizeIdentity(\"Ann\")",                     kText},
    {"IsEmergencyCall",                {"112"},                     "IsEmergencyCall(\"112\")",                       "1"},
    {"CreateCall",                     {"ann", "1"},                "CreateCall(\"ann\", 1)",                         "1"},
    {"RejectCall",                     {},                          "Reject()",                                       "1"},
    {"GetCallMemberInfo",              {"0", "9"},                  "GetCallMemberInfo(0, 9)",                        kText},
    {"CallEnd",                        {"1"},                       "CallEnd(true)",                                  "1"},
    {"AnswerWithVideo",                {},                          "AnswerWithVideo()",                              "1"},
    {"AnswerWithVoice",                {},                          "AnswerWithVoice()",                              "1"},
    {"IsInCall",                       {},                          "IsInCalling()",                                  "1"},
    {"IsInVideoCall",                  {},                          "GetCallType()",                                  "0"},
    {"GetCallType",                    {},                          "GetCallType()",                                  "42"},
    {"BlockIncomingCall",              {},                          "BlockIncomingCall()",                            "1"},
    {"UnblockIncomingCall",            {"1"},                       "UnblockIncomingCall(true)",                      "1"},
    {"IsSendingVideo",                 {},                          "IsSendingVideo()",                               "1"},
    {"IsConference",                   {},                          "IsConference()",                                 "1"},
    {"IsCallMemberVideoAvailable",     {},                          "IsCallMemberVideoAvailable()",                   "1"},
    {"GetCallMemberIdentity",          {""},                        "GetCallMemberIdentity(0)",                       kText},
    {"GetCallMemberDisplayName",       {"1"},                       "GetCallMemberDisplayName(1)",                    kText},
    {"GetCallMemberAvatarPath",        {"1"},                       "GetCallMemberAvatarPath(1)",                     kText},
    {"GetCallMemberStatus",            {"1"},                       "GetCallMemberStatus(1)",                         kText},
    {"GetCallMemberOnlineState",       {"1"},                       "GetCallMemberOnlineState(1)",                    kText},
    {"StartSendVideo",                 {},                          "StartSendVideo()",                               "1"},
    {"StopSendVideo",                  {},                          "StopSendVideo()",                                "1"},
    {"StartRecvVideo",                 {},                          "StartRecvVideo()",                               "1"},
    {"StopRecvVideo",                  {},                          "StopRecvVideo()",                                "1"},
    {"SendDTMF",                       {"5"},                       "SendDTMF(5)",                                    "1"},
    {"Hold",                           {"1"},                       "Hold()",                                         "1"},
    {"Hold",                           {"0"},                       "Resume()",                                       "1"},
    {"MuteMic",                        {"1"},                       "Mute(true)",                                     "1"},
    {"MuteMic",                        {"0"},                       "Mute(false)",                                    "1"},
    {"LeaveVoicemail",                 {"ann"},                     "LeaveVoicemail(\"ann\")",                        "1"},
    {"CancelVoicemail",                {},                          "CancelVoicemail()",                              "1"},
    {"GetNumOfCallMembers",            {},                          "GetNumOfCallMembers()",                          "42"},
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
  bool WasCalled(const std::string& operation) const {
    const auto& calls = recording::TheNotes().calls;
    return std::find(calls.begin(), calls.end(), operation) != calls.end();
  }
  using Controls = std::vector<std::string>;

  FakeTelevision m_television;
};

TEST_F(CommandsInACall, ReachTheirOperationWithTheirArguments) {
  for (const Route& route : kRoutes) {
    const auto& p = route.parameters;
    SCOPED_TRACE(route.command);
    EXPECT_EQ(Run(route.command, p[0], p[1], p[2], p[3]), route.answer);
    const auto& calls = recording::TheNotes().calls;
    EXPECT_EQ(calls.empty() ? "" : calls.back(), route.called);
  }
}

TEST_F(CommandsInACall, AnswerNothingForANullText) {
  recording::TheNotes().text = nullptr;
  EXPECT_EQ(Run("GetAccountInfo", "1"), "");
  recording::TheNotes().number = -1;
  EXPECT_EQ(Run("GetCallType"), "-1");
  recording::TheNotes().truth = false;
  EXPECT_EQ(Run("RejectCall"), "0");
}

TEST_F(CommandsInACall, AreAboutAVideoCallOnlyWhenItIsOne) {
  recording::TheNotes().number = 1;
  EXPECT_EQ(Run("IsInVideoCall"), "1");
  recording::TheNotes().truth = false;
  EXPECT_EQ(Run("IsInVideoCall"), "0");
}

TEST_F(CommandsInACall, PassHostControlsThrough) {
  m_television.Answers("CloseExtAudio", "closed");
  EXPECT_EQ(Run("CloseExtAudio", "1"), "closed");
  EXPECT_EQ(m_television.TakeControls(), Controls{"CloseExtAudio()"});
  m_television.Answers("DisconnectEmp", "gone");
  EXPECT_EQ(Run("DisconnectZeltoEmp"), "gone");
  m_television.Answers("StartPIGMode", "beside");
  EXPECT_EQ(Run("GoToTVMode"), "beside");
  EXPECT_EQ(Run("SetAutoStart", "1"), "");
  EXPECT_EQ(m_television.TakeControls(), Controls{"SetAutoStart(1)"});
  EXPECT_EQ(Run("SetRemoteInputType", ""), "");
  EXPECT_EQ(m_television.TakeControls(), Controls{"SetRemoteInputType()"});
  EXPECT_EQ(Run("SaveCameraLightMode", "3"), "");
  EXPECT_EQ(m_television.TakeControls(), Controls{"SetCameraLightMode(3)"});
}

TEST_F(CommandsInACall, StopNothingWhileTheWidgetIsClosed) {
  EXPECT_EQ(Run("Stop"), "");
  EXPECT_EQ(m_television.TakeControls(), Controls{});
}

TEST_F(CommandsInACall, StopEndsTheCallOnATelevisionThatDoesOneThing) {
  Run("SetZeltoWidgetState", "1");
  EXPECT_EQ(Run("Stop"), "1");
  EXPECT_TRUE(WasCalled("CallEnd(true)"));
  EXPECT_EQ(m_television.TakeControls(), Controls{"IsZeltoSupportMultitasking()"});
}

TEST_F(CommandsInACall, StopKeepsTheCallOnATelevisionThatDoesSeveralThings) {
  m_television.Answers("IsZeltoSupportMultitasking", "1");
  Run("SetZeltoWidgetState", "1");
  Run("SetTVMixVolume", "30");
  EXPECT_EQ(Run("Stop"), "1");
  EXPECT_FALSE(WasCalled("CallEnd(true)"));
  EXPECT_TRUE(WasCalled("StopRecvVideo()") && WasCalled("StopSendVideo()"));
  EXPECT_EQ(m_television.TakeControls(),
            (Controls{"IsZeltoSupportMultitasking()", "CloseExtVideo()", "ReleaseMixVideo()", "StopPIGMode()",
                      "SetMainMixAudioVolume(100)"}));
  Run("SetZeltoWidgetState", "2");
  EXPECT_EQ(Run("Stop"), "1");
  EXPECT_EQ(m_television.TakeControls(),
            (Controls{"IsZeltoSupportMultitasking()", "CloseExtVideo()", "ReleaseMixVideo()"}));
}

TEST_F(CommandsInACall, SetSourceModeEntersTVModeWithTheViewThatWasSet) {
  EXPECT_EQ(Run("SetTvViewRect", "10", "20", "-300", "99999999999"), "1");
  EXPECT_EQ(Run("SetSourceMode", "1"), "1");
  EXPECT_EQ(m_television.TakeControls(),
            (Controls{"DiscardExtVideoRenderCommand(1)", "CloseExtVideo()", "StopPreview()",
                      "RegisterAfterSourceChangeCallback(ResumeTVModeVideo)", "SupportDoubleTalk()",
                      "SetMainMixAudioVolume(0)", "StartPIGMode(10, 20, -300, 2147483647)"}));
  EXPECT_EQ(Run("SetSourceMode", "0"), "1");
  EXPECT_EQ(m_television.TakeControls(),
            (Controls{"DiscardExtVideoRenderCommand(1)", "StopPreview()", "CloseExtVideo()",
                      "RegisterAfterSourceChangeCallback(ResumeNormalModeVideo)", "StopPIGMode()"}));
}

TEST_F(CommandsInACall, ResumeShowsTheFarEndAgain) {
  EXPECT_EQ(Run("ResumeTVModeVideo"), "1");
  EXPECT_TRUE(WasCalled("StartRecvVideo()"));
  EXPECT_EQ(m_television.TakeControls(),
            (Controls{"SupportDoubleTalk()", "SetMainMixAudioVolume(0)", "DiscardExtVideoRenderCommand(0)",
                      "OpenExtVideo()", "StartExtVideo()"}));
  EXPECT_TRUE(m_television.WaitForEvent(430));
  EXPECT_EQ(Run("ResumeNormalModeVideo"), "1");
  EXPECT_EQ(m_television.TakeControls(),
            (Controls{"SetMainMixAudioVolume(100)", "DiscardExtVideoRenderCommand(0)", "OpenExtVideo()",
                      "StartExtVideo()"}));
  EXPECT_TRUE(m_television.WaitForEvent(431));
}

TEST_F(CommandsInACall, ResumeShowsNothingThatIsNotReceived) {
  recording::TheNotes().truth = false;
  Run("ResumeTVModeVideo");
  EXPECT_FALSE(WasCalled("StartRecvVideo()"));
  EXPECT_EQ(m_television.TakeControls(),
            (Controls{"SupportDoubleTalk()", "SetMainMixAudioVolume(0)", "DiscardExtVideoRenderCommand(0)"}));
}

TEST_F(CommandsInACall, KeepVolumesBetween0And100) {
  Run("SetSpeakerVolume", "-5");
  EXPECT_EQ(m_television.TakeControls(), Controls{"SetSpeakerVolume(0)"});
  Run("SetCallMixVolume", "150");
  EXPECT_EQ(m_television.TakeControls(), Controls{"SetSubMixAudioVolume(100)"});
  m_television.Answers("GetMainMixAudioVolume", "37");
  EXPECT_EQ(Run("GetTVMixVolume"), "37");
  EXPECT_EQ(Run("GetSpeakerVolume"), "0");
}

TEST_F(CommandsInACall, RaiseTheirEvents) {
  EXPECT_EQ(Run("OSDTimerExpired", "2"), "");
  EXPECT_TRUE(m_television.WaitForEvent(405));
  EXPECT_EQ(Run("OSDTimerExpired", "2147483647"), "");
  EXPECT_EQ(Run("HideConnectingWnd"), "1");
  EXPECT_TRUE(m_television.WaitForEvent(417));
  EXPECT_EQ(Run("StartOutgoingRing"), "1");
  EXPECT_TRUE(m_television.WaitForEvent(8));
}

TEST_F(CommandsInACall, StartTheWidgetWithAParameterThatItCanAskFor) {
  m_television.Answers("StartWidgetWithParam", "started");
  EXPECT_EQ(Run("CheckMissedCall"), "started");
  EXPECT_EQ(m_television.TakeControls(), Controls{"StartWidgetWithParam(MissedCallHistory)"});
  EXPECT_TRUE(m_television.WaitForEvent(427));
  EXPECT_EQ(Run("GetRunWidgetParam"), "MissedCallHistory");
  EXPECT_FALSE(CZeltoManager::IsWidgetStarted());
  Run("StartWidget");
  EXPECT_TRUE(CZeltoManager::IsWidgetStarted());
}

}  // namespace
