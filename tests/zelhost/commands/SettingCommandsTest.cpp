#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "tests/apiwrapper/MemoryTransport.h"
#include "tests/support/ScriptedRuntime.h"
#include "tests/zelhost/FakeTelevision.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CZelto.h"

namespace {

// A runtime that keeps settings and knows nothing else.
class SettingCommands : public testing::Test {
 protected:
  SettingCommands() {
    m_transport.onPush = [this](const std::string& message) { Receive(ScriptedRuntime::parse(message)); };
    zelhost::ServiceHostLock lock("test");
    m_root = std::make_unique<CZelto>(&m_transport, false, ZEString());
    g_lpZelto = m_root.get();
  }
  ~SettingCommands() override {
    zelhost::ServiceHostLock lock("test");
    g_lpZelto = nullptr;
    m_root.reset();
  }

  void Receive(const ScriptedRequest& request) {
    constexpr char kKey[] = "1887", kValue[] = "1667", kResult[] = "0";
    const auto key = request.arguments.find(kKey);
    if (key == request.arguments.end()) return;
    const bool isRead = request.method == "1401" || request.method == "1420";
    const bool isWrite = request.method == "1549" || request.method == "1953";
    if (isWrite) m_stored[key->second] = request.arguments.at(kValue);
    if (isRead) {
      m_transport.incoming.push_back(request.id + "b " +
                                     ScriptedRuntime::pair(kResult, m_stored[key->second]));
    }
  }

  std::string Execute(const char* command, const char* p1 = nullptr, const char* p2 = nullptr) {
    return m_television.Execute(command, p1, p2);
  }

  FakeTelevision m_television;
  MemoryTransport m_transport;
  std::unique_ptr<CZelto> m_root;
  std::map<std::string, std::string> m_stored;
};

struct Row {
  const char* set;
  const char* get;
  const char* key;
  const char* parameter;
  const char* stored;
};

// clang-format off
constexpr Row kRows[] = {
    {"SetLoginMode",             "GetLoginMode",             "*UI/Setting/LOGIN_MODE",               "2",    "2"},
    {"SetMicVolume",             "GetMicVolume",             "*UI/Setting/MIC_VOLUME",               "-3",   "-3"},
    {"SetCallMixVolume",         "GetCallMixVolume",         "*UI/Setting/SPK_VOLUME",               "150",  "100"},
    {"SetAutoFocus",             "GetAutoFocus",             "*UI/Setting/AUTO_FOCUS",               "1",    "1"},
    {"SaveCameraLightMode",      "GetCameraLightMode",       "*UI/Setting/CAMERA_LIGHT_MODE",        "3",    "3"},
    {"SetCallForward",           "GetCallForward",           "Lib/Call/ApplyCF",                     "7",    "1"},
    {"SetCallForwardTimer",      "GetCallForwardTimer",      "Lib/Call/NoAnswerTimeout",             "30",   "30"},
    {"SetVoicemailForward",      "GetVoicemailForward",      "Lib/Call/SendToVM",                    "7",    "1"},
    {"SetVoicemailForwardTimer", "GetVoicemailForwardTimer", "Lib/Call/NoAnswerTimeout",             "45",   "45"},
    {"SetVoicemailForReject",    "GetVoicemailForReject",    "*UI/Setting/VMforRejectIncomingCall",  "7",    "1"},
    {"SetVoicemailInBusy",       "GetVoicemailInBusy",       "*UI/Setting/VMforBusy",                "7",    "1"},
    {"SetAutoVolumeControl",     "GetAutoVolumeControl",     "*UI/Setting/AutoMicSetting",           "7",    "1"},
    {"SetNotificationEnable",    "IsNotificationEnabled",    "*UI/Setting/NOTIFICATION_POPUP",       "7",    "7"},
    {"SetCameraCheckDisable",    "GetCameraCheckDisable",    "Lib/Account/CAMERA_CHECK_DISABLE",     "7",    "7"},
    {"SaveDBAutoTracking",       "GetDBAutoTracking",        "*UI/Setting/AUTO_TRACKING",            "7",    "7"},
    {"SaveDBZoom",               "GetDBZoom",                "*UI/Setting/ZOOM",                     "7",    "7"},
    {"SaveDBPan",                "GetDBPan",                 "*UI/Setting/PAN",                      "%n \"", "%n \""},
    {"SaveDBTilt",               "GetDBTilt",                "*UI/Setting/TILT",                     "a\\b", "a\\b"},
};
// clang-format on

TEST_F(SettingCommands, StoreUnderTheirKeyAndReadBack) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.set);
    m_stored.clear();
    const bool tellsHost =
        row.set == std::string("SetAutoFocus") || row.set == std::string("SaveCameraLightMode");
    EXPECT_EQ(Execute(row.set, row.parameter), tellsHost ? "" : "1");
    EXPECT_EQ(m_stored[row.key], row.stored);
    EXPECT_EQ(Execute(row.get), row.stored);
  }
}

TEST_F(SettingCommands, StoreTheAutomaticSignInForTheAccount) {
  EXPECT_EQ(Execute("SetAutoSignIn", "1"), "1");
  EXPECT_EQ(m_stored["*UI/Login/AutoLoginZeltoStart"], "1");
}

TEST_F(SettingCommands, StoreNothingForAnEmptySwitch) {
  EXPECT_EQ(Execute("SetNotificationEnable", ""), "0");
  EXPECT_EQ(Execute("SetCameraCheckDisable"), "0");
  EXPECT_TRUE(m_stored.empty());
}

TEST_F(SettingCommands, KeepTheReceivePolicyAsAWord) {
  constexpr char kKey[] = "Lib/Video/RecvPolicy";
  EXPECT_EQ(Execute("SetAutoVideoReceive", "0", "1"), "1");
  EXPECT_EQ(m_stored[kKey], "noone");
  EXPECT_EQ(Execute("GetAutoVideoReceive"), "0");
  Execute("SetAutoVideoReceive", "1", "0");
  EXPECT_EQ(m_stored[kKey], "contacts");
  EXPECT_EQ(Execute("GetAutoVideoReceive"), "1");
  Execute("SetAutoVideoReceive", "1", "1");
  EXPECT_EQ(m_stored[kKey], "callpolicy");
  EXPECT_EQ(Execute("GetAutoVideoReceive"), "2");
  m_stored[kKey] = "something else";
  EXPECT_EQ(Execute("GetAutoVideoReceive"), "2");
}

TEST_F(SettingCommands, KeepTheAdvertPolicyAsAWord) {
  constexpr char kKey[] = "Lib/Video/AdvertPolicy";
  Execute("SetVideoAdvert", "1");
  EXPECT_EQ(m_stored[kKey], "contacts");
  EXPECT_EQ(Execute("GetVideoAdvert"), "1");
  Execute("SetVideoAdvert", "0");
  EXPECT_EQ(m_stored[kKey], "noone");
  EXPECT_EQ(Execute("GetVideoAdvert"), "0");
  m_stored[kKey] = "callpolicy";
  EXPECT_EQ(Execute("GetVideoAdvert"), "0");
}

TEST_F(SettingCommands, MixTheProgrammeAsStoredWhereDoubleTalkWorks) {
  m_stored["*UI/Setting/TV_MIX_RATIO"] = "40";
  m_television.Answers("SupportDoubleTalk", "1");
  m_television.TakeControls();
  Execute("ResumeTVModeVideo");
  const auto controls = m_television.TakeControls();
  ASSERT_GE(controls.size(), 2u);
  EXPECT_EQ(controls[1], "SetMainMixAudioVolume(40)");
}

}  // namespace
