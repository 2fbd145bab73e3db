#include <gtest/gtest.h>

#include <cstdio>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "Common/Log.h"
#include "Common/Platform.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/zelhost/FakeTelevision.h"
#include "zelhost/commands/CommandCall.h"

namespace {

const char* const kRows[] = {
#define COMMAND(name, ...) name,
#include "zelhost/commands/Commands.def"
#undef COMMAND
};

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

  FakeTelevision& Television() { return *m_television; }
  std::string Execute(const std::string& command, const char* p1 = nullptr, const char* p2 = nullptr,
                      const char* p3 = nullptr, const char* p4 = nullptr) {
    return m_television->Execute(command, p1, p2, p3, p4);
  }

  test::DeviceRoot m_root;
  test::SurvivalCheck m_survival;
  std::optional<FakeTelevision> m_television;
};

TEST_F(AnEngineBeforeLoad, AnswersEveryCommandWhateverItsArguments) {
  const std::string large(1 << 20, 'x');
  const std::string numbers(1 << 20, '9');
  const char* const arguments[] = {nullptr,       "",
                                   "%n%s",        "-1",
                                   "-2147483648", "99999999999999999999999",
                                   "2147483647",  large.c_str(),
                                   "\xFF\xC0",    numbers.c_str(),
                                   "\x03\x02",    "file:///mtd_rwcommon/../../etc"};
  for (const char* command : kRows) {
    for (const char* argument : arguments) {
      const std::string answer = Execute(command, argument, argument, argument, argument);
      EXPECT_LE(answer.size(), large.size()) << command;
      zelto::g_debugLevel = 0;  // one of the commands sets it
    }
  }
  EXPECT_EQ(Execute("GetZeltoState"), "3");
}

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
      "SaveDBAutoTracking", "SaveDBZoom", "SaveDBPan", "SaveDBTilt", "SetDebugLevel",
      // whatever the state
      "SetMediaSource", "GetAvailableZeltoname"};
  std::set<std::string> claimed;
  for (const char* command : kRows) {
    if (Execute(command) == "1") claimed.insert(command);
    zelto::g_debugLevel = 0;
  }
  EXPECT_EQ(claimed, done);
}

TEST_F(AnEngineBeforeLoad, AnswersQuestionsAsForNothingThere) {
  const std::vector<std::pair<const char*, const char*>> answers = {{"GetCallType", "-1"},
                                                                    {"GetIndexOfContact", "-1"},
                                                                    {"GetNumOfContacts", "0"},
                                                                    {"GetHistoryIndexWithTimestamp", "-1"},
                                                                    {"GetISOCountryPrefix", "0"},
                                                                    {"GetContactPropWithIndex", ""},
                                                                    {"IsInCall", "0"},
                                                                    {"GetCallInfo", ""},
                                                                    {"GetAutoVideoReceive", "2"},
                                                                    {"GetVideoAdvert", "0"},
                                                                    {"GetDBPan", ""},
                                                                    {"GetMicVolume", "0"},
                                                                    {"BlockIncomingCall", "0"},
                                                                    {"StartOSDTimer", "0"},
                                                                    {"BackupWidgetData", "0"},
                                                                    {"GetLoginState", "0"},
                                                                    {"GetAccountInfo", ""},
                                                                    {"StopSendMyVideo", ""},
                                                                    {"GetLocalNumber", ""},
                                                                    {"SaveSnapShot", "0"},
                                                                    {"Load", "0"}};
  for (const auto& [command, answer] : answers) EXPECT_EQ(Execute(command, "1"), answer) << command;
}

TEST_F(AnEngineBeforeLoad, KeepsAnAnswerForFourFurtherCommands) {
  IMoIPEngine* engine = Television().Engine();
  Television().Answers("GetTVModel", "first");
  const char* first = engine->Execute("GetTVModel", nullptr, nullptr, nullptr, nullptr);
  EXPECT_STREQ(first, "first");
  const char* second = engine->Execute("no such command", nullptr, nullptr, nullptr, nullptr);
  const char* third = engine->Execute("GetZeltoState", nullptr, nullptr, nullptr, nullptr);
  const char* fourth = engine->Execute("GetCallType", nullptr, nullptr, nullptr, nullptr);
  EXPECT_STREQ(first, "first");
  const char* fifth = engine->Execute("SetMediaSource", nullptr, nullptr, nullptr, nullptr);
  EXPECT_EQ(first, fifth);
  EXPECT_STREQ(fifth, "1");
  EXPECT_STREQ(second, "");
  EXPECT_STREQ(third, "3");
  EXPECT_STREQ(fourth, "-1");
}

TEST_F(AnEngineBeforeLoad, TakesAnAnswerThatIsAboutToBeReplacedAsParameter) {
  IMoIPEngine* engine = Television().Engine();
  Television().Answers("GetTVModel", "a model whose name is kept on the heap");
  const char* model = engine->Execute("GetTVModel", nullptr, nullptr, nullptr, nullptr);
  for (int i = 0; i < 3; ++i) engine->Execute("GetZeltoState", nullptr, nullptr, nullptr, nullptr);
  Television().TakeControls();
  engine->Execute("SetRemoteInputType", model, nullptr, nullptr, nullptr);
  EXPECT_EQ(Television().TakeControls(),
            std::vector<std::string>{"SetRemoteInputType(a model whose name is kept on the heap)"});
}

TEST_F(AnEngineBeforeLoad, CountsANullNameAsUnknown) {
  EXPECT_STREQ(Television().Engine()->Execute(nullptr, nullptr, nullptr, nullptr, nullptr), "");
  EXPECT_EQ(Execute("load"), "");
}

TEST_F(AnEngineBeforeLoad, LogsCommandTimeAndAnswerAtTheirLevels) {
  class AtNoon : public zelto::Platform {
    std::int64_t WallClock() override { return 1'700'000'000'000'042; }
  } clock;
  zelto::Platform* before = zelto::SetSystem(&clock);
  testing::internal::CaptureStdout();
  zelto::g_debugLevel = 5;
  Execute("GetCallType", "%n%s", nullptr, "3", "");
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
      const std::string place = std::to_string(i);
      for (int round = 0; round < 200; ++round) {
        IMoIPEngine* engine = Television().Engine();
        engine->Execute("SetTvViewRect", place.c_str(), place.c_str(), place.c_str(), place.c_str());
        engine->Execute("SetSourceMode", "1", nullptr, nullptr, nullptr);
        engine->Execute("SetZeltoWidgetState", place.c_str(), nullptr, nullptr, nullptr);
        engine->Execute("Stop", nullptr, nullptr, nullptr, nullptr);
      }
    });
  }
  for (auto& thread : threads) thread.join();
  // No rectangle may be put together from two threads' numbers.
  for (const auto& control : Television().TakeControls()) {
    if (control.rfind("StartPIGMode(", 0) != 0) continue;
    const std::string x = control.substr(13, 1);
    EXPECT_EQ(control, "StartPIGMode(" + x + ", " + x + ", " + x + ", " + x + ")");
  }
}

TEST(ANumberInACommand, IsReadAsStrtolDoesAndBroughtIntoRange) {
  EXPECT_EQ(zelhost::ToInt(""), 0);
  EXPECT_EQ(zelhost::ToInt("abc"), 0);
  EXPECT_EQ(zelhost::ToInt(" \t+12abc"), 12);
  EXPECT_EQ(zelhost::ToInt("-7"), -7);
  EXPECT_EQ(zelhost::ToInt("0x10"), 0);
  EXPECT_EQ(zelhost::ToInt("2147483648"), 2147483647);
  EXPECT_EQ(zelhost::ToInt("-99999999999999999999"), -2147483647 - 1);
}

}  // namespace
