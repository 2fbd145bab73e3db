#include "zelhost/ZelhostContactManager.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <set>

#include "Common/ContactManager.h"
#include "tests/zelhost/Service.h"
#include "zelhost/ZelhostAccountManager.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Tokens of a contact's properties.
constexpr char kIdentity[] = "1704";
constexpr char kPhone[] = "1092";
constexpr char kName[] = "1238";
constexpr char kAvailability[] = "1842";
constexpr char kGender[] = "1618";
constexpr char kPicture[] = "1946";
constexpr char kMood[] = "1423";
constexpr char kAuthorization[] = "2107";
constexpr char kRequested[] = "1616";
// Availabilities.
constexpr char kPending[] = "1760";
constexpr char kPhoneNumber[] = "1485";
constexpr char kOnline[] = "1242";
constexpr char kAway[] = "1316";  // 9
// Types of groups, and the objects that stand for them.
constexpr char kWaiting[] = "1017";
constexpr char kBlocked[] = "1932";
constexpr char kAll[] = "2067";
constexpr char kBuddies[] = "2012";
const std::map<std::string, unsigned> kGroups = {
    {kWaiting, 308}, {kBlocked, 310}, {kAll, 302}, {kBuddies, 303}};
constexpr char kAvatars[] = "/mtd_rwcommon/moip/engines/Zelto/avatar/";
constexpr char kImages[] = "/mtd_rwcommon/moip/engines/Zelto/Resource/";

using Values = std::map<std::string, std::string>;

// A runtime with groups of contacts, and somebody who signs in.
class AContactList : public test::Service {
 protected:
  AContactList() {
    m_memory.Serve(*m_runtime);
    m_runtime->reply("1825", ScriptedRuntime::pair("0", "5"));  // the account
    m_runtime->on("1538", [](ScriptedRuntime& to, const ScriptedRequest& request) {
      const auto group = kGroups.find(request.arguments.at("1085"));
      to.answer(request,
                group == kGroups.end() ? "" : ScriptedRuntime::pair("0", std::to_string(group->second)));
    });
    m_runtime->on("1249", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      to.answer(request, ScriptedRuntime::pair("1271", m_members[request.arguments.at("1137")]));
    });
    m_runtime->on("1283", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      std::string lines;
      const std::string ids = request.arguments.at("1271") + ",";
      for (std::size_t from = 0, end; (end = ids.find(',', from)) != std::string::npos; from = end + 1) {
        for (const auto& [token, value] : m_people[ids.substr(from, end - from)]) {
          lines += ScriptedRuntime::pair(token, value);
        }
        lines += "\nb ";
      }
      to.answer(request, lines);
    });
    m_runtime->on("1649", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      to.answer(request,
                ScriptedRuntime::pair("0", std::to_string(m_memberOf.count(request.arguments.at("1102")))));
    });
    for (const auto& [token, id] : kGroups) m_memory.SetProperty(id, "1931", token);
  }
  void SetUp() override {
    ASSERT_TRUE(IsLoaded());
    ASSERT_TRUE(CZelhostAccountManager::GetInstance()->Login("ann", "secret", true));
  }

  // Before the list is built: a contact that the runtime knows, and where it is listed.
  void Know(unsigned id, const Values& values) {
    m_people[std::to_string(id)] = values;
    for (const auto& [token, value] : values) m_memory.SetProperty(id, token, value);
  }
  void Add(const char* group, unsigned id, const Values& values) {
    Know(id, values);
    std::string& members = m_members[std::to_string(kGroups.at(group))];
    members += (members.empty() ? "" : ",") + std::to_string(id);
  }
  void AddThree() {
    Add(kWaiting, 41, {{kIdentity, "zoe"}, {kName, "Zoe"}, {kAvailability, kPending}});
    Add(kAll, 42,
        {{kIdentity, "max"}, {kName, "Max"}, {kAvailability, kOnline}, {kGender, "2"}, {kMood, "hi"}});
    Add(kAll, 43, {{kPhone, "+49123"}, {kAvailability, kPhoneNumber}});
  }
  void Build() { ASSERT_TRUE(Contacts().GetContactAllInfo()); }

  void Change(unsigned id, const char* token, const std::string& value) {
    m_runtime->sendEvent("1799", "2073",
                         ScriptedRuntime::pair("1137", std::to_string(id)) +
                             ScriptedRuntime::pair("1551", token) + ScriptedRuntime::pair("1667", value));
  }
  void ChangeGroup(const char* group, unsigned contact, bool joined) {
    m_runtime->sendEvent("1221", "1762",
                         ScriptedRuntime::pair("1137", std::to_string(kGroups.at(group))) +
                             ScriptedRuntime::pair("1396", std::to_string(contact)) +
                             ScriptedRuntime::pair("1293", joined ? "1" : "0"));
  }

  CZelhostContactManager& Contacts() { return *CZelhostContactManager::GetInstance(); }
  // The identities (or phone numbers) in the list's order.
  std::vector<std::string> Listed() {
    std::vector<std::string> names;
    for (int i = 0; i < Contacts().GetNumOfContacts(); ++i) {
      const std::string identity = Text(Contacts().GetContactInfo(i, 1));
      names.push_back(identity.empty() ? Text(Contacts().GetContactInfo(i, 2)) : identity);
    }
    return names;
  }
  std::vector<int> Counts() {
    std::vector<int> counts;
    for (int category = 0; category < 6; ++category) {
      counts.push_back(Contacts().GetNumOfContactsInCategory(category));
    }
    return counts;
  }
  static std::string Text(const char* text) { return text == nullptr ? "null" : text; }
  // What stands in each field of the records.
  static std::vector<std::string> Fields(const char* records) {
    std::vector<std::string> fields;
    const std::string text = Text(records);
    for (std::size_t from = 0, end; (end = text.find("\x03\x02", from)) != std::string::npos;
         from = end + 2) {
      fields.push_back(text.substr(from, end - from));
    }
    return fields;
  }
  static std::vector<std::string> Identities(const char* records) {
    std::vector<std::string> identities;
    const std::vector<std::string> fields = Fields(records);
    for (std::size_t i = 0; i < fields.size(); i += 7) identities.push_back(fields[i] + fields[i + 1]);
    return identities;
  }

  std::map<std::string, Values> m_people;        // by object
  std::map<std::string, std::string> m_members;  // by group
  std::set<std::string> m_memberOf;              // groups of whoever asks
};

TEST_F(AContactList, ListsByAvailabilityAndAnswersInPages) {
  AddThree();
  EXPECT_EQ(Contacts().GetNumOfContacts(), 0);
  Build();
  Build();  // brings the same entries up to date
  EXPECT_THAT(Listed(), ElementsAre("zoe", "max", "+49123"));
  EXPECT_THAT(Counts(), ElementsAre(0, 1, 1, 1, 0, 0));
  EXPECT_EQ(Contacts().GetNumOfContactsWithoutUnauthorizedContacts(), 2);
  EXPECT_STREQ(Contacts().GetContactInfo("+49123", 21), "+49123");  // nobody is without a name
  EXPECT_THAT(Fields(Contacts().GetContactListWithoutCallMember(1, 1)),
              ElementsAre("max", "", "Max", "7", "2", "", "hi"));

  EXPECT_THAT(Identities(Contacts().GetContactListWithoutUnauthorizedContacts(0, 1)), ElementsAre("max"));
  EXPECT_THAT(Identities(Contacts().GetContactListWithoutCallMemberAndUnauthorizedContacts(0, 9)),
              ElementsAre("max", "+49123"));
  EXPECT_STREQ(Contacts().GetContactListWithoutCallMember(3, 5), "");
  EXPECT_EQ(Contacts().GetContactListWithoutCallMember(0, 0), nullptr);
  EXPECT_EQ(Contacts().GetContactListWithoutCallMember(-1, 1), nullptr);

  const auto around = [&](const char* name, int num, int before) {
    return Identities(Contacts().GetContactInfo(name, num, before));
  };
  EXPECT_THAT(around("zoe", 3, 1), ElementsAre("zoe", "max", "+49123"));
  EXPECT_THAT(around("+49123", 3, 2), ElementsAre("zoe"));
  EXPECT_THAT(around("max", INT_MAX, INT_MIN), ElementsAre("max", "+49123"));
  for (const char* nobody : {"nobody", ""}) EXPECT_EQ(Contacts().GetContactInfo(nobody, 3, 1), nullptr);
  EXPECT_EQ(Contacts().GetContactInfo("max", 2, 2), nullptr);

  EXPECT_EQ(Contacts().GetIndexOfContact("+49123"), 2);
  EXPECT_TRUE(Contacts().IsMyBuddy("max"));
  for (const char* nobody : {"nobody", "", static_cast<const char*>(nullptr)}) {
    EXPECT_FALSE(Contacts().IsMyBuddy(nobody));
    EXPECT_EQ(Contacts().GetIndexOfContact(nobody), -1);
    EXPECT_EQ(Contacts().GetContactStatus(nobody), -1);
  }
  CZelhostAccountManager::GetInstance()->Logout(false);  // signing out
  EXPECT_THAT(Counts(), ElementsAre(0, 0, 0, 0, 0, 0));
  EXPECT_EQ(Contacts().GetContactListWithoutCallMember(0, 5), nullptr);
}

TEST_F(AContactList, FollowsWhatTheRuntimeReportsAboutItsContacts) {
  AddThree();
  Build();
  Change(42, kAvailability, kAway);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_STATUS_CHANGED, "9"));
  EXPECT_THAT(Counts(), ElementsAre(0, 1, 0, 1, 1, 0));
  EXPECT_EQ(Contacts().GetContactStatus("max"), 2);
  EXPECT_STREQ(Contacts().GetStateChangedContact(), "max");
  EXPECT_EQ(Contacts().GetOnlinedContactName(), nullptr);
  Change(42, kAvailability, kOnline);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_STATUS_CHANGED, "7"));
  EXPECT_STREQ(Contacts().GetOnlinedContactName(), "Max");
  EXPECT_EQ(Contacts().GetContactStatus("max"), 1);

  Change(42, kPicture, "picture");
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_UPDATED, "1"));  // its position
  EXPECT_EQ(Contacts().GetContactImage("max"), kAvatars + std::string("max.jpg"));
  EXPECT_EQ(m_device.Read(kAvatars + std::string("max.jpg")), "picture");
  Change(41, kAvailability, kOnline);
  Change(42, kName, "aaron");
  Change(42, kMood, "new");
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_UPDATED, "33"));
  EXPECT_THAT(Listed(), ElementsAre("max", "zoe", "+49123"));
  EXPECT_STREQ(Contacts().GetContactInfo("max", 33), "new");

  // Somebody new is authorized; somebody is blocked.
  Know(44, {{kIdentity, "eve"}, {kAvailability, kOnline}});
  ChangeGroup(kAll, 44, true);
  Change(44, kAuthorization, "1978");
  Change(42, kAuthorization, "1269");
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_BLOCKED));
  EXPECT_THAT(Listed(), ElementsAre("max", "eve", "zoe", "+49123"));
  EXPECT_STREQ(Contacts().GetContactInfo("eve", 21), "eve");
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CONTACT_GROUP_CHANGED), 0);

  // The runtime drops the object between two of its reports; the entry stays as it was by then.
  Change(42, kAvailability, kAway);
  m_runtime->sendEvent("1799", "2048", ScriptedRuntime::pair("1137", "42"));
  Change(42, kMood, "too late");
  Change(41, kMood, "still here");
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_UPDATED, 5));
  EXPECT_STREQ(Contacts().GetContactInfo("max", 20), "9");
  EXPECT_STREQ(Contacts().GetContactInfo("max", 33), "new");
}

TEST_F(AContactList, FollowsItsGroups) {
  AddThree();
  Build();
  Know(50, {{kIdentity, "new"}, {kRequested, "1"}});
  ChangeGroup(kWaiting, 50, true);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_AUTHREQUEST_RECEIVED));
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_UPDATED, "0"));
  EXPECT_THAT(Listed(), ElementsAre("new", "zoe", "max", "+49123"));

  m_memory.SetProperty(50, kRequested, "0");
  m_memberOf = {"303"};
  ChangeGroup(kWaiting, 50, false);
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_AUTHREQUEST_ADDED, "50"));
  m_memberOf = {"310"};
  ChangeGroup(kWaiting, 50, false);
  ChangeGroup(kBlocked, 50, false);  // nobody asked for it, so the widget does not hear of it
  ChangeGroup(kWaiting, 0, false);
  Change(50, kAvailability, kAway);
  ASSERT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_STATUS_CHANGED));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CONTACT_AUTHREQUEST_REMOVED), 0);
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CONTACT_GROUP_CHANGED), 0);
  m_memberOf = {};
  ChangeGroup(kWaiting, 50, false);
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_AUTHREQUEST_REMOVED));
}

TEST_F(AContactList, SurvivesHostileContacts) {
  const std::vector<std::string> names = {"../x",     "a/b",        ".hidden",
                                          "\x01\x1F", "x\x03\x02y", std::string(300, 'n')};
  unsigned id = 60;
  for (const std::string& name : names) {
    Add(kAll, ++id, {{kIdentity, name}, {kPicture, "picture"}, {kMood, "\x03\x02\x03\x02\x03"}});
  }
  Add(kAll, 70, {{kName, "nobody"}, {kPicture, "picture"}});  // neither identity nor phone number
  m_members["302"] += ",61,302,0,x";                          // twice, a group, and nobody
  Build();
  EXPECT_EQ(Contacts().GetNumOfContacts(), static_cast<int>(names.size()));
  EXPECT_EQ(Fields(Contacts().GetContactListWithoutCallMember(0, 100)).size(), 7 * names.size());
  for (const std::string& name : names) {
    EXPECT_TRUE(Contacts().IsMyBuddy(name.c_str()));
    const std::string picture = Text(Contacts().GetContactImage(name.c_str()));
    EXPECT_EQ(picture.rfind(kAvatars, 0), 0u);
    EXPECT_EQ(picture.find('/', sizeof kAvatars - 1), std::string::npos) << picture;
    EXPECT_EQ(m_device.Read(picture), "picture");
  }
  EXPECT_FALSE(m_device.Has("/mtd_rwcommon/moip/engines/Zelto/x.jpg"));
}

TEST_F(AContactList, AnswersWhatItMustAskOrGuess) {
  AddThree();
  Know(42, {{kIdentity, "max"},
            {kName, "Max"},
            {kAvailability, kOnline},
            {kGender, "2"},
            {"1250", "de"},
            {"2095", "x"}});
  Add(kAll, 45, {{kIdentity, "sndtest"}, {kName, "Echo"}, {kAvailability, kAway}});
  Build();
  m_runtime->reply("1726", ScriptedRuntime::pair("0", "42"));
  m_runtime->reply("1778", ScriptedRuntime::pair("0", "German"));
  EXPECT_STREQ(Contacts().GetContactInfo("max", 7), "German");
  EXPECT_STREQ(Contacts().GetContactInfo(1, 10), "x");
  EXPECT_STREQ(Contacts().GetContactInfo("max", 47), "");
  EXPECT_EQ(m_runtime->requests("1726").size(), 1u);
  EXPECT_EQ(Contacts().GetContactInfo("max", 99), nullptr);

  EXPECT_EQ(Text(Contacts().GetContactImage("max")), kImages + std::string("Zelto_default_female.PNG"));
  EXPECT_EQ(Text(Contacts().GetContactImage("zoe")), kImages + std::string("Zelto_default_male.PNG"));
  EXPECT_EQ(Text(Contacts().GetContactImage("+49123")), kImages + std::string("Avatar_PSTN.png"));
  EXPECT_EQ(Text(Contacts().GetContactImage("sndtest")), kImages + std::string("Avatar_EchoTest.png"));

  // Whom a viewer may name, and who is meant.
  EXPECT_THAT(Fields(Contacts().GetOnlineContacts()), ElementsAre("Zoe", "Max", "+49123"));
  EXPECT_STREQ(Contacts().GetZeltoNameWithDisplayName("+49123"), "+49123");
  EXPECT_EQ(Contacts().GetZeltoNameWithDisplayName("Echo"), nullptr);
  EXPECT_FALSE(Contacts().SetCallee("max"));
  EXPECT_EQ(Contacts().GetCallee(), nullptr);
  EXPECT_TRUE(Contacts().SetCallee("Max"));
  EXPECT_STREQ(Contacts().GetCallee(), "max");
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::CONTACT_CALLEE_CHOSEN, "1"));
}

TEST_F(AContactList, KeepsAChangeOfGroupsThatNobodyAskedForFromTheWidget) {
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_GROUP_CHANGED, 0);
  CZeltoManager::SendEvent(CZeltoManager::CONTACT_AUTHREQUEST_ADDED, 0);
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CONTACT_AUTHREQUEST_ADDED), 1);
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CONTACT_GROUP_CHANGED), 0);
}

}  // namespace
