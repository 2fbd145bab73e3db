#include "zelhost/ZelhostLocalSetting.h"

#include "tests/zelhost/RootFixture.h"
#include "zelhost/ZelhostIPCManager.h"

namespace {

class TheSettings : public test::RootFixture {
 protected:
  // The five remembered names, most recent first.
  std::string Names() {
    std::string names;
    for (int slot = 1; slot <= 5; ++slot)
      names += m_memory.Setting("*UI/Login/LoggedInID" + std::to_string(slot)) + " ";
    return names;
  }
  // Writes are one-way: an answered read after them shows that they have arrived.
  static void Arrive() { CZelhostLocalSetting::GetIntValue(kSettingInitialized); }
  void Save(const char* name) {
    CZelhostLocalSetting::SaveLoggedInID(name);
    Arrive();
  }
};

TEST_F(TheSettings, ReadBackWhatWasWrittenUnderTheirKeys) {
  CZelhostLocalSetting::SetIntValue(kSettingMicVolume, -7);
  CZelhostLocalSetting::SetStrValue(kSettingPan, "left, \"or\" right");
  EXPECT_EQ(CZelhostLocalSetting::GetIntValue(kSettingMicVolume), -7);
  EXPECT_EQ(CZelhostLocalSetting::GetStrValue(kSettingPan).unescape(), "left, \"or\" right");
  EXPECT_EQ(m_memory.Setting("*UI/Setting/MIC_VOLUME"), "-7");
}

TEST_F(TheSettings, AreFilledOnceWithTheTelevisionsDefaults) {
  EXPECT_FALSE(CZelhostLocalSetting::IsInitialized());
  CZelhostLocalSetting::Initialize();
  EXPECT_TRUE(CZelhostLocalSetting::IsInitialized());
  EXPECT_EQ(m_memory.Setting("*Lib/Account/MaxKeep"), "5");
  EXPECT_EQ(m_memory.Setting("*UI/Setting/SPK_VOLUME"), "50");
  EXPECT_EQ(m_memory.Setting("*UI/Setting/TILT"), "0");
  EXPECT_EQ(m_memory.Setting("Lib/Call/NoAnswerTimeout"), "");  // the account's, not the television's
  EXPECT_EQ(
      m_runtime.messages().size() - m_runtime.requests("1986").size() - m_runtime.requests("1401").size(),
      19u);
  EXPECT_TRUE(CZelhostIPCManager::GetInstance()->GetAutoMic());
}

TEST_F(TheSettings, AreFilledForEachAccountOnlyWhenItHasNoneYet) {
  EXPECT_EQ(CZelhostLocalSetting::CheckInitPersonalData(), 1);
  Arrive();
  EXPECT_EQ(m_memory.Setting("Lib/Video/RecvPolicy"), "contacts");
  EXPECT_EQ(m_memory.Setting("Lib/Call/NoAnswerTimeout"), "120");
  EXPECT_EQ(m_memory.Setting("*UI/Setting/CAMERA_LIGHT_MODE"), "2");
  m_memory.Set("Lib/Call/NoAnswerTimeout", "15");
  EXPECT_EQ(CZelhostLocalSetting::CheckInitPersonalData(), 1);
  Arrive();
  EXPECT_EQ(m_memory.Setting("Lib/Call/NoAnswerTimeout"), "15");
}

TEST_F(TheSettings, SwitchTheAutomaticMicrophone) {
  CZelhostLocalSetting::SetIntValue(kSettingAutoMic, -1);
  EXPECT_TRUE(CZelhostIPCManager::GetInstance()->GetAutoMic());
  CZelhostLocalSetting::SetIntValue(kSettingAutoMic, 0);
  EXPECT_FALSE(CZelhostIPCManager::GetInstance()->GetAutoMic());
}

TEST_F(TheSettings, RememberTheFiveMostRecentNames) {
  for (const char* name : {"e", "d", "c", "b", "a"}) Save(name);
  EXPECT_EQ(Names(), "a b c d e ");
  Save("a");
  EXPECT_EQ(Names(), "a b c d e ");
  Save("c");
  EXPECT_EQ(Names(), "c a b d e ");
  Save("f");
  EXPECT_EQ(Names(), "f c a b d ");
  EXPECT_EQ(m_memory.Setting("*UI/Login/LastLoggedInID"), "f");
}

TEST_F(TheSettings, AnswerNothingForIndexesOutsideTheTable) {
  for (const int index : {-1, 33, 1 << 30, -(1 << 30)}) {
    EXPECT_EQ(CZelhostLocalSetting::GetIntValue(index), 0);
    EXPECT_TRUE(CZelhostLocalSetting::GetStrValue(index).isNull());
    CZelhostLocalSetting::SetIntValue(index, 1);
    CZelhostLocalSetting::SetStrValue(index, "x");
  }
  EXPECT_EQ(m_runtime.messages().size(), 1u);  // the start
}

TEST(TheSettingsWithoutARuntime, ReadEmptyAndDropWhatIsWritten) {
  CZelhostLocalSetting::SetIntValue(kSettingMicVolume, 5);
  CZelhostLocalSetting::SaveLoggedInID("ann");
  CZelhostLocalSetting::Initialize();
  EXPECT_EQ(CZelhostLocalSetting::GetIntValue(kSettingMicVolume), 0);
  EXPECT_TRUE(CZelhostLocalSetting::GetStrValue(kSettingLastLoggedInId).isNull());
  EXPECT_FALSE(CZelhostLocalSetting::IsInitialized());
  EXPECT_EQ(CZelhostLocalSetting::PersonalInitialize(), 0);
}

}  // namespace
