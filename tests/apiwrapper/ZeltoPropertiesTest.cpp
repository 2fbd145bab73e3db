#include <gmock/gmock.h>

#include "apiwrapper/Contact.h"
#include "apiwrapper/Zelto.h"
#include "apiwrapper/tables/PropertyMaps.h"
#include "tests/apiwrapper/MemoryTransport.h"

namespace {

using testing::ElementsAre;

class ARootWithContacts : public testing::Test {
 protected:
  ARootWithContacts() {
    for (unsigned int i = 0; i < 3; ++i) contacts[i] = root.getContact(100 + i);
    ids.append(1);
    ids.append(20);
  }
  ZEIntDict& cacheOf(unsigned int oid) { return root.getContact(oid)->propCache; }

  MemoryTransport transport;
  Zelto root{&transport};
  ZEPtrVector contacts{3};
  ZEIntList ids;
};

TEST_F(ARootWithContacts, FillsTheCachesOfMany) {
  cacheOf(102).insert(1, "stale");
  // The second name holds a line feed inside its quotes; the third line is missing.
  transport.incoming = {"#0 b 1704=\"anna\" 1842=\"1242\"\nb 1704=\"be\nrt\" 1842=\"?\""};
  EXPECT_TRUE(root.GetMultipleObjectsProps(contacts, ids));
  EXPECT_THAT(transport.written, ElementsAre(R"(#0  a 1799 1283 1857="1704,1842" 1271="100,101,102")"));
  EXPECT_EQ(cacheOf(100).find(1), "anna");
  EXPECT_EQ(cacheOf(100).find(20), "7");
  EXPECT_EQ(cacheOf(101).find(1), "be\nrt");
  EXPECT_EQ(cacheOf(101).find(20), "-1");
  EXPECT_TRUE(cacheOf(102).isEmpty());
}

TEST_F(ARootWithContacts, EmptiesTheCachesWhenTheRuntimeFails) {
  for (const char* reply : {"#0 d 1 refused", "#1 b ", "#2 "}) {
    cacheOf(100).insert(1, "stale");
    transport.incoming = {reply};
    testing::internal::CaptureStderr();
    EXPECT_TRUE(root.GetMultipleObjectsProps(contacts, ids));
    testing::internal::GetCapturedStderr();
    EXPECT_TRUE(cacheOf(100).isEmpty()) << reply;
  }
}

TEST_F(ARootWithContacts, SkipsMissingObjectsAndAsksNothingWithoutAny) {
  contacts[0] = nullptr;
  transport.incoming = {"#0 b 1704=\"bert\"\nb 1704=\"carl\"\nb 1704=\"one too many\""};
  EXPECT_TRUE(root.GetMultipleObjectsProps(contacts, ids));
  EXPECT_EQ(transport.written.back(), R"(#0  a 1799 1283 1857="1704,1842" 1271="101,102")");
  EXPECT_EQ(cacheOf(102).find(1), "carl");
  contacts[1] = nullptr;
  contacts[2] = nullptr;
  EXPECT_FALSE(root.GetMultipleObjectsProps(contacts, ids));
  EXPECT_FALSE(root.GetMultipleObjectsProps(ZEPtrVector(), ids));
  EXPECT_EQ(transport.written.size(), 1U);
}

TEST_F(ARootWithContacts, FiltersPropertiesByClass) {
  ids.append(999);
  ids.append(2);
  root.FilterOutProps(Zelto::TYPE_ACCOUNT, ids);
  EXPECT_EQ(transport.written.back(), R"(a 2046 1522 1857="1704,1842,,1405")");
  transport.written.clear();
  for (int type = -1; type < 20; ++type)
    root.FilterOutProps(static_cast<Zelto::OBJECTTYPE>(type), ZEIntList());
  EXPECT_THAT(transport.written,
              ElementsAre("a 2046 1522", "a 1133 1522", "a 1988 1522", "a 1974 1522", "a 1684 1522",
                          "a 1609 1522", "a 1764 1522", "a 2085 1522", "a 1459 1522", "a 1221 1522",
                          "a 1799 1522", "a 1305 1522", "a 2036 1522"));
}

TEST(AMappedDictionary, KeepsTheLastOfEqualNamesAndLeavesOutUnknownNumbers) {
  ZEStringDict named;
  named.insert("1704", "a");
  named.insert("1704", "b");
  named.insert("nobody", "c");
  const ZEIntDict numbered = Zelto::mapDict(named, ACCOUNT_PROPERTY_MAP);
  EXPECT_EQ(numbered.find(1), "b");
  EXPECT_EQ(numbered.find(-1), "c");
  const ZEStringDict back = Zelto::mapDict(numbered, ACCOUNT_PROPERTY_MAP);
  EXPECT_EQ(back.find("1704"), "b");
  EXPECT_EQ(back.size(), 1U);
}

}  // namespace
