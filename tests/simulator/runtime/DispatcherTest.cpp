#include "tests/simulator/runtime/RuntimeFixture.h"

namespace simulator {
namespace {

using test::RuntimeFixture;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class ARequest : public RuntimeFixture {};

TEST_F(ARequest, IsRefusedInWordsWhenItCannotBeServed) {
  const std::string account = On(Account("demo"));
  EXPECT_EQ("d malformed request", Ask("1465"));
  EXPECT_EQ("d malformed request", Ask("2046 1879 " + account + "1857=\""));
  EXPECT_EQ("d unknown method 9999 of class 1465", Ask("1465 9999"));
  EXPECT_EQ("d Account.GetProps: no such object", Ask("2046 1879 1137=\"77\""));
  EXPECT_EQ("d Audio.GetNrgLevels is not served", Ask(RootMethod::GetNrgLevels));
  const Object* contact = session.contacts.Find("sndtest");
  EXPECT_EQ("d Account.GetProps: the object is of another class", Ask(ObjectMethod::GetProps, On(*contact)));
}

TEST_F(ARequest, ToStartIsCheckedForBothVersions) {
  int starts = 0;
  session.surroundings.started = [&] { ++starts; };
  const auto start = [&](const char* wrapper, const char* ui) {
    return Ask(RootMethod::Start, Pair(ZEKey::WrapperVersion, wrapper) + Pair(ZEKey::UiVersion, ui));
  };
  EXPECT_EQ("b 0=\"2001\"", start("1.09", "10070/1.0.0.0/"));
  EXPECT_EQ("b 0=\"1650\"", start("1.10", "10072/1.0.0.0/"));
  EXPECT_EQ("b 0=\"1650\"", start("1.10", ""));
  EXPECT_FALSE(session.started);
  EXPECT_EQ("b 0=\"1211\"", start("1.10", "10071/1.0.0.0/"));
  EXPECT_EQ("b 0=\"1211\"", start("1.10", "10070/1.0.0.0/"));
  EXPECT_EQ(1, starts);
}

class Properties : public RuntimeFixture {};

TEST_F(Properties, AreReadByTheirTokensAndOfManyObjectsOneLineEach) {
  const std::string demo = On(Account("demo"));
  EXPECT_EQ("b 1704=\"demo\" 1532=\"1113\" 1423=\"\"",
            Ask("2046 1879 " + demo + "1857=\"1704,1532,,1423,9999\""));
  EXPECT_EQ("b ", Ask("2046 1879 " + demo));
  const Object* sndtest = session.contacts.Find("sndtest");
  const Object* phone = session.contacts.Find("+1 555 0100");
  const std::string ids = std::to_string(sndtest->id) + ",999," + std::to_string(phone->id);
  EXPECT_EQ("b 1704=\"sndtest\" 1092=\"\"\nb \nb 1704=\"\" 1092=\"+15550100\"",
            Ask("1799 1283 1271=\"" + ids + "\" 1857=\"1704,1092\""));
}

TEST_F(Properties, AreReportedWhenTheyChangeUnlessTheyAreFilteredOut) {
  Object& demo = Account("demo");
  outbox.texts.clear();
  session.world.Set(demo, account::kMood, "a,b");
  session.world.Set(demo, account::kMood, "a,b");
  EXPECT_THAT(outbox.texts, ElementsAre("e 2046 2073 1137=\"" + std::to_string(demo.id) +
                                        "\" 1551=\"1423\" 1667=\"a\\,b\""));
  outbox.texts.clear();
  Tell(ObjectMethod::FilterOutProps, "1857=\"1423,1405\"");
  session.world.Set(demo, account::kMood, "quiet");
  EXPECT_THAT(outbox.texts, IsEmpty());
  EXPECT_EQ("quiet", demo.GetText(account::kMood));
  Tell(ObjectMethod::FilterOutProps);
  session.world.Set(demo, account::kMood, "loud");
  EXPECT_THAT(ValuesOf(demo, account::kMood), ElementsAre("loud"));
}

class Settings : public RuntimeFixture {
 protected:
  std::string Read(const ZEMethod& method, const char* key = "*UI/Pan") {
    return Result(method, Pair(ZEKey::SettingKey, key));
  }
  void Write(const ZEMethod& method, const char* key, const char* value) {
    Tell(method, Pair(ZEKey::SettingKey, key) + Pair(ZEKey::Value, value));
  }
};

TEST_F(Settings, ReadBackAsWritten) {
  EXPECT_EQ("0", Read(RootMethod::IsDefined));
  EXPECT_EQ("0", Read(RootMethod::GetInt));
  EXPECT_EQ("", Read(RootMethod::GetStr));
  Write(RootMethod::SetInt, "*UI/Pan", "-90");
  EXPECT_EQ("-90", Read(RootMethod::GetInt));
  Write(RootMethod::SetStr, "*UI/Pan", "a \"b\", \\c\x01\xff");
  EXPECT_EQ("a \"b\", \\c\x01\xff", Read(RootMethod::GetStr));
  EXPECT_EQ("1", Read(RootMethod::IsDefined));
  Write(RootMethod::SetStr, "*UI/Login/A", "1");
  Write(RootMethod::SetStr, "*UI/Login/B/C", "1");
  Write(RootMethod::SetStr, "*UI/Loginx", "1");
  EXPECT_EQ("A,B", Read(RootMethod::GetSubKeys, "*UI/Login"));
  Tell(RootMethod::Delete, Pair(ZEKey::SettingKey, "*UI/Pan"));
  EXPECT_EQ("0", Read(RootMethod::IsDefined));
}

TEST_F(Settings, OfAnAccountAppearWithItAndThoseOfTheDeviceAlways) {
  std::string found;
  for (const std::string name : {"demo", "maria", "demo"}) {
    SignIn(name, name + "1234");
    found += Read(RootMethod::GetStr, "Lib/Name") + "," + Read(RootMethod::GetStr, "*UI/Name") + ";";
    Write(RootMethod::SetStr, "Lib/Name", name.c_str());
    Write(RootMethod::SetStr, "*UI/Name", name.c_str());
  }
  EXPECT_EQ(",;,demo;demo,maria;", found);
}

class TheContacts : public RuntimeFixture {};

TEST_F(TheContacts, OfANewAccountTakeInTheSoundTest) {
  SignIn("nocommit", "demo1234");
  const std::string group = Result(RootMethod::GetHardwiredContactGroup, Pair(ZEKey::Type, "2012"));
  EXPECT_EQ(group, Result(RootMethod::GetHardwiredContactGroup, Pair(ZEKey::Type, "")));
  const std::string contact = Result(RootMethod::GetContact, Pair(ZEKey::Identity, "sndtest"));
  const std::string onGroup = Pair(ZEKey::ObjectId, group), onContact = Pair(ZEKey::ObjectId, contact);
  EXPECT_EQ("1", Result(ContactGroupMethod::AddContact, onGroup + Pair(ZEKey::Contact, contact)));
  EXPECT_EQ("1", Result(ContactMethod::GiveAuthLevel, onContact + Pair(ZEKey::AuthLevel, "1978")));
  EXPECT_EQ("1", Result(ContactMethod::SetBuddyStatus, onContact + Pair(ZEKey::Buddy, "1")));
  EXPECT_EQ(contact, Result(ContactGroupMethod::GetContacts, onGroup, ZEKey::Objects));
  EXPECT_EQ("1", Result(ContactMethod::IsMemberOf, onContact + Pair(ZEKey::Group, group)));
  EXPECT_THAT(service.Contacts("nocommit"), ElementsAre("sndtest"));
  EXPECT_EQ("0", Result(RootMethod::GetContact, Pair(ZEKey::Identity, "?!")));
  EXPECT_THAT(Words(),
              ::testing::Contains(AllOf(HasSubstr("ContactGroup.GroupChanged"), HasSubstr("added=1"))));
}

}  // namespace
}  // namespace simulator
