#include "tests/simulator/runtime/RuntimeFixture.h"

namespace simulator {
namespace {

using test::RuntimeFixture;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class AnyRequest : public RuntimeFixture {};

TEST_F(AnyRequest, ThatWantsAReplyGetsExactlyOneWhateverItHolds) {
  const std::string account = On(Account("demo"));
  const std::vector<std::string> malformed = {"",
                                              "2046",
                                              "2046 ",
                                              "1465 9999",
                                              "9999 1986",
                                              "1465 1986 1482",
                                              "2046 1879",
                                              "2046 1879 1137=\"x\"",
                                              "2046 1879 1137=\"99\"",
                                              "1799 1649 " + account,
                                              "2046 1879 =\"\"",
                                              "2046 1879 1137=\"1\" 1857=\"",
                                              "20460000000000 1879",
                                              "2046 1061 " + account + "1159=\"junk\"",
                                              "1885 1094",
                                              "2046 2032 " + account + "1704=\"other\""};
  for (const std::string& request : malformed) {
    outbox.texts.clear();
    dispatcher.Serve("#7  a " + request);
    ASSERT_EQ(1u, outbox.texts.size()) << request;
    EXPECT_THAT(outbox.texts[0], StartsWith("#7 ")) << request;
  }
}

TEST_F(AnyRequest, IsRefusedInWordsWhenItCannotBeServed) {
  EXPECT_EQ("d malformed request", Ask("1465"));
  EXPECT_EQ("d unknown method 9999 of class 1465", Ask("1465 9999"));
  EXPECT_EQ("d Account.GetProps: no such object", Ask(ObjectMethod::GetProps, Pair(ZEKey::ObjectId, "77")));
  EXPECT_EQ("d Audio.GetNrgLevels is not served", Ask(RootMethod::GetNrgLevels));
  const Object* contact = session.contacts.Find("sndtest");
  EXPECT_EQ("d Account.GetProps: the object is of another class", Ask(ObjectMethod::GetProps, On(*contact)));
}

TEST_F(AnyRequest, ThatWantsNoReplyGetsNone) {
  for (const char* request : {"a 1465 9999", "a 1465", "junk", "a 2046 1252 1137=\"99\"", "b 0=\"1\"", ""}) {
    dispatcher.Serve(request);
  }
  EXPECT_THAT(outbox.texts, IsEmpty());
}

class TheStart : public RuntimeFixture {
 protected:
  std::string Start(const char* wrapper, const char* ui) {
    return Ask(RootMethod::Start, Pair(ZEKey::WrapperVersion, wrapper) + Pair(ZEKey::UiVersion, ui));
  }
};

TEST_F(TheStart, ChecksBothVersions) {
  EXPECT_EQ("b 0=\"2001\"", Start("1.09", "10070/1.0.0.0/"));
  EXPECT_EQ("b 0=\"1650\"", Start("1.10", "10072/1.0.0.0/"));
  EXPECT_EQ("b 0=\"1650\"", Start("1.10", ""));
  EXPECT_FALSE(session.started);
  int starts = 0;
  session.surroundings.started = [&] { ++starts; };
  EXPECT_EQ("b 0=\"1211\"", Start("1.10", "10071/1.0.0.0/"));
  EXPECT_EQ("b 0=\"1211\"", Start("1.10", "10070/1.0.0.0/"));
  EXPECT_EQ(1, starts);
}

TEST_F(TheStart, IsFollowedByAStopThatIsAnsweredOnlyWhenAsked) {
  int stops = 0;
  session.surroundings.stopped = [&] { ++stops; };
  EXPECT_EQ("b ", Ask(RootMethod::Stop, Pair(ZEKey::Wait, "1")));
  outbox.texts.clear();
  Tell(RootMethod::Stop, Pair(ZEKey::Wait, "0"));
  EXPECT_THAT(outbox.texts, IsEmpty());
  EXPECT_EQ(2, stops);
}

class Properties : public RuntimeFixture {};

TEST_F(Properties, AreReadByTheirTokensWithEnumeratorsAsTokens) {
  const std::string demo = On(Account("demo"));
  EXPECT_EQ("b 1704=\"demo\" 1532=\"1113\" 1423=\"\"",
            Ask("2046 1879 " + demo + "1857=\"1704,1532,,1423,9999\""));
  EXPECT_EQ("b ", Ask("2046 1879 " + demo));
}

TEST_F(Properties, OfManyObjectsComeOneLineEach) {
  const Object* sndtest = session.contacts.Find("sndtest");
  const Object* phone = session.contacts.Find("+1 555 0100");
  const std::string ids = std::to_string(sndtest->id) + ",999," + std::to_string(phone->id);
  EXPECT_EQ("b 1704=\"sndtest\" 1092=\"\"\nb \nb 1704=\"\" 1092=\"+15550100\"",
            Ask("1799 1283 1271=\"" + ids + "\" 1857=\"1704,1092\""));
}

TEST_F(Properties, AreReportedWhenTheyChangeAndOnlyThen) {
  Object& demo = Account("demo");
  outbox.texts.clear();
  session.world.Set(demo, account::kMood, "a,b");
  session.world.Set(demo, account::kMood, "a,b");
  EXPECT_THAT(outbox.texts, ElementsAre("e 2046 2073 1137=\"" + std::to_string(demo.id) +
                                        "\" 1551=\"1423\" 1667=\"a\\,b\""));
}

TEST_F(Properties, ThatAreFilteredOutAreNotReported) {
  Object& demo = Account("demo");
  Tell(ObjectMethod::FilterOutProps, "1857=\"1423,1405\"");
  outbox.texts.clear();
  session.world.Set(demo, account::kMood, "quiet");
  EXPECT_THAT(outbox.texts, IsEmpty());
  EXPECT_EQ("quiet", demo.GetText(account::kMood));
  Tell(ObjectMethod::FilterOutProps);
  session.world.Set(demo, account::kMood, "loud");
  EXPECT_THAT(ValuesOf(demo, account::kMood), ElementsAre("loud"));
}

class Settings : public RuntimeFixture {
 protected:
  std::string Read(const char* key) { return Result(RootMethod::GetStr, Pair(ZEKey::SettingKey, key)); }
  void Write(const ZEMethod& method, const char* key, const char* value) {
    Tell(method, Pair(ZEKey::SettingKey, key) + Pair(ZEKey::Value, value));
  }
};

TEST_F(Settings, ReadBackAsWritten) {
  const auto defined = [&] { return Result(RootMethod::IsDefined, Pair(ZEKey::SettingKey, "*UI/Pan")); };
  const auto number = [&] { return Result(RootMethod::GetInt, Pair(ZEKey::SettingKey, "*UI/Pan")); };
  EXPECT_EQ("0", defined());
  EXPECT_EQ("0", number());
  EXPECT_EQ("", Read("*UI/Pan"));
  Write(RootMethod::SetInt, "*UI/Pan", "-90");
  EXPECT_EQ("-90", number());
  EXPECT_EQ("-90", Read("*UI/Pan"));
  Write(RootMethod::SetStr, "*UI/Pan", "a \"b\", \\c");
  EXPECT_EQ("a \"b\", \\c", Read("*UI/Pan"));
  EXPECT_EQ("1", defined());
  EXPECT_EQ("Pan", Result(RootMethod::GetSubKeys, Pair(ZEKey::SettingKey, "*UI")));
  Tell(RootMethod::Delete, Pair(ZEKey::SettingKey, "*UI/Pan"));
  EXPECT_EQ("0", defined());
}

TEST_F(Settings, OfAnAccountAppearWithIt) {
  Object& demo = SignIn("demo", "demo1234");
  Write(RootMethod::SetInt, "Lib/Account/IsInitialized", "1");
  EXPECT_EQ("1", Read("Lib/Account/IsInitialized"));
  Tell(AccountMethod::Logout, On(demo));
  Pass();
  EXPECT_EQ("", Read("Lib/Account/IsInitialized"));
  SignIn("maria", "maria1234");
  EXPECT_EQ("", Read("Lib/Account/IsInitialized"));
}

class TheContacts : public RuntimeFixture {};

TEST_F(TheContacts, OfANewAccountTakeInTheSoundTest) {
  SignIn("demo", "demo1234");
  const std::string group = Result(RootMethod::GetHardwiredContactGroup, Pair(ZEKey::Type, "2012"));
  EXPECT_EQ(group, Result(RootMethod::GetHardwiredContactGroup, Pair(ZEKey::Type, "")));
  const std::string contact = Result(RootMethod::GetContact, Pair(ZEKey::Identity, "sndtest"));
  const std::string both = Pair(ZEKey::ObjectId, group) + Pair(ZEKey::Contact, contact);
  EXPECT_EQ("1", Result(ContactGroupMethod::AddContact, both));
  const std::string onContact = Pair(ZEKey::ObjectId, contact);
  EXPECT_EQ("1", Result(ContactMethod::GiveAuthLevel, onContact + Pair(ZEKey::AuthLevel, "1978")));
  EXPECT_EQ("1", Result(ContactMethod::SetBuddyStatus, onContact + Pair(ZEKey::Buddy, "1")));
  EXPECT_EQ(contact, Result(ContactGroupMethod::GetContacts, Pair(ZEKey::ObjectId, group), ZEKey::Objects));
  EXPECT_EQ("1", Result(ContactMethod::IsMemberOf, onContact + Pair(ZEKey::Group, group)));
  EXPECT_THAT(service.Contacts("demo"), ElementsAre("sndtest"));
  EXPECT_THAT(Words(),
              ::testing::Contains(AllOf(HasSubstr("ContactGroup.GroupChanged"), HasSubstr("added=1"))));
}

TEST_F(TheContacts, AreNotMadeOfWhatIsNoIdentity) {
  EXPECT_EQ("0", Result(RootMethod::GetContact, Pair(ZEKey::Identity, "?!")));
  EXPECT_EQ("0", Result(RootMethod::GetHardwiredContactGroup, Pair(ZEKey::Type, "junk")));
  EXPECT_EQ("0", Result(RootMethod::GetAccount, Pair(ZEKey::Identity, "")));
  EXPECT_EQ("0", Result(RootMethod::GetDefaultAccount));
}

TEST_F(TheContacts, AreSearchedForWithoutResults) {
  const std::string search = Result(RootMethod::NewIdentitySearch, Pair(ZEKey::Identity, "maria"));
  Pass();
  EXPECT_EQ("b 1532=\"1862\"", Ask("2036 1879 " + Pair(ZEKey::ObjectId, search) + "1857=\"1532\""));
  Tell(ContactSearchMethod::Release, Pair(ZEKey::ObjectId, search));
  EXPECT_EQ(nullptr, session.world.Find(ToUnsigned(search)));
}

}  // namespace
}  // namespace simulator
