#include "apiwrapper/ZEReply.h"
#include "apiwrapper/tables/ClassMethods.h"
#include "tests/apiwrapper/ProxyFixture.h"

namespace {

using testing::HasSubstr;
using Results = WithProxies;

TEST_F(Results, ReadAsTheirTypes) {
  results = "0=\"1949\" 1555=\"4294967295\"";
  int expiry = 7;
  EXPECT_EQ(account.GetCapabilityStatus(Contact::CAPABILITY(1), expiry), Account::NO_CAPABILITY);
  EXPECT_EQ(expiry, -1);
  results = "0=\"1\" 1700=r\"A\\0\" 1492=\"640\" 1337=\"480\"";
  ZEString image;
  unsigned int width = 0;
  unsigned int height = 0;
  EXPECT_TRUE(video.CaptureImage(image, width, height));
  EXPECT_EQ(image.getHexRepresentation(), "4100");
  EXPECT_EQ(width, 640U);
  EXPECT_EQ(height, 480U);
  results = "0=\"-12\"";
  EXPECT_EQ(root.GetInt("k"), -12);
  results = "0=\"us,ca\"";
  EXPECT_EQ(root.GetISOCountryCodeByPrefix(1).size(), 2U);
  results = "0=\"1823\" 1629=\"bob\"";
  ZEString normalized;
  EXPECT_EQ(root.NormalizeIdentity("Bob", true, normalized), 3);
  EXPECT_EQ(normalized, "bob");
  results = "us=\"1\" gb=\"44\"";
  EXPECT_EQ(root.GetISOCountryPrefixDict().find("gb"), "44");
  results = "0=\"1\"";
  EXPECT_EQ(root.CreateApp2App("other"), &app2App) << "there is only one";
}

TEST_F(Results, ReadAsNothingWhenAbsent) {
  int expiry = 7;
  EXPECT_EQ(account.GetCapabilityStatus(Contact::CAPABILITY(1), expiry), -1);
  EXPECT_EQ(expiry, 0);
  EXPECT_EQ(account.GetContact(), nullptr);
  EXPECT_EQ(account.GetZeltonameHash(), ZEString());
  EXPECT_EQ(call.GetMembers().size(), 0U);
  EXPECT_FALSE(call.CanHold());
  EXPECT_EQ(root.CreateApp2App("app"), nullptr);
  ZEStringList chunks = textsOf({"old"});
  unsigned int left = 3;
  EXPECT_EQ(sms.SetBody("x", chunks, left), -1);
  EXPECT_EQ(chunks.size(), 0U);
  EXPECT_EQ(left, 0U);
}

TEST_F(Results, KnowNoTokenOfAnotherEnumeration) {
  results = "0=\"1790\"";
  EXPECT_EQ(root.GetLibStatus(), Zelto::CONSTRUCTED);
  EXPECT_EQ(root.GetConnStatus(), -1);
}

TEST_F(Results, MakeAProxyOnFirstSightAndOnlyOnce) {
  results = "0=\"77\"";
  EXPECT_EQ(priceQuote.GetReferredObject(), nullptr) << "of no class, so that none is made";
  Video* made = callMember.GetSendVideo();
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->getOID(), 77U);
  EXPECT_EQ(callMember.GetRecvVideo(), made);
  EXPECT_EQ(priceQuote.GetReferredObject(), made);
}

TEST_F(Results, TakeAnObjectOfAnotherClassForNone) {
  results = "0=\"5,12,9\"";  // an account and a chat around a contact
  testing::internal::CaptureStderr();
  EXPECT_EQ(account.GetContact(), nullptr);
  results = "1271=\"5,12,9\"";
  const ZEPtrVector contacts = contactGroup.GetContacts();
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("ZELTO ERROR"));
  ASSERT_EQ(contacts.size(), 3U);
  EXPECT_EQ(zeObjectAt<Contact>(contacts, 0), nullptr);
  EXPECT_EQ(zeObjectAt<Contact>(contacts, 1), &contact);
  EXPECT_EQ(zeObjectAt<Contact>(contacts, 2), nullptr);
  EXPECT_EQ(root.getObject(5), &account) << "stays what it was";
}

TEST_F(Results, KeepAPlaceForEachEntryOfAList) {
  results = "0=\"1\" 1271=\"12,0,x,,12,-1\" 1639=\"\"";
  ZEPtrVector found;
  EXPECT_TRUE(contactSearch.GetResults(0, -1, found));
  ASSERT_EQ(found.size(), 5U) << "an empty entry is none";
  EXPECT_EQ(found[0], static_cast<ZEObject*>(&contact));
  EXPECT_EQ(found[1], nullptr);
  EXPECT_EQ(found[2], nullptr);
  EXPECT_EQ(found[3], found[0]);
  EXPECT_EQ(zeObjectAt<Contact>(found, 4)->getOID(), 0xFFFFFFFFU);
}

TEST_F(Results, EndAListThatIsTooLong) {
  results = "0=\"1\" 1271=\"";
  for (int id = 1000; id < 1001000; ++id) results += std::to_string(id) + ',';
  results += '"';
  ZEPtrVector found;
  testing::internal::CaptureStderr();
  contactSearch.GetResults(0, -1, found);
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("ZELTO ERROR"));
  ASSERT_EQ(found.size(), kMaxObjectsInReply);
  EXPECT_EQ(zeObjectAt<Contact>(found, kMaxObjectsInReply - 1)->getOID(), 1000 + kMaxObjectsInReply - 1);
  EXPECT_EQ(root.getObject(1000 + kMaxObjectsInReply), nullptr) << "no proxy for what was dropped";
}

TEST_F(Results, OfASearchAreOfTheClassSearchedFor) {
  results = "0=\"1\" 1271=\"7,100\"";
  ZEPtrVector found;
  search.GetResults(0, -1, found);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[1], nullptr) << "before it is known what was searched for";
  search.setTarget(Search::CALLS);
  search.GetResults(0, -1, found);
  EXPECT_EQ(zeObjectAt<Call>(found, 0), &call);
  EXPECT_EQ(zeObjectAt<Call>(found, 1)->getNamespace(), "1133");
}

TEST_F(Results, AreReadWithTheTablesOfTheProxysOwnClass) {
  const auto check = [](ZEObject& object) {
    const ZEClass* row = ZEProtocol::ClassByToken(object.getNamespace());
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(object.getPMap(), row->properties);
    EXPECT_EQ(object.getEMap(), row->enums);
  };
  std::apply([&](App2App&, auto&... proxies) { (check(proxies), ...); }, all);
  EXPECT_EQ(callMember.getNamespace(), "1988");
}

}  // namespace
