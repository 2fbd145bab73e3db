#include "Common/HostQueries.h"

#include "Common/AccountManager.h"
#include "tests/Common/EngineFixture.h"

namespace {

using test::FakeService;

class AHostWithQuestions : public test::EngineFixture {
 protected:
  static void AddHistory(const char* type, const char* missed, const char* unseen, const char* incoming) {
    FakeService::answers = {{"history 0 0", type},        {"history 0 11", missed}, {"history 0 5", unseen},
                            {"history 0 7", incoming},    {"history 0 1", "ann"},   {"history 0 2", "Ann"},
                            {"history 0 3", "1795551300"}};
  }
  // What a contact looks like, "" when it is refused.
  std::string ContactAt(int index) {
    if (!engine->GetContactInfo(index, id, name, number, path)) return "";
    return id + ", " + name + ", " + std::to_string(number) + ", " + path;
  }

  std::string id = "unchanged", name = "unchanged", path = "unchanged";
  int number = -7;
  int kind = -1;
};

TEST_F(AHostWithQuestions, FindsSomebodySignedInOnlyAfterTheSignInIsComplete) {
  CAccountManager::GetInstance();
  FakeService::answers["account 1"] = "ann";
  FakeService::account->loginState = 1;
  EXPECT_FALSE(engine->IsLoggedIn(id));
  EXPECT_EQ(id, "unchanged");
  FakeService::account->loginState = 2;
  EXPECT_TRUE(engine->IsLoggedIn(id));
  EXPECT_EQ(id, "ann");
  FakeService::answers.clear();
  EXPECT_FALSE(engine->IsLoggedIn(id));
}

TEST_F(AHostWithQuestions, LearnsTheKindOfARecentCall) {
  const struct {
    const char *type, *missed, *unseen, *incoming;
    int kind;
  } calls[] = {{"1", "1", "1", "1", 4}, {"2", "1", "1", "1", 0}, {"0", "1", "0", "1", 1},
               {"0", "0", "1", "0", 1}, {"0", "0", "0", "1", 2}, {"0", "0", "0", "0", 3}};
  for (const auto& call : calls) {
    AddHistory(call.type, call.missed, call.unseen, call.incoming);
    EXPECT_TRUE(engine->GetRecentCall(0, kind, id, name, number));
    EXPECT_EQ(kind, call.kind);
  }
  EXPECT_EQ(id + name + std::to_string(number), "annAnn1795551300");
}

TEST_F(AHostWithQuestions, GetsNoRecentCallWhenAnythingButTheUnseenMarkIsMissing) {
  for (const char* field : {"0", "11", "7", "1", "2", "3"}) {
    AddHistory("0", "0", "0", "1");
    FakeService::answers.erase(std::string("history 0 ") + field);
    EXPECT_FALSE(engine->GetRecentCall(0, kind, id, name, number)) << field;
    EXPECT_EQ(id + name + std::to_string(kind) + std::to_string(number), "unchangedunchanged-1-7");
  }
  AddHistory("0", "0", "0", "1");
  FakeService::answers.erase("history 0 5");
  EXPECT_TRUE(engine->GetRecentCall(0, kind, id, name, number));
  EXPECT_EQ(kind, 2);
}

TEST_F(AHostWithQuestions, GetsAContactThatHasNameAndStatusWithThePictureThatFits) {
  const std::string folder = "/mtd_rwcommon/moip/engines/Zelto/Resource/";
  const FakeService::Answers ann = {{"contact 3 1", "ann"}, {"contact 3 21", "A Name"}, {"status ann", "4"}};
  const FakeService::Answers phone = {{"contact 3 1", ""},        {"contact 3 2", "+4930"},
                                      {"contact 3 21", "A Name"}, {"status +4930", "4"},
                                      {"image +4930", "/no"},     {"contact 3 6", "2"}};
  const struct {
    FakeService::Answers known, added;
    std::string seen;
  } contacts[] = {
      {ann, {{"image ann", "/ann.jpg"}}, "ann, A Name, 4, /ann.jpg"},
      {ann, {}, "ann, A Name, 4, " + folder + "Zelto_default_male.PNG"},
      {ann, {{"contact ann 6", "2"}}, "ann, A Name, 4, " + folder + "Zelto_default_female.PNG"},
      {phone, {}, "+4930, A Name, 4, " + folder + "Avatar_PSTN.png"},
      {{}, {}, ""},
      {{}, {{"contact 3 1", ""}, {"contact 3 2", ""}, {"contact 3 21", "A Name"}, {"status ", "4"}}, ""},
      {{}, {{"contact 3 1", "ann"}, {"status ann", "4"}}, ""},
      {{}, {{"contact 3 1", "ann"}, {"contact 3 21", "A Name"}}, ""},
  };
  for (const auto& contact : contacts) {
    FakeService::answers = contact.known;
    FakeService::answers.insert(contact.added.begin(), contact.added.end());
    EXPECT_EQ(ContactAt(3), contact.seen);
  }
}

TEST_F(AHostWithQuestions, StartsTheWidgetForACallOrAVoicemail) {
  const std::string separator = "\x03\x02";
  EXPECT_TRUE(engine->PlaceCall("ann", 1));
  EXPECT_TRUE(host.WaitFor("StartWidgetWithParam[Voicecall" + separator + "ann]"));
  EXPECT_TRUE(host.WaitFor("427(0, null)"));
  FakeService::host->widgetShown = true;
  EXPECT_TRUE(engine->PlaceCall("ann" + separator + "x", 2));
  EXPECT_TRUE(host.WaitFor("StartWidgetWithParam[Videocall" + separator + "ann  x]"));
  EXPECT_TRUE(host.WaitFor("427(1, null)"));
  EXPECT_TRUE(engine->PlaceCall("ann", -2147483647));
  EXPECT_EQ(CZeltoManager::GetRunWidgetParam(), "Voicecall" + separator + "ann");
  FakeService::answers["position 1795551300"] = "5";
  EXPECT_TRUE(engine->PlayMail(1795551300));
  EXPECT_EQ(CZeltoManager::GetRunWidgetParam(), "Voicemail" + separator + "1795551300" + separator + "5");
  EXPECT_TRUE(host.WaitFor("StartWidgetWithParam[" + CZeltoManager::GetRunWidgetParam() + "]"));
}

}  // namespace
