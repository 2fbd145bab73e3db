#include <gtest/gtest.h>

#include <string>

#include "Common/AccountManager.h"
#include "Common/ContactManager.h"
#include "Common/HistoryManager.h"
#include "Common/ZeltoManager.h"
#include "tests/Common/FakeService.h"
#include "tests/Common/TestHost.h"

namespace {

using test::FakeService;

class AHostWithQuestions : public testing::Test {
 protected:
  AHostWithQuestions() : engine(host.StartEngine()) {
    CAccountManager::GetInstance();
    CContactManager::GetInstance();
    CHistoryManager::GetInstance();
    CZeltoManager::GetZeltoManagerImp();
  }
  ~AHostWithQuestions() override { CZeltoManager::Destroy(engine); }

  void AddContact(int index, const std::string& identity, const std::string& phone) {
    FakeService::contacts->byIndex = {{{index, 1}, identity}, {{index, 2}, phone}, {{index, 21}, "A Name"}};
    FakeService::contacts->statuses[identity.empty() ? phone : identity] = 4;
  }
  void AddHistory(int type, int missed, int unseen, int incoming) {
    FakeService::history->entries = {{{0, 0}, std::to_string(type)},
                                     {{0, 11}, std::to_string(missed)},
                                     {{0, 5}, std::to_string(unseen)},
                                     {{0, 7}, std::to_string(incoming)},
                                     {{0, 1}, "ann"},
                                     {{0, 2}, "Ann"},
                                     {{0, 3}, "1795551300"}};
  }
  int KindOf(int type, int missed, int unseen, int incoming) {
    AddHistory(type, missed, unseen, incoming);
    int kind = -1;
    EXPECT_TRUE(engine->GetRecentCall(0, kind, id, name, number));
    return kind;
  }

  test::TestHost host;
  IMoIPEngine* const engine;
  std::string id = "unchanged", name = "unchanged", path = "unchanged";
  int number = -7;
};

TEST_F(AHostWithQuestions, FindsSomebodySignedInOnlyAfterTheSignInIsComplete) {
  FakeService::account->info[1] = "ann";
  FakeService::account->loginState = 1;
  EXPECT_FALSE(engine->IsLoggedIn(id));
  EXPECT_EQ(id, "unchanged");
  FakeService::account->loginState = 2;
  EXPECT_TRUE(engine->IsLoggedIn(id));
  EXPECT_EQ(id, "ann");
  FakeService::account->info.clear();
  EXPECT_FALSE(engine->IsLoggedIn(id));
}

TEST_F(AHostWithQuestions, LearnsTheKindOfARecentCall) {
  EXPECT_EQ(KindOf(1, 1, 1, 1), 4);
  EXPECT_EQ(KindOf(2, 1, 1, 1), 0);
  EXPECT_EQ(KindOf(0, 1, 0, 1), 1);
  EXPECT_EQ(KindOf(0, 0, 1, 0), 1);
  EXPECT_EQ(KindOf(0, 0, 0, 1), 2);
  EXPECT_EQ(KindOf(0, 0, 0, 0), 3);
  EXPECT_EQ(id + name, "annAnn");
  EXPECT_EQ(number, 1795551300);
}

TEST_F(AHostWithQuestions, GetsNoRecentCallWhenAnythingButTheUnseenMarkIsMissing) {
  for (int field : {0, 11, 7, 1, 2, 3}) {
    AddHistory(0, 0, 0, 1);
    FakeService::history->entries.erase({0, field});
    int kind = -1;
    EXPECT_FALSE(engine->GetRecentCall(0, kind, id, name, number)) << field;
    EXPECT_EQ(id + name + std::to_string(kind) + std::to_string(number), "unchangedunchanged-1-7");
  }
  AddHistory(0, 0, 0, 1);
  FakeService::history->entries.erase({0, 5});
  int kind = -1;
  EXPECT_TRUE(engine->GetRecentCall(0, kind, id, name, number));
  EXPECT_EQ(kind, 2);
}

TEST_F(AHostWithQuestions, GetsAContactWithItsPicture) {
  AddContact(3, "ann", "");
  FakeService::contacts->images["ann"] = "/ann.jpg";
  EXPECT_TRUE(engine->GetContactInfo(3, id, name, number, path));
  EXPECT_EQ(id + name + std::to_string(number) + path, "annA Name4/ann.jpg");
}

TEST_F(AHostWithQuestions, GetsADefaultPictureByGender) {
  const std::string folder = "/mtd_rwcommon/moip/engines/Zelto/Resource/";
  AddContact(0, "ann", "");
  EXPECT_TRUE(engine->GetContactInfo(0, id, name, number, path));
  EXPECT_EQ(path, folder + "Zelto_default_male.PNG");
  FakeService::contacts->byName[{"ann", 6}] = "2";
  EXPECT_TRUE(engine->GetContactInfo(0, id, name, number, path));
  EXPECT_EQ(path, folder + "Zelto_default_female.PNG");
  AddContact(0, "", "+49301234");
  FakeService::contacts->imagesAsked = 0;
  EXPECT_TRUE(engine->GetContactInfo(0, id, name, number, path));
  EXPECT_EQ(id, "+49301234");
  EXPECT_EQ(path, folder + "Avatar_PSTN.png");
  EXPECT_EQ(FakeService::contacts->imagesAsked, 0);
}

TEST_F(AHostWithQuestions, GetsNoContactWithoutNameOrStatus) {
  EXPECT_FALSE(engine->GetContactInfo(0, id, name, number, path));
  AddContact(0, "", "");
  EXPECT_FALSE(engine->GetContactInfo(0, id, name, number, path));
  AddContact(0, "ann", "");
  FakeService::contacts->statuses.clear();
  EXPECT_FALSE(engine->GetContactInfo(0, id, name, number, path));
  EXPECT_EQ(path + std::to_string(number), "unchanged-7");
}

TEST_F(AHostWithQuestions, FindsContactsByMailNumbersAndStatus) {
  FakeService::contacts->byEmail["a@b.c"] = "ann";
  EXPECT_TRUE(engine->IsInMyContact("a@b.c", id));
  EXPECT_EQ(id, "ann");
  EXPECT_FALSE(engine->IsInMyContact("x@b.c", id));

  FakeService::contacts->byName = {{{"ann", 11}, "home"}, {{"ann", 12}, "office"}, {{"ann", 13}, "mobile"}};
  std::string home, office, mobile;
  EXPECT_TRUE(engine->GetHomePhoneNumber("ann", home));
  EXPECT_TRUE(engine->GetOfficePhoneNumber("ann", office));
  EXPECT_TRUE(engine->GetMobilePhoneNumber("ann", mobile));
  EXPECT_EQ(home + office + mobile, "homeofficemobile");
  EXPECT_FALSE(engine->GetHomePhoneNumber("bob", home));

  EXPECT_FALSE(engine->GetContactStatus("ann", number));
  EXPECT_EQ(number, -7);
  FakeService::contacts->statuses["ann"] = 0;
  EXPECT_TRUE(engine->GetContactStatus("ann", number));
  EXPECT_EQ(number, 0);
  EXPECT_FALSE(engine->GetContactImage("ann", path));
}

TEST_F(AHostWithQuestions, StartsTheWidgetForACallOrAVoicemail) {
  EXPECT_TRUE(engine->PlaceCall("ann", 1));
  EXPECT_TRUE(
      host.WaitFor("StartWidgetWithParam[Voicecall\x03\x02"
                   "ann]"));
  EXPECT_TRUE(host.WaitFor("427(0, null)"));
  FakeService::host->widgetShown = true;
  EXPECT_TRUE(engine->PlaceCall("ann", 2));
  EXPECT_TRUE(
      host.WaitFor("StartWidgetWithParam[Videocall\x03\x02"
                   "ann]"));
  EXPECT_TRUE(host.WaitFor("427(1, null)"));
  EXPECT_TRUE(engine->PlaceCall("ann", -2147483647));
  EXPECT_EQ(CZeltoManager::GetRunWidgetParam(),
            "Voicecall\x03\x02"
            "ann");

  FakeService::history->positions["1795551300"] = 5;
  EXPECT_TRUE(engine->PlayMail(1795551300));
  EXPECT_EQ(CZeltoManager::GetRunWidgetParam(),
            "Voicemail\x03\x02"
            "1795551300\x03\x02"
            "5");
  EXPECT_TRUE(host.WaitFor("StartWidgetWithParam[" + CZeltoManager::GetRunWidgetParam() + "]"));
}

}  // namespace
