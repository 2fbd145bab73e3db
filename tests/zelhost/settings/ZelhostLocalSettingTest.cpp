#include "zelhost/settings/ZelhostLocalSetting.h"

#include "tests/zelhost/RootFixture.h"
#include "zelhost/media/ZelhostIPCManager.h"

namespace {

class TheSettings : public test::RootFixture {
 protected:
  // The five remembered names afterwards, most recent first.
  std::string Remember(const char* name) {
    CZelhostLocalSetting::SaveLoggedInID(name);
    std::string names;
    for (int slot = 1; slot <= 5; ++slot)
      names += Setting("*UI/Login/LoggedInID" + std::to_string(slot)) + " ";
    return names;
  }
};

TEST_F(TheSettings, AreFilledOnceWithTheTelevisionsDefaults) {
  EXPECT_FALSE(CZelhostLocalSetting::IsInitialized());
  CZelhostLocalSetting::Initialize();
  EXPECT_TRUE(CZelhostLocalSetting::IsInitialized());
  EXPECT_EQ(Setting("*Lib/Account/MaxKeep"), "5");
  EXPECT_EQ(Setting("*UI/Setting/SPK_VOLUME"), "50");
  EXPECT_EQ(Setting("*UI/Setting/TILT"), "0");
  EXPECT_EQ(Setting("Lib/Call/NoAnswerTimeout"), "");  // the account's, not the television's
  EXPECT_EQ(
      m_runtime.messages().size() - m_runtime.requests("1986").size() - m_runtime.requests("1401").size(),
      19u);
  // The automatic microphone follows its setting.
  EXPECT_TRUE(CZelhostIPCManager::GetInstance()->GetAutoMic());
  CZelhostLocalSetting::SetIntValue(kSettingAutoMic, 0);
  EXPECT_FALSE(CZelhostIPCManager::GetInstance()->GetAutoMic());
  CZelhostLocalSetting::SetIntValue(kSettingAutoMic, -1);
  EXPECT_TRUE(CZelhostIPCManager::GetInstance()->GetAutoMic());
}

TEST_F(TheSettings, AreFilledForEachAccountOnlyWhenItHasNoneYet) {
  EXPECT_EQ(CZelhostLocalSetting::CheckInitPersonalData(), 1);
  EXPECT_EQ(Setting("Lib/Video/RecvPolicy"), "contacts");
  EXPECT_EQ(Setting("Lib/Call/NoAnswerTimeout"), "120");
  EXPECT_EQ(Setting("*UI/Setting/CAMERA_LIGHT_MODE"), "2");
  m_memory.Set("Lib/Call/NoAnswerTimeout", "15");
  EXPECT_EQ(CZelhostLocalSetting::CheckInitPersonalData(), 1);
  EXPECT_EQ(Setting("Lib/Call/NoAnswerTimeout"), "15");
}

TEST_F(TheSettings, RememberTheFiveMostRecentNames) {
  for (const char* name : {"e", "d", "c", "b"}) Remember(name);
  EXPECT_EQ(Remember("a"), "a b c d e ");
  EXPECT_EQ(Remember("a"), "a b c d e ");
  EXPECT_EQ(Remember("c"), "c a b d e ");
  EXPECT_EQ(Remember("f"), "f c a b d ");
  EXPECT_EQ(Setting("*UI/Login/LastLoggedInID"), "f");
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

}  // namespace
