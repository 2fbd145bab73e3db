#include <gmock/gmock.h>

#include "tests/zelhost/contacts/ContactService.h"

namespace {

using namespace test;
using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr char kEmails[] = "1007";
constexpr char kBasicSet[] = R"(1857="1704,1238,1842,1618,1092,1946,1423")";
// What a search may come to, on the wire.
constexpr char kResultsOnly[] = "1190";
constexpr char kFinished[] = "1229";
constexpr char kFailed[] = "1862";

class AContactListThatIsChanged : public ContactService {
 protected:
  AContactListThatIsChanged() {
    for (const char* method : {"1628", "1012", "1421", "1545", "1308", "1811"}) {
      m_runtime->reply(method, ScriptedRuntime::pair("0", "1"));
    }
    AddThree();
  }
  void SetUp() override {
    ContactService::SetUp();
    Build();
  }
  // The command's answer and everything that it asks of the runtime.
  std::vector<std::string> Run(const char* command, const char* p1 = nullptr, const char* p2 = nullptr,
                               const char* p3 = nullptr, const char* p4 = nullptr) {
    const std::size_t before = m_runtime->messages().size();
    std::vector<std::string> texts = {m_host.Execute(command, p1, p2, p3, p4)};
    CZelhostContactManager::GetInstance()->HasCapability("", 1, false);  // comes behind one-way requests
    const std::vector<std::string> messages = m_runtime->messages();
    for (std::size_t i = before; i + 1 < messages.size(); ++i) {
      texts.push_back(ScriptedRuntime::parse(messages[i]).text.substr(2));
    }
    return texts;
  }
  void Report(unsigned search, const char* status) {
    m_runtime->sendEvent("2036", "2073",
                         ScriptedRuntime::pair("1137", std::to_string(search)) +
                             ScriptedRuntime::pair("1551", "1532") + ScriptedRuntime::pair("1667", status));
  }
  // The search ends, and is released.
  void End(unsigned search, const std::string& ids, const char* status) {
    m_runtime->reply("2077", ScriptedRuntime::pair("0", "1") + ScriptedRuntime::pair("1271", ids));
    const std::size_t released = m_runtime->requests("2005").size();
    Report(search, status);
    EXPECT_TRUE(m_runtime->waitForRequests("2005", released + 1));
  }
  void StartSearch(unsigned id) {
    m_runtime->reply("1303", ScriptedRuntime::pair("0", std::to_string(id)));
    EXPECT_EQ(m_host.Execute("SearchNewContact", "a"), "1");
  }
};

TEST_F(AContactListThatIsChanged, AsksTheRuntimeForEveryOperation) {
  const std::string max = R"(1799 1726 1971="max")";
  const std::string zoe = R"(1799 1726 1971="zoe")";
  const std::string nobody = R"(1799 1726 1971="nobody")";
  EXPECT_THAT(
      Run("AddContact", "max"),
      ElementsAre("1", max, R"(1799 1628 1137="42" 1765="Hello~")", R"(1799 1012 1137="42" 1855="1978")",
                  R"(1799 1421 1148="1" 1137="42")", std::string(R"(1799 1879 1137="42" )") + kBasicSet));
  m_runtime->reply("1628", ScriptedRuntime::pair("0", "0"));  // refused
  EXPECT_THAT(Run("AddContact", "max", "hi \"you\""),
              ElementsAre("1", max, R"(1799 1628 1137="42" 1765="hi \"you\"")"));
  EXPECT_THAT(Run("AddZeltoOutContact", "+49123", "Tom"),
              ElementsAre("1", R"(1799 1726 1971="+49123")", R"(1799 1545 1137="43" 1712="Tom")",
                          R"(1221 1538 1085="1755")", R"(1799 1726 1971="+49123")",
                          R"(1221 1308 1137="304" 1396="43")", R"(1799 1879 1137="43" 1857="1092,1238")"));
  EXPECT_THAT(Listed(), ElementsAre("zoe", "max", "max", "+49123", "+49123"));
  EXPECT_THAT(Run("Rename", "max", "Maxi"), ElementsAre("1", max, R"(1799 1545 1137="42" 1712="Maxi")"));
  EXPECT_THAT(Run("SetAssignedPhoneNumber", "max", "2", "home", "+1"),
              ElementsAre("1", max, R"(1799 1811 1301="2" 1137="42" 1197="+1" 1880="home")"));
  EXPECT_THAT(Run("Block", "max", "0"), ElementsAre("1", max, R"(1799 1012 1137="42" 1855="1269")"));
  EXPECT_THAT(Run("Authorize", "zoe"),
              ElementsAre("1", zoe, R"(1799 1012 1137="41" 1855="1978")", R"(1799 1421 1148="1" 1137="41")",
                          R"(1799 1983 1137="41")"));
  EXPECT_THAT(Run("RejectAndBlock", "zoe", "1"),
              ElementsAre("1", zoe, zoe, R"(1799 1012 1137="41" 1855="1269")", zoe,
                          R"(1799 1421 1148="0" 1137="41")"));
  EXPECT_THAT(Run("Remove", "max"), ElementsAre("1", max, R"(1799 1421 1148="0" 1137="42")"));
  EXPECT_THAT(Listed(), ElementsAre("max", "+49123", "+49123"));
  for (const char* command : {"AddContact", "AddZeltoOutContact", "Rename", "Block", "Unblock", "IsBlocked",
                              "Authorize", "RejectAndBlock", "Remove"}) {
    EXPECT_THAT(Run(command, "nobody", "1"), ElementsAre("0", nobody)) << command;
    EXPECT_THAT(Run(command), ElementsAre("0")) << command;
  }
  EXPECT_EQ(Contacts().GetNumOfContacts(), 3);
}

TEST_F(AContactListThatIsChanged, ShowsTheWidgetWhatHasChanged) {
  Know(44, {{kIdentity, "eve"}, {kName, "Eve"}, {kAvailability, kOnline}});
  EXPECT_EQ(m_host.Execute("AddContact", "eve"), "1");
  EXPECT_THAT(Listed(), ElementsAre("zoe", "eve", "max", "+49123"));
  EXPECT_EQ(m_host.Execute("Rename", "max", "Adam"), "1");
  EXPECT_THAT(Listed(), ElementsAre("zoe", "max", "eve", "+49123"));
  EXPECT_EQ(m_host.Execute("Rename", "max", ""), "1");  // nobody is without a name
  EXPECT_STREQ(Contacts().GetContactInfo("max", 21), "max");
  for (const char* slot : {"0", "4", "-1", "4294967298"}) {
    EXPECT_EQ(m_host.Execute("SetAssignedPhoneNumber", "max", slot, "home", "+1"), "0") << slot;
  }
  EXPECT_EQ(m_host.Execute("SetAssignedPhoneNumber", "max", "2", "home", "+1"), "1");
  EXPECT_STREQ(Contacts().GetContactInfo("max", 44), "+1");
  EXPECT_STREQ(Contacts().GetContactInfo("max", 45), "home");
  EXPECT_STREQ(Contacts().GetContactInfo("max", 42), "");
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CONTACT_UPDATED), 4);
  EXPECT_EQ(m_host.Execute("Remove", "max"), "1");
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_REMOVED, "2"));
  EXPECT_EQ(m_host.Execute("Remove", "max"), "1");  // not listed any more
  EXPECT_THAT(Counts(), ElementsAre(0, 1, 1, 1, 0, 0));

  // Whom the user turns away goes without a word, but not who is blocked later.
  EXPECT_EQ(m_host.Execute("RejectAndBlock", "zoe", "0"), "1");
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CONTACT_REMOVED), 1);
  EXPECT_EQ(m_host.Execute("RejectAndBlock", "eve", "1"), "1");
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CONTACT_REMOVED), 1);
  Change(44, kAuthorization, "1269");
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_BLOCKED));
  EXPECT_THAT(Listed(), ElementsAre("+49123"));

  // What unblocking gives depends on where the contact stands; the change of groups is then the user's.
  const auto given = [&] { return Run("Unblock", "eve").back(); };
  EXPECT_EQ(given(), R"(1799 1012 1137="44" 1855="1876")");
  m_memberOf = {"306"};
  EXPECT_EQ(given(), R"(1799 1012 1137="44" 1855="1978")");
  Change(44, kAuthorization, "1876");
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_GROUP_CHANGED));
  EXPECT_FALSE(Contacts().IsBlocked("eve"));
  m_memberOf = {"310"};
  EXPECT_TRUE(Contacts().IsBlocked("eve"));
}

TEST_F(AContactListThatIsChanged, WritesRecordsThatNoNameCanForge) {
  EXPECT_STREQ(Contacts().GetBlockedContactList(), "");
  EXPECT_EQ(Contacts().GetBlockedContact(0), nullptr);
  Add(kBlocked, 61, {{kIdentity, "a\x03\x02z"}, {kName, "\x03\x02\x03\x02\x03"}});
  Add(kBlocked, 62, {{kIdentity, "undefined"}, {kName, "hidden"}});
  Add(kBlocked, 63, {{kPhone, "+1"}, {kName, "Tom"}});
  Add(kBlocked, 64, {});
  m_members["310"] += ",302,0,x";  // a group, and nobody
  EXPECT_EQ(m_host.Execute("GetBlockedContactList"),
            "a  z\x03\x02    \x03\x03\x02+1\x03\x02Tom\x03\x02UNKNOWN\x03\x02\x03\x02");
  EXPECT_STREQ(Contacts().GetBlockedContact(2), "+1");
  EXPECT_STREQ(Contacts().GetBlockedContact(4), "");
  for (const int nobody : {-1, 7, INT_MIN, INT_MAX}) EXPECT_EQ(Contacts().GetBlockedContact(nobody), nullptr);
}

TEST_F(AContactListThatIsChanged, FindsPeopleInTheDirectory) {
  m_runtime->reply("1268", ScriptedRuntime::pair("de", "Germany") + ScriptedRuntime::pair("x", "\x03\x02"));
  m_runtime->reply("1778", ScriptedRuntime::pair("0", "German"));
  Know(61, {{kIdentity, "bob"},
            {"1405", "Bob\x03\x02 B"},
            {"1722", "de"},
            {"2095", "Bonn"},
            {"1250", "de"},
            {kMood, "hi"},
            {kPicture, "picture"}});
  Know(62, {{kIdentity, "../b"}, {"1722", "x"}});
  m_runtime->reply("1303", ScriptedRuntime::pair("0", "90"));
  EXPECT_THAT(Run("SearchNewContact", "bo\"b"),
              ElementsAre("1", R"(2036 1303 1777="50" 1605="0" 1837="bo\"b")"));
  End(90, "61,62,302,0", kFinished);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACTSEARCH_RESULT_READY));
  EXPECT_EQ(m_host.Execute("GetSearchedContactList"),
            "bob\x03\x02"
            "Bob   B\x03\x02Germany\x03\x02"
            "Bonn\x03\x02"
            "../b\x03\x02\x03\x02  \x03\x02\x03\x02");
  EXPECT_EQ(m_runtime->requests("1283").back().arguments.at("1857"), "1704,1405,1722,2095,1250");
  Report(90, kFinished);  // too late

  // One that a newer one joins ends for itself; one that the runtime drops, or that fails, is over too.
  StartSearch(92);
  m_runtime->reply("2059", ScriptedRuntime::pair("0", "91"));
  EXPECT_THAT(Run("SearchContactProfile", "bob"),
              ElementsAre("1", R"(2036 2059 1971="bob" 1777="50" 1605="0")"));
  EXPECT_EQ(Contacts().GetProfileInfo(nullptr), nullptr);
  End(91, "61", kFinished);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_PROFILE_READY));
  const std::string profile =
      "bob\x03\x02"
      "Bob   B\x03\x02Germany\x03\x02"
      "Bonn\x03\x02German\x03\x02hi\x03\x02"
      "file://" +
      std::string(kAvatars) + "bob.jpg\x03\x02";
  EXPECT_EQ(m_host.Execute("GetSearchedProfileInfo"), profile);
  EXPECT_EQ(m_device.Read(kAvatars + std::string("bob.jpg")), "picture");
  m_runtime->sendEvent("2036", "2048", ScriptedRuntime::pair("1137", "92"));
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACTSEARCH_FINISHED, 1));
  EXPECT_EQ(m_host.Execute("SearchContactProfile", "bob"), "1");
  End(91, "", kFinished);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACTSEARCH_EMPTY, 1));
  EXPECT_EQ(m_host.Execute("GetSearchedProfileInfo"), profile);
  EXPECT_STRNE(Contacts().GetSearchedContactList(), "");
  StartSearch(93);
  StartSearch(94);
  StartSearch(95);
  End(93, "61", kFailed);
  End(94, "61", kResultsOnly);
  End(95, "", kFinished);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACTSEARCH_EMPTY, 2));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CONTACTSEARCH_FINISHED), 2);
  EXPECT_STREQ(Contacts().GetSearchedContactList(), "");
}

TEST_F(AContactListThatIsChanged, FindsAContactByAnAddressThatItAsksForOnce) {
  for (unsigned id = 70; id < 90; ++id) {
    const std::string name = "n" + std::to_string(id);
    Add(kAll, id, {{kIdentity, name}, {kEmails, name + "@home org"}});
  }
  Build();
  const auto asked = [&] { return m_runtime->messages().size(); };
  const std::size_t before = asked();
  EXPECT_STREQ(Contacts().FindContactWithEmail("n77@"), "n77");
  const std::size_t once = asked();
  EXPECT_EQ(once - before, 6u);  // group, members and addresses, twice
  EXPECT_STREQ(Contacts().FindContactWithEmail("@home"), "n70");
  for (const char* nobody : {"@work", "", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(Contacts().FindContactWithEmail(nobody), nullptr);
  }
  EXPECT_EQ(asked(), once);
  Know(95, {{kIdentity, "late"}, {kEmails, "late@work"}});
  EXPECT_TRUE(Contacts().AddContact("late", "hi"));
  EXPECT_STREQ(Contacts().FindContactWithEmail("@work"), "late");
}

}  // namespace
