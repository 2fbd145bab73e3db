#include "apiwrapper/ZEIntDict.h"

#include <gtest/gtest.h>

namespace {

TEST(AnIntDict, HoldsOneValuePerKey) {
  ZEIntDict dict;
  dict.insert(5, "x", true);
  EXPECT_EQ(dict.size(), 0U);
  EXPECT_EQ(dict.keyAt(0), -1);
  EXPECT_TRUE(dict.find(5).isNull());
  dict.insert(5, "a");
  const ZEIntDict before = dict;
  dict.insert(5, "b", true);
  EXPECT_STREQ(dict.find(5), "b");
  EXPECT_STREQ(before.find(5), "a");
  EXPECT_EQ(dict.size(), 1U);
  EXPECT_EQ(dict.keyAt(1), 0);
  EXPECT_TRUE(dict[1].isNull());
}

TEST(AnIntDict, IsOrderedByUnsignedRemainders) {
  ZEIntDict dict;
  EXPECT_TRUE(dict.format().isNull());
  dict.insert(16, "last");
  dict.insert(34, "second");  // remainder 0
  dict.insert(17, "third");   // remainder 0
  dict.insert(-1, "first");   // 4294967295 leaves 0 as well, but comes later
  dict.insert(18, "a\"b");
  EXPECT_STREQ(dict.format(), "34=\"second\" 17=\"third\" -1=\"first\" 18=\"a\"b\" 16=\"last\"");
  EXPECT_EQ(dict.keyAt(2), -1);
  EXPECT_STREQ(dict[3], "a\"b");
}

}  // namespace
