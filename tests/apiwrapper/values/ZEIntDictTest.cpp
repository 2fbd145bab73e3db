#include "apiwrapper/ZEIntDict.h"

#include <gtest/gtest.h>

namespace {

TEST(AnIntDict, HoldsOneValuePerKey) {
  ZEIntDict dict;
  dict.insert(5, "x", true);
  EXPECT_EQ(dict.size(), 0U) << "only what is there is replaced";
  EXPECT_EQ(dict.keyAt(0), -1);
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
  // The remainder of 34, 17 and -1 (4294967295) is 0.
  for (const int key : {16, 34, 17, -1}) dict.insert(key, ZEString::from(key));
  dict.insert(18, "a\"b");
  EXPECT_STREQ(dict.format(), R"(34="34" 17="17" -1="-1" 18="a"b" 16="16")");
  EXPECT_EQ(dict.keyAt(2), -1);
  EXPECT_STREQ(dict[3], "a\"b");
}

}  // namespace
