#include "simulator/runtime/world/Contacts.h"

#include <chrono>
#include <functional>

#include "simulator/runtime/door/Orders.h"
#include "simulator/runtime/world/ContactProperties.h"
#include "tests/simulator/runtime/RuntimeFixture.h"

namespace simulator {
namespace {

using test::RuntimeFixture;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class TheContactList : public RuntimeFixture {
 protected:
  TheContactList() { SignIn("demo", "demo1234"); }

  Object& Group(int type) { return *session.contacts.Groups().Hardwired(type); }
  Object& Contact(const std::string& identity) { return *session.contacts.Find(identity); }
  std::vector<int> GroupsOf(const Object& contact) {
    std::vector<int> types;
    for (int type = group::kFirst; type <= group::kLast; ++type) {
      if (session.contacts.Groups().IsMember(Group(type), contact.id)) types.push_back(type);
    }
    return types;
  }
  std::string OnContact(const std::string& identity) { return On(Contact(identity)); }
  nlohmann::json Order(const std::string& words) { return orders.Execute(Orders::FromWords(words)); }
  static std::string GroupEvent(const Object& group, const Object& contact, bool added) {
    return "event ContactGroup.GroupChanged object=" + std::to_string(group.id) +
           " contact=" + std::to_string(contact.id) + " added=" + (added ? "1" : "0");
  }
  // What a runtime finds that is started on the same files after a sudden death of this one.
  void StartAgain(const std::function<void(Session&)>& look) {
    SimulatedService again(DeviceStore::DataFolder(device.Folder()));
    Session next{Surroundings{again, device, outbox}};
    next.contacts.Load("demo");
    look(next);
  }

  Wire wire{false};
  Controls controls{wire, faults, &session};
  Orders orders{controls};
};

TEST_F(TheContactList, SortsPeopleIntoTheGroupsThatTheEngineLooksAt) {
  EXPECT_THAT(GroupsOf(Contact("anna")), ElementsAre(1, 2, 3, 5, 9, 11));
  EXPECT_THAT(GroupsOf(Contact("dmitri")), ElementsAre(1, 2, 3, 9, 11));
  EXPECT_THAT(GroupsOf(Contact("+15550100")), ElementsAre(1, 2, 4, 9, 11));
  EXPECT_THAT(GroupsOf(Contact("ines")), ElementsAre(1, 8));
  EXPECT_THAT(GroupsOf(Contact("jonas")), ElementsAre(1, 10));
  EXPECT_THAT(GroupsOf(Contact("elsewhere")), IsEmpty());
  EXPECT_EQ(contact::kPending, Contact("ines").GetInt(contact::kAvailability));
  EXPECT_EQ(contact::kOffline, Contact("jonas").GetInt(contact::kAvailability));
  EXPECT_EQ("Grandma", Contact("+15550100").GetText(contact::kDisplayName));
  EXPECT_EQ(0u, UnescapeBinary(Contact("anna").GetText(contact::kPicture)).find("\xff\xd8"));
  EXPECT_THAT(Words(), Not(Contains(HasSubstr("GroupChanged object=" + std::to_string(Group(2).id) +
                                              " contact=" + std::to_string(Contact("anna").id)))));
}

TEST_F(TheContactList, AnswersAnAuthorizationRequestInEveryWay) {
  const auto level = [&](const std::string& identity, const char* token) {
    return Result(ContactMethod::GiveAuthLevel, OnContact(identity) + Pair(ZEKey::AuthLevel, token));
  };
  EXPECT_EQ("1", level("ines", "1978"));
  EXPECT_EQ("1", Result(ContactMethod::SetBuddyStatus, OnContact("ines") + Pair(ZEKey::Buddy, "1")));
  EXPECT_THAT(GroupsOf(Contact("ines")), ElementsAre(1, 2, 3, 5, 9, 11));
  EXPECT_EQ(contact::kOnline, Contact("ines").GetInt(contact::kAvailability));

  for (const bool block : {false, true}) {
    const std::string identity = block ? "maria.tv" : "elsewhere";
    ASSERT_EQ(true, Order("authrequest from=" + identity)["ok"]);
    EXPECT_THAT(Words(), Contains(GroupEvent(Group(8), Contact(identity), true)));
    EXPECT_NE(0, Contact(identity).GetInt(contact::kRequested));
    if (block) level(identity, "1269");
    Ask(ContactMethod::SetBuddyStatus, OnContact(identity) + Pair(ZEKey::Buddy, "0"));
    EXPECT_EQ(0, Contact(identity).GetInt(contact::kRequested));
    EXPECT_THAT(Words(), Contains(GroupEvent(Group(8), Contact(identity), false)));
    EXPECT_EQ(block, session.contacts.Groups().IsMember(Group(10), Contact(identity).id));
    EXPECT_EQ(!block, Order("authrequest from=" + identity)["ok"]);
  }
}

TEST_F(TheContactList, KeepsWhatTheUserHasNotedOverASuddenDeath) {
  Ask(ContactMethod::GiveDisplayName, OnContact("anna") + Pair(ZEKey::DisplayName, "Ann, \"A\""));
  Ask(ContactMethod::GiveAuthLevel, OnContact("bruno") + Pair(ZEKey::AuthLevel, "1269"));
  Ask(ContactMethod::AssignSpeedDial, OnContact("chloe") + Pair(ZEKey::SpeedDial, "7"));
  for (const char* slot : {"0", "4", "2"}) {
    EXPECT_EQ(slot == std::string("2") ? "1" : "0",
              Result(ContactMethod::SetPhoneNumber, OnContact("hugo") + Pair(ZEKey::Slot, slot) +
                                                        Pair(ZEKey::Label, "Boat") +
                                                        Pair(ZEKey::Number, "+34 986 000 111")));
  }
  EXPECT_EQ("0", Result(ContactMethod::GiveDisplayName,
                        OnContact("hugo") + Pair(ZEKey::DisplayName, std::string(100000, 'x'))));
  const std::string friends = Result(RootMethod::CreateCustomContactGroup);
  const std::string onFriends = Pair(ZEKey::ObjectId, friends);
  EXPECT_THAT(Words(), Contains("event ContactGroup.NewCustomContactGroup object=" + friends));
  Ask(ContactGroupMethod::GiveDisplayName, onFriends + Pair(ZEKey::DisplayName, "Friends"));
  for (const char* name : {"anna", "hugo"}) {
    Ask(ContactGroupMethod::AddContact, onFriends + Pair(ZEKey::Contact, std::to_string(Contact(name).id)));
  }
  EXPECT_THAT(GroupsOf(Contact("anna")), ElementsAre(1, 2, 3, 5, 9));

  StartAgain([&](Session& next) {
    const auto find = [&](const char* name) -> Object& { return *next.contacts.Find(name); };
    EXPECT_EQ("Ann, \"A\"", find("anna").GetText(contact::kDisplayName));
    EXPECT_EQ(contact::kBlocked, find("bruno").GetInt(contact::kAuthLevel));
    EXPECT_EQ(&find("chloe"), next.contacts.FindBySpeedDial("7"));
    int property = 0;
    EXPECT_EQ(&find("hugo"), next.contacts.FindByNumber("0034986000111", property));
    EXPECT_EQ(contact::NumberOfSlot(2), property);
    ASSERT_EQ(1u, next.contacts.Groups().Custom().size());
    Object& kept = *next.world.Find(next.contacts.Groups().Custom()[0]);
    EXPECT_EQ("Friends", kept.GetText(group::kName));
    EXPECT_EQ(2u, next.contacts.Groups().Members(kept).size());
  });

  EXPECT_EQ("1", Result(ContactGroupMethod::Delete, onFriends + Pair(ZEKey::DeleteFlag, "1")));
  EXPECT_EQ("0", Result(ContactGroupMethod::Delete, On(Group(2)) + Pair(ZEKey::DeleteFlag, "1")));
  EXPECT_THAT(GroupsOf(Contact("anna")), ElementsAre(1, 2, 3, 5, 9, 11));
  // Whoever signs in next knows nothing of it.
  SignIn("nocommit", "demo1234");
  EXPECT_THAT(GroupsOf(Contact("bruno")), IsEmpty());
  EXPECT_EQ("Anna", Contact("anna").GetText(contact::kDisplayName));
}

TEST_F(TheContactList, ChangesAsTheOrdersSay) {
  outbox.texts.clear();
  EXPECT_EQ(true,
            Order("contact anna availability=offline mood=\"Gone, \\\"late\\\"\" name=Ann picture=x")["ok"]);
  EXPECT_EQ(contact::kOffline, Contact("anna").GetInt(contact::kAvailability));
  EXPECT_EQ("Ann", Contact("anna").GetText(contact::kDisplayName));
  const auto words = Words();
  EXPECT_THAT(words, Contains(GroupEvent(Group(5), Contact("anna"), false)));
  EXPECT_THAT(words,
              Contains("event Contact.ContactGoneOffline object=" + std::to_string(Contact("anna").id)));
  for (const char* bad :
       {"contact anna availability=nowhere", "contact ?", "contact fail-1 mood=x", "contacts count=0",
        "contacts count=900000000000", "presence -1", "authrequest anna"}) {
    EXPECT_EQ(false, Order(bad)["ok"]) << bad;
  }
  Pass(5000);
  EXPECT_THAT(Words(), IsEmpty());  // nobody comes or goes unless it was ordered
  Order("presence 100");
  Pass(1000);
  EXPECT_THAT(Words(), Contains(HasSubstr("event Contact.PropertyChange")).Times(10));
}

TEST_F(TheContactList, OfTenThousandIsAnsweredWithoutDelay) {
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(5000, Order("contacts count=5000")["added"]);
  EXPECT_EQ(5000, Order("contacts count=5000 seed=2")["added"]);
  const std::string ids = Result(ContactGroupMethod::GetContacts, On(Group(2)), ZEKey::Objects);
  EXPECT_EQ(10000 + 12, std::count(ids.begin(), ids.end(), ',') + 1);
  outbox.texts.clear();
  const std::string reply = Ask("1799 1283 1271=\"" + ids + "\" 1857=\"1704,1238,1842,1618,1092,1946,1423\"");
  std::size_t lines = 0;
  for (std::size_t at = reply.find("b 1704="); at != std::string::npos;
       at = reply.find("\nb 1704=", at + 1)) {
    ++lines;
  }
  EXPECT_EQ(10000u + 12, lines);
  // It takes half a second; one step that looks at everybody for each contact would make it minutes.
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(60));
  SignIn("demo", "demo1234");
  EXPECT_EQ(ids, Result(ContactGroupMethod::GetContacts, On(Group(2)), ZEKey::Objects));
}

TEST_F(TheContactList, NamesLanguagesAndCountries) {
  const auto language = [&](const char* code, const std::string& reader) {
    return Result(RootMethod::GetISOLanguageName,
                  Pair(ZEKey::LanguageCode, code) + Pair(ZEKey::Language, reader));
  };
  EXPECT_EQ("Portuguese", language("pt", "en"));
  EXPECT_EQ("Portugiesisch", language("PT", "de_AT"));
  EXPECT_EQ("Portuguese", language("pt", std::string(100000, '@')));
  EXPECT_EQ("", language("qq", "en"));
  EXPECT_EQ("", language("../../etc", "en"));
  EXPECT_EQ("Sweden", Result(RootMethod::GetISOCountryName,
                             Pair(ZEKey::CountryCode, "se") + Pair(ZEKey::Language, "en")));
  EXPECT_EQ("Schweden", Result(RootMethod::GetISOCountryNameDict, Pair(ZEKey::Language, "de"), "se"));
  EXPECT_EQ("1", Result(RootMethod::IsISOCountryCode, Pair(ZEKey::CountryCode, "jp")));
  EXPECT_EQ("0", Result(RootMethod::IsISOCountryCode, Pair(ZEKey::CountryCode, "zz")));
  EXPECT_THAT(Result(RootMethod::GetISOCountryCodeList), HasSubstr("ad,ae,af"));
}

}  // namespace
}  // namespace simulator
