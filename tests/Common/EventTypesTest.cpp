#include "Common/EventTypes.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

TEST(TheEventNumbers, AreDistinctAndLieInTheirRanges) {
  std::set<int> taken;
  for (const zelto::EventFamily& family : zelto::kEventFamilies) {
    const bool isPublic = std::string(family.name).rfind("PUBLIC_", 0) == 0;
    for (int type = family.first; type < family.first + family.count; ++type) {
      ASSERT_EQ(zelto::IsEngineEvent(type), !isPublic) << type;
      ASSERT_GT(type, 0);
      ASSERT_TRUE(taken.insert(type).second) << type;
      ASSERT_STREQ(zelto::EventName(type), family.name);
    }
  }
  for (int type : {-1, 0, 255, 199112}) EXPECT_EQ(zelto::EventName(type), nullptr);
}

}  // namespace
