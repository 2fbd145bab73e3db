#include "tests/zelhost/RootFixture.h"

namespace {

// With a runtime that keeps settings and knows nothing else.
class SettingCommands : public test::RootFixture {
 protected:
  std::string Execute(const char* command, const char* p1 = nullptr, const char* p2 = nullptr) {
    return m_host.Execute(command, p1, p2);
  }
};

TEST_F(SettingCommands, StoreUnderTheirKeyAndReadBack) {
  struct Row {
    const char* set;
    const char* get;
    const char* key;
    const char* parameter;
    const char* stored;
    const char* answer;
  };
  // clang-format off
  constexpr Row kRows[] = {
      {"SetLoginMode",             "GetLoginMode",             "*UI/Setting/LOGIN_MODE",              "2",    "2",    "1"},
      {"SetMicVolume",             "GetMicVolume",             "*UI/Setting/MIC_VOLUME",              "-3",   "-3",   "1"},
      {"SetCallMixVolume",         "GetCallMixVolume",         "*UI/Setting/SPK_VOLUME",              "150",  "100",  "1"},
      {"SetAutoFocus",             "GetAutoFocus",             "*UI/Setting/AUTO_FOCUS",              "1",    "1",    ""},
      {"SaveCameraLightMode",      "GetCameraLightMode",       "*UI/Setting/CAMERA_LIGHT_MODE",       "3",    "3",    ""},
      {"SetCallForward",           "GetCallForward",           "Lib/Call/ApplyCF",                    "7",    "1",    "1"},
      {"SetCallForwardTimer",      "GetCallForwardTimer",      "Lib/Call/NoAnswerTimeout",            "30",   "30",   "1"},
      {"SetVoicemailForward",      "GetVoicemailForward",      "Lib/Call/SendToVM",                   "7",    "1",    "1"},
      {"SetVoicemailForwardTimer", "GetVoicemailForwardTimer", "Lib/Call/NoAnswerTimeout",            "45",   "45",   "1"},
      {"SetVoicemailForReject",    "GetVoicemailForReject",    "*UI/Setting/VMforRejectIncomingCall", "7",    "1",    "1"},
      {"SetVoicemailInBusy",       "GetVoicemailInBusy",       "*UI/Setting/VMforBusy",               "7",    "1",    "1"},
      {"SetAutoVolumeControl",     "GetAutoVolumeControl",     "*UI/Setting/AutoMicSetting",          "7",    "1",    "1"},
      {"SetNotificationEnable",    "IsNotificationEnabled",    "*UI/Setting/NOTIFICATION_POPUP",      "7",    "7",    "1"},
      {"SetCameraCheckDisable",    "GetCameraCheckDisable",    "Lib/Account/CAMERA_CHECK_DISABLE",    "7",    "7",    "1"},
      {"SaveDBAutoTracking",       "GetDBAutoTracking",        "*UI/Setting/AUTO_TRACKING",           "7",    "7",    "1"},
      {"SaveDBZoom",               "GetDBZoom",                "*UI/Setting/ZOOM",                    "7",    "7",    "1"},
      {"SaveDBPan",                "GetDBPan",                 "*UI/Setting/PAN",                     "%n \"", "%n \"", "1"},
      {"SaveDBTilt",               "GetDBTilt",                "*UI/Setting/TILT",                    "a\\b", "a\\b", "1"},
  };
  // clang-format on
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.set);
    m_memory.Set(row.key, "");
    EXPECT_EQ(Execute(row.set, row.parameter), row.answer);
    EXPECT_EQ(Setting(row.key), row.stored);
    EXPECT_EQ(Execute(row.get), row.stored);
  }
}

TEST_F(SettingCommands, StoreTheAutomaticSignInForTheAccount) {
  EXPECT_EQ(Execute("SetAutoSignIn", "1"), "1");
  EXPECT_EQ(Setting("*UI/Login/AutoLoginZeltoStart"), "1");
}

TEST_F(SettingCommands, StoreNothingForAnEmptySwitch) {
  EXPECT_EQ(Execute("SetNotificationEnable", ""), "0");
  EXPECT_EQ(Execute("SetCameraCheckDisable"), "0");
  EXPECT_EQ(m_runtime.messages().size(), 1u);  // the start
}

TEST_F(SettingCommands, KeepThePoliciesAsWords) {
  struct Case {
    const char* set;
    const char* p1;
    const char* p2;
    const char* get;
    const char* key;
    const char* word;
    const char* read;
  };
  static constexpr char kReceive[] = "Lib/Video/RecvPolicy";
  static constexpr char kAdvert[] = "Lib/Video/AdvertPolicy";
  // clang-format off
  constexpr Case kCases[] = {
      {"SetAutoVideoReceive", "0", "1",     "GetAutoVideoReceive", kReceive, "noone",      "0"},
      {"SetAutoVideoReceive", "1", "0",     "GetAutoVideoReceive", kReceive, "contacts",   "1"},
      {"SetAutoVideoReceive", "1", "1",     "GetAutoVideoReceive", kReceive, "callpolicy", "2"},
      {"SetVideoAdvert",      "1", nullptr, "GetVideoAdvert",      kAdvert,  "contacts",   "1"},
      {"SetVideoAdvert",      "0", nullptr, "GetVideoAdvert",      kAdvert,  "noone",      "0"},
  };
  // clang-format on
  for (const Case& c : kCases) {
    EXPECT_EQ(Execute(c.set, c.p1, c.p2), "1");
    EXPECT_EQ(Setting(c.key), c.word);
    EXPECT_EQ(Execute(c.get), c.read);
  }
  m_memory.Set(kReceive, "something else");
  EXPECT_EQ(Execute("GetAutoVideoReceive"), "2");
  m_memory.Set(kAdvert, "callpolicy");
  EXPECT_EQ(Execute("GetVideoAdvert"), "0");
}

TEST_F(SettingCommands, MixTheProgrammeAsStoredWhereDoubleTalkWorks) {
  m_memory.Set("*UI/Setting/TV_MIX_RATIO", "40");
  m_host.Answers("SupportDoubleTalk", "1");
  m_host.TakeControls();
  Execute("ResumeTVModeVideo");
  const auto controls = m_host.TakeControls();
  ASSERT_GE(controls.size(), 2u);
  EXPECT_EQ(controls[1], "SetMainMixAudioVolume(40)");
}

}  // namespace
