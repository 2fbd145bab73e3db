#include "apiwrapper/ZEPMap.h"

#include <gtest/gtest.h>

namespace {

constexpr PMAP kTable[] = {{"one", 1}, {"uno", 1}, {"two", 2}, {"one", 3}, {nullptr, 0}};

TEST(APMap, AnswersTheFirstMatch) {
  const ZEPMap map(kTable);
  EXPECT_STREQ(map.map(1), "one");
  EXPECT_EQ(map.map("one"), 1);
  EXPECT_EQ(map.map("uno"), 1);
  EXPECT_TRUE(map.map(9).isNull());
  EXPECT_EQ(map.map("nine"), -1);
  EXPECT_EQ(map.map(ZEString()), -1);
}

TEST(APMap, FindsNothingWithoutATable) {
  EXPECT_TRUE(ZEPMap(nullptr).map(1).isNull());
  EXPECT_EQ(ZEPMap(nullptr).map("one"), -1);
}

}  // namespace
