#include "apiwrapper/ZEObject.h"

#include <gmock/gmock.h>

#include "apiwrapper/Account.h"
#include "apiwrapper/Zelto.h"
#include "tests/apiwrapper/MemoryTransport.h"

namespace {

constexpr int kBit31 = static_cast<int>(kExtendedPropertyBit31);
constexpr int kBit30 = static_cast<int>(kExtendedPropertyBit30);
constexpr int kBothBits = static_cast<int>(kExtendedPropertyBit31 | kExtendedPropertyBit30);

ZEIntList listOf(std::initializer_list<int> ids) {
  ZEIntList list;
  for (const int id : ids) list.append(id);
  return list;
}

class AProxy : public testing::Test {
 protected:
  std::string lastWritten() const { return transport.written.back(); }

  MemoryTransport transport;
  Zelto root{&transport};
  Account* account = root.getAccount(5);
};

TEST_F(AProxy, WritesItsRequests) {
  ZEStringDict arguments;
  arguments.insert("1338", "1");
  EXPECT_EQ(account->createRequest("1911", arguments, true), R"(a 2046 1911 1137="5" 1338="1")");
  EXPECT_EQ(arguments.size(), 1U) << "the caller's arguments stay as they are";
  EXPECT_EQ(account->createRequest("1252"), R"(a 2046 1252 1137="5")");
  ZEStringDict awkward;
  awkward.insert("1338", "a,b\"c\\");
  account->send("1911", awkward, true);
  EXPECT_EQ(lastWritten(), R"(a 2046 1911 1137="5" 1338="a\,b\"c\\")");
  account->send("1911", awkward, false);
  EXPECT_EQ(lastWritten(), R"(a 2046 1911 1137="5" 1338="a,b"c\")");
}

TEST_F(AProxy, ReadsTheReplyAndAnErrorAndALostStreamAsNothing) {
  transport.incoming = {R"(#0 b 0="1" 1555="a\,b")", "#1 d 12 no such method"};
  const ZEStringDict reply = account->sendWithReply("1061");
  EXPECT_EQ(lastWritten(), R"(#0  a 2046 1061 1137="5")");
  EXPECT_EQ(reply.find("0"), "1");
  EXPECT_EQ(reply.find("1555"), "a,b");
  testing::internal::CaptureStderr();
  EXPECT_EQ(account->sendWithReply("1061").size(), 0U);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "ZELTO ERROR - From ZelHost: #1 d 12 no such method\n");
  EXPECT_TRUE(account->GetProp(1).isNull()) << "the stream has ended";
}

TEST_F(AProxy, AsksForPropertiesByTheirNamesAndReadsEnumeratorsAsNumbers) {
  transport.incoming = {R"(#0 b 1704="me" 1405="" 1532="1719" 1819="bogus" 1793="x" 9999="y")"};
  const ZEIntDict values = account->GetProps(listOf({1, 2, 99, kBit31 | 5}));
  EXPECT_EQ(lastWritten(), R"(#0  a 2046 1879 1137="5" 1857="1704,1405,,18935_1668")");
  EXPECT_EQ(values.find(1), "me");
  EXPECT_TRUE(values.find(2).isNull());
  EXPECT_EQ(values.find(21), "7");
  EXPECT_EQ(values.find(22), "-1");
  EXPECT_EQ(values.find(-1), "y") << "unknown names share one entry, the last one wins";
  EXPECT_EQ(values.size(), 5U) << "absent properties stay absent";
  account->GetProps(ZEIntList());
  EXPECT_EQ(transport.written.size(), 1U) << "no ids, no request";
}

TEST_F(AProxy, NamesExtendedProperties) {
  account->SetExtProp(kBit31 | 5, "a\"b");
  EXPECT_EQ(lastWritten(), R"(a 2046 1239 18935_1668="a\"b" 1137="5")");
  ZEIntDict values;
  values.insert(kBothBits | 7, "x");
  values.insert(kBit30 | 7, "y");
  values.insert(3, "ordinary");
  account->SetExtProps(values);
  EXPECT_EQ(lastWritten(), R"(a 2046 1239 18937_1598="y" 1137="5" 18937_1803="x")");
  account->SetExtProps(ZEIntDict());
  EXPECT_EQ(transport.written.size(), 2U);
}

TEST_F(AProxy, ShowsAPropertyToPeople) {
  EXPECT_STREQ(account->getPropDebug(21, "7").join("|", false), "2046|1532|1719");
  EXPECT_STREQ(account->getPropDebug(999, ZEString()).join("|", false), "2046||");
}

TEST_F(AProxy, WithoutAnIdComplainsAtEveryUseButStillSends) {
  Account invalid(0, &root);
  testing::internal::CaptureStderr();
  invalid.send("1252");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "ZELTO ERROR - Calling a function on a deleted object\n");
  EXPECT_EQ(lastWritten(), R"(a 2046 1252 1137="0")");
}

}  // namespace
