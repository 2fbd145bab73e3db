#include "tests/system/RememberedService.h"

using ::testing::UnorderedElementsAre;

namespace test {

namespace {

constexpr int kContactBlocked = 260;
constexpr int kRequestReceived = 282;
constexpr int kGroupChanged = 288;
constexpr int kFoundContacts = 358;
constexpr int kFoundProfile = 359;
constexpr int kFoundNobody = 390;
constexpr int kAuthLevel = 23;

// A list and one ten times as long, as the demo account's own grows; sanitizers make the service's own work
// slow.
#ifdef __SANITIZE_ADDRESS__
constexpr int kFew = 100;
#else
constexpr int kFew = 1000;
#endif
constexpr int kLast = 10 * kFew + 12;

#define PICTURE(name) "file:///mtd_rwcommon/moip/engines/Zelto/avatar/" name ".jpg"

class AViewersPeople : public AViewerWithAPast {
 protected:
  // The runtime's object.
  std::string Object(const char* who) {
    return std::to_string(Order({{"order", "contact"}, {"identity", who}})["object"].get<int>());
  }
  std::string Place(const char* who) { return Execute("GetIndexOfContact", who); }
  void Asks(const char* who) {
    Order({{"order", "authrequest"}, {"from", who}});
    EXPECT_TRUE(Arrives(kRequestReceived));
    EXPECT_TRUE(Becomes([&] { return Place(who) != "-1"; }));
  }
};

}  // namespace

TEST_F(AViewersPeople, AreListedFoundAddedNamedBlockedAndRemoved) {
  ASSERT_NO_FATAL_FAILURE(SignInAndRemember());
  const std::string asking = Record({"ines", "", "Inês", "1", "2", PICTURE("ines"), "Hello from next door"});
  const std::string anna = Record({"anna", "", "Anna", "7", "2", PICTURE("anna"), "Cooking, call later"});
  const std::string bruno = Record({"bruno", "", "Bruno", "8", "1", PICTURE("bruno"), ""});
  const std::string others =
      bruno + Record({"chloe", "", "Chloé", "10", "2", PICTURE("chloe"), "À bientôt"}) +
      Record({"sndtest", "", "Echo Test", "7", "0", "", "Says what you say"}) +
      Record({"emi.k", "", "Emi", "7", "2", "", "Out for a walk"}) +
      Record({"hugo", "", "Hugo", "7", "1", "", "Gone fishing"}) +
      Record({"maria", "", "Maria Sample", "7", "2", PICTURE("maria"), "On the sofa"}) +
      Record({"", "+15550100", "Grandma", "5", "", "", ""}) +
      Record({"", "+35121555000", "Pizza", "5", "", "", ""}) +
      Record({"dmitri", "", "Dmitri", "6", "1", "", ""}) +
      Record({"farid", "", "Farid", "6", "1", PICTURE("farid"), "New television!"}) +
      Record({"greta", "", "Greta", "6", "2", "", ""});
  EXPECT_EQ(Execute("GetContactListWithoutCallMember", "0", "20"), asking + anna + others);
  for (const char* query : {"GetContactListWithoutUnauthorizedContacts",
                            "GetContactListWithoutCallMemberAndUnauthorizedContacts"}) {
    EXPECT_EQ(Execute(query, "0", "20"), anna + others) << query;
    EXPECT_EQ(Execute(query, "99", "1") + Execute(query, "0", "0") + Execute(query, "-1", "1"), "") << query;
  }
  EXPECT_EQ(Execute("GetContactList", "anna", "3", "1"), asking + anna + bruno);
  EXPECT_EQ(Execute("GetContactList", "anna", "1", "1") + Execute("GetContactList", "nobody", "2", "1"), "");
  EXPECT_EQ(Execute("GetNumOfContacts"), "13");
  EXPECT_EQ(Execute("GetNumOfContactsWithoutUnauthorizedContacts"), "12");
  EXPECT_EQ(Execute("GetContactPropWithIndex", "1", "7") + Execute("GetContactPropWithName", "farid", "10"),
            "GermanAlexandria");
  EXPECT_EQ(Execute("GetOnlineContacts"), Record({"Inês", "Anna", "Bruno", "Chloé", "Echo Test", "Emi",
                                                  "Hugo", "Maria Sample", "Grandma", "Pizza"}));
  EXPECT_EQ(Execute("GetZeltoNameWithDisplayName", "Pizza"), "+35121555000");
  EXPECT_EQ(Execute("HasVoiceMailCapability", "anna") + Execute("HasVoiceMailCapability", "nobody at all"),
            "10");

  EXPECT_EQ(Execute("SearchNewContact", "mar"), "1");
  ASSERT_TRUE(Arrives(kFoundContacts));
  EXPECT_EQ(Execute("GetSearchedContactList"), Record({"maria", "Maria Sample", "Portugal", "Porto"}));
  EXPECT_EQ(Execute("SearchNewContact", "zzzz"), "1");
  ASSERT_TRUE(Arrives(kFoundNobody));
  EXPECT_EQ(Execute("GetSearchedContactList") + Execute("GetSearchedProfileInfo"), "");
  for (const auto& [who, event] : {std::pair("farid", kFoundProfile), {"no.such.one", kFoundNobody}}) {
    EXPECT_EQ(Execute("SearchContactProfile", who), "1");
    ASSERT_TRUE(Arrives(event));
    EXPECT_EQ(Execute("GetSearchedProfileInfo"), Record({"farid", "Farid", "Egypt", "Alexandria", "Arabic",
                                                         "New television!", PICTURE("farid")}));
  }

  EXPECT_EQ(Execute("AddContact", "nosync"), "1");
  EXPECT_TRUE(Arrives(kContactUpdated));
  EXPECT_EQ(Order({{"order", "authanswer"}, {"from", "nosync"}, {"answer", "yes"}})["asked"], "Hello~");
  EXPECT_EQ(Execute("IsMyBuddy", "nosync") + Value(Object("nosync"), kAuthLevel), "12");
  EXPECT_EQ(Execute("AddContact", "nocommit", "It is me"), "1");
  EXPECT_EQ(Order({{"order", "authanswer"}, {"from", "nocommit"}, {"answer", "no"}})["asked"], "It is me");
  EXPECT_EQ(Execute("AddZeltoOutContact", "", "Taxi") + Execute("AddZeltoOutContact", "+15550199", "Taxi"),
            "01");
  EXPECT_EQ(Execute("GetContactList", "+15550199", "1", "0"),
            Record({"", "+15550199", "Taxi", "5", "", "", ""}));
  // Her id is another's while that one lives.
  const int greta = std::stoi(Object("greta"));
  ForgetsId(greta);
  IsToldToBeAVoicemail(greta);
  EXPECT_EQ(Execute("Rename", "greta", "Aaron") + Execute("IsMyBuddy", "greta"), "01");
  ForgetsId(greta);
  EXPECT_EQ(Execute("Rename", "greta", "Aaron"), "1");
  EXPECT_EQ(std::stoi(Place("greta")) + 1, std::stoi(Place("dmitri")));
  EXPECT_EQ(Execute("Rename", "no name", "Aaron"), "0");
  EXPECT_EQ(Execute("SetAssignedPhoneNumber", "anna", "2", "mobile", "+49301234"), "1");
  EXPECT_EQ(Execute("SetAssignedPhoneNumber", "anna", "0", "a", "1") +
                Execute("SetAssignedPhoneNumber", "anna", "4", "a", "1") +
                Execute("SetAssignedPhoneNumber", "", "1", "a", "1"),
            "000");
  for (const auto& [property, value] : {std::pair("44", "+49301234"), {"45", "mobile"}, {"46", ""}}) {
    EXPECT_EQ(Execute("GetContactPropWithName", "anna", property), value);
    EXPECT_EQ(Value(Object("anna"), std::stoi(property)), value);
  }

  EXPECT_EQ(Execute("Block", "hugo", "0") + Execute("IsBlocked", "anna"), "10");
  EXPECT_TRUE(Arrives(kContactBlocked));
  EXPECT_EQ(Execute("IsBlocked", "hugo") + Execute("IsMyBuddy", "hugo"), "11");
  // One of them goes while they are read, and comes again.
  OrderAfterFrames(4, "event ObjectDelete object=\"" + Object("hugo") + '"');
  EXPECT_THAT(Fields(Execute("GetBlockedContactList")),
              UnorderedElementsAre("hugo", "Hugo", "jonas", "Jonas"));
  Settle();
  EXPECT_THAT(Fields(Execute("GetBlockedContactList")),
              UnorderedElementsAre("hugo", "Hugo", "jonas", "Jonas"));
  for (const auto& [who, level] : {std::pair("hugo", "2"), {"jonas", "1"}}) {
    EXPECT_EQ(Execute("Unblock", who), "1");
    EXPECT_TRUE(Arrives(kGroupChanged));
    EXPECT_EQ(Execute("IsBlocked", who) + Value(Object(who), kAuthLevel), std::string("0") + level);
  }
  EXPECT_EQ(Execute("GetBlockedContactList"), "");

  EXPECT_EQ(Execute("Authorize", "ines"), "1");
  EXPECT_EQ(Value(Object("ines"), kAuthLevel) + Execute("IsMyBuddy", "ines"), "21");
  // Who was rejected goes without a word; who was blocked with it is told to be blocked.
  const int blocked = Heard(kContactBlocked);
  Asks("toomany");
  EXPECT_EQ(Execute("RejectAndBlock", "toomany", "0"), "1");
  EXPECT_EQ(Place("toomany"), "-1");
  Asks("damaged");
  EXPECT_EQ(Execute("RejectAndBlock", "damaged", "1"), "1");
  EXPECT_EQ(Place("damaged"), "-1");
  EXPECT_TRUE(Arrives(kContactBlocked));
  EXPECT_EQ(Execute("IsBlocked", "toomany") + Execute("IsBlocked", "damaged"), "01");
  EXPECT_EQ(Heard(kContactBlocked), blocked + 1);
  EXPECT_EQ(Heard(kContactRemoved), 0);
  const std::string place = Place("farid");
  EXPECT_EQ(Execute("Remove", "farid"), "1");
  EXPECT_TRUE(Arrives(kContactRemoved, place.c_str()));
  EXPECT_EQ(Execute("IsMyBuddy", "farid") + Execute("Remove", "no name"), "00");
}

TEST_F(AViewersPeople, CostWithThousandsOfThemWhatIsShown) {
  int frames[2];
  for (const int more : {kFew, 9 * kFew}) {
    Order({{"order", "contacts"}, {"count", more}, {"seed", more}, {"account", kDemoName}});
    frames[more != kFew] = FramesOf([&] { SignInAndRemember(); });
    std::string page;
    EXPECT_LE(FramesOf([&] { page = Execute("GetContactListWithoutUnauthorizedContacts", "50", "50"); }), 10);
    EXPECT_EQ(Fields(page).size(), 50u * 7);
    if (more != kFew) break;
    ASSERT_EQ(Execute("Logout", "0"), "1");
    ASSERT_TRUE(Arrives(kLoggedOut));
  }
  ASSERT_EQ(Execute("GetNumOfContacts"), std::to_string(kLast + 1));
  EXPECT_LE(frames[1], 13 * frames[0]);
  const std::string last = Execute("GetContactPropWithIndex", std::to_string(kLast).c_str(), "1");
  EXPECT_LE(FramesOf([&] { EXPECT_EQ(Execute("GetIndexOfContact", last.c_str()), std::to_string(kLast)); }),
            10);
  EXPECT_LE(FramesOf([&] { EXPECT_EQ(Execute("Rename", last.c_str(), "Aaa"), "1"); }), 20);
}

}  // namespace test
