#include "tests/zelhost/contacts/ContactService.h"

#include <gmock/gmock.h>

namespace {

using namespace test;
using testing::ElementsAre;

class AContactList : public ContactService {};

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
  m_runtime->reply("1778", ScriptedRuntime::pair("0", "German"));
  EXPECT_STREQ(Contacts().GetContactInfo("max", 7), "German");
  EXPECT_STREQ(Contacts().GetContactInfo(1, 10), "x");
  EXPECT_STREQ(Contacts().GetContactInfo("max", 47), "");
  EXPECT_EQ(m_runtime->requests("1726").size(), 1u);
  EXPECT_EQ(Contacts().GetContactInfo("max", 99), nullptr);

  EXPECT_EQ(Text(Contacts().GetContactImage("max")), kImages + std::string("Zelto_default_female.PNG"));

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

}  // namespace
