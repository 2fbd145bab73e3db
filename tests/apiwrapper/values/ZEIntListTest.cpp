#include "apiwrapper/ZEIntList.h"

#include <gtest/gtest.h>

namespace {

TEST(AnIntList, KeepsEveryValueInOrder) {
  ZEIntList list;
  EXPECT_EQ(list.peek(), 0);
  list.append(0);
  list.append(-7);
  const ZEIntList copy = list;
  EXPECT_EQ(list.peek(), 0);
  EXPECT_EQ(list.size(), 1U);
  EXPECT_EQ(list[0], -7);
  EXPECT_EQ(list[1], 0);
  EXPECT_EQ(list.peek(), -7);
  EXPECT_EQ(list.size(), 0U);
  EXPECT_EQ(copy.size(), 2U);
}

TEST(AnIntList, IsReadFromTokens) {
  const ZEIntList two = ZEIntList::split("1 2", ' ', '\\');
  ASSERT_EQ(two.size(), 2U);
  EXPECT_EQ(two[0], 1);
  EXPECT_EQ(two[1], 2);
  // Quotes protect nothing, an escaped separator belongs to its token.
  const ZEIntList odd = ZEIntList::split(",\"5,6\",7\\,8,x", ',', '\\');
  ASSERT_EQ(odd.size(), 4U);
  EXPECT_EQ(odd[0], 0);
  EXPECT_EQ(odd[1], 6);
  EXPECT_EQ(odd[2], 7);
  EXPECT_EQ(odd[3], 0);
}

}  // namespace
