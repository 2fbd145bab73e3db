#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <thread>

#include "Common/DecimalText.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SurvivalCheck.h"

namespace {

// An engine whose service was never loaded, on a device without files.
class AnEngineBeforeLoad : public testing::Test {
 protected:
  AnEngineBeforeLoad() {
    zelto::g_debugLevel = 0;
    m_television.emplace();
  }
  ~AnEngineBeforeLoad() override {
    m_television.reset();
    zelto::g_debugLevel = 1;
  }

  std::string Execute(const char* command, const char* p1 = nullptr) {
    return m_television->Execute(command, p1);
  }
  // The answer itself, which the engine owns.
  const char* Answer(const char* command, const char* p1 = nullptr) {
    return m_television->Engine()->Execute(command, p1, nullptr, nullptr, nullptr);
  }

  test::DeviceRoot m_root;
  test::SurvivalCheck m_survival;
  std::optional<test::RecordingHost> m_television;
};

// Everything else would need a runtime, a call or a list, of which there is none.
TEST_F(AnEngineBeforeLoad, ClaimsSuccessOnlyForWhatItDoes) {
  const std::set<std::string> done = {
      // answered "1" once they have run
      "SetAutoSignIn", "SetCallAllowPolicy", "SetChatAllowPolicy", "SetCallForwardNumbers", "SetLoginMode",
      "HideConnectingWnd", "ShowConnectingWnd", "WidgetHandleIncomingCall", "StartIncomingRing",
      "StartOutgoingRing", "StopRing", "SetExtVideoDisplaySize", "SetDefaultRecvRect", "SetNormalRecvRect",
      "SetCamVideoDisplaySize", "SetDefaultPreviewRect", "SetNormalPreviewRect", "SetCallingPreviewRect",
      "SetTvRecvRect", "SetTvPreviewRect", "SetTvViewRect", "SetSourceMode", "ResumeTVModeVideo",
      "ResumeNormalModeVideo", "SetSpeakerVolume", "SetCallMixVolume", "SetTVMixVolume", "SetMicVolume",
      "EnableTxVideoDump", "EnableTxAudioDump", "SendKeyFrameRequest", "SetAutoVideoReceive",
      "SetVideoAdvert", "SetCallForward", "SetCallForwardTimer", "SetVoicemailForward",
      "SetVoicemailForwardTimer", "SetVoicemailForReject", "SetVoicemailInBusy", "SetAutoVolumeControl",
      "SaveDBAutoTracking", "SaveDBZoom", "SaveDBPan", "SaveDBTilt", "SetDebugLevel", "SetZeltoWidgetState",
      "StartOSDTimer", "RestartOSDTimer", "StopOSDTimer",
      // whatever the state
      "SetMediaSource", "GetAvailableZeltoname"};
  std::set<std::string> claimed;
  constexpr const char* kNames[] = {
#define COMMAND(name, ...) name,
#include "zelhost/commands/Commands.def"
#undef COMMAND
  };
  for (const char* command : kNames) {
    if (Execute(command) == "1") claimed.insert(command);
    zelto::g_debugLevel = 0;
  }
  EXPECT_EQ(claimed, done);
}

TEST_F(AnEngineBeforeLoad, AnswersQuestionsAsForNothingThere) {
  const std::map<std::string, std::vector<const char*>> answers = {
      {"-1", {"GetCallType", "GetIndexOfContact", "GetHistoryIndexWithTimestamp"}},
      {"0",
       {"GetNumOfContacts", "GetISOCountryPrefix", "IsInCall", "GetVideoAdvert", "GetMicVolume",
        "BlockIncomingCall", "BackupWidgetData", "GetLoginState", "SaveSnapShot", "Load"}},
      {"2", {"GetAutoVideoReceive"}},
      {"3", {"GetZeltoState"}},
      {"",
       {"GetContactPropWithIndex", "GetCallInfo", "GetDBPan", "GetAccountInfo", "StopSendMyVideo",
        "GetLocalNumber", "load"}}};
  for (const auto& [answer, commands] : answers) {
    for (const char* command : commands) EXPECT_EQ(Execute(command, "1"), answer) << command;
  }
  EXPECT_STREQ(m_television->Engine()->Execute(nullptr, nullptr, nullptr, nullptr, nullptr), "");
}

TEST_F(AnEngineBeforeLoad, KeepsAnAnswerForFourFurtherCommands) {
  m_television->Answers("GetTVModel", "first");
  const char* first = Answer("GetTVModel");
  const char* second = Answer("no such command");
  const char* third = Answer("GetZeltoState");
  const char* fourth = Answer("GetCallType");
  EXPECT_STREQ(first, "first");
  EXPECT_EQ(first, Answer("SetMediaSource"));
  EXPECT_STREQ(first, "1");
  EXPECT_STREQ(second, "");
  EXPECT_STREQ(third, "3");
  EXPECT_STREQ(fourth, "-1");
}

TEST_F(AnEngineBeforeLoad, TakesAnAnswerThatIsAboutToBeReplacedAsParameter) {
  m_television->Answers("GetTVModel", "a model whose name is kept on the heap");
  const char* model = Answer("GetTVModel");
  for (int i = 0; i < 3; ++i) Answer("GetZeltoState");
  m_television->TakeControls();
  Answer("SetRemoteInputType", model);
  EXPECT_EQ(m_television->TakeControls(),
            std::vector<std::string>{"SetRemoteInputType(a model whose name is kept on the heap)"});
}

TEST_F(AnEngineBeforeLoad, LogsCommandTimeAndAnswerAtTheirLevels) {
  class AtNoon : public zelto::Platform {
    std::int64_t WallClock() override { return 1'700'000'000'000'042; }
  } clock;
  zelto::Platform* before = zelto::SetSystem(&clock);
  testing::internal::CaptureStdout();
  zelto::g_debugLevel = 5;
  m_television->Execute("GetCallType", "%n%s", nullptr, "3", "");
  zelto::g_debugLevel = 0;
  std::fflush(stdout);
  const std::string log = testing::internal::GetCapturedStdout();
  zelto::SetSystem(before);
  EXPECT_NE(log.find("[ZELTO_DEBUG]CZelhostZeltoManager::Execute, cmd = GetCallType(%n%s, , 3, )\n"),
            std::string::npos)
      << log;
  EXPECT_NE(log.find("\033[02;31m[1700000000.000042]\033[0m"), std::string::npos) << log;
  EXPECT_NE(log.find("[ZELTO_DEBUG]Execute: returns -1\n"), std::string::npos) << log;
}

TEST_F(AnEngineBeforeLoad, RunsCommandsOfSeveralThreadsOneByOne) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([this, i] {
      const std::string number = std::to_string(i);
      const char* place = number.c_str();
      for (int round = 0; round < 200; ++round) {
        m_television->Engine()->Execute("SetTvViewRect", place, place, place, place);
        Answer("SetSourceMode", "1");
        Answer("SetZeltoWidgetState", place);
        Answer("Stop");
      }
    });
  }
  for (auto& thread : threads) thread.join();
  // No rectangle may be put together from two threads' numbers.
  for (const auto& control : m_television->TakeControls()) {
    if (control.rfind("StartPIGMode(", 0) != 0) continue;
    const std::string x = control.substr(13, 1);
    EXPECT_EQ(control, "StartPIGMode(" + x + ", " + x + ", " + x + ", " + x + ")");
  }
}

TEST(ANumberInACommand, IsReadAsStrtolDoesAndBroughtIntoRange) {
  const std::map<std::string, int> numbers = {{"", 0},
                                              {"abc", 0},
                                              {" \t+12abc", 12},
                                              {"-7", -7},
                                              {"0x10", 0},
                                              {"2147483648", 2147483647},
                                              {"-99999999999999999999", -2147483647 - 1}};
  for (const auto& [text, number] : numbers) EXPECT_EQ(zelto::DecimalValue(text.c_str()), number) << text;
}

}  // namespace
