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
  EXPECT_EQ(list[0], -7);
  EXPECT_EQ(list[1], 0);
  EXPECT_EQ(list.peek(), -7);
  EXPECT_EQ(list.size(), 0U);
  EXPECT_EQ(copy.size(), 2U);
}

TEST(AnIntList, IsReadFromTokens) {
  // Quotes protect nothing, an escaped separator belongs to its token.
  ZEIntList list = ZEIntList::split(",\"5,6\",7\\,8,x,9", ',', '\\');
  ASSERT_EQ(list.size(), 5U);
  for (const int expected : {0, 6, 7, 0, 9}) EXPECT_EQ(list.peek(), expected);
}

}  // namespace
