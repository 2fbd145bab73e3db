#include "Common/EventTypes.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

TEST(TheEventNumbers, AreDistinctAndLieInTheirRanges) {
  std::set<int> taken;
  for (const zelto::EventFamily& family : zelto::kEventFamilies) {
    const bool isPublic = std::string(family.name).rfind("PUBLIC_", 0) == 0;
    for (int type : {family.first, family.first + family.count - 1}) {
      EXPECT_EQ(zelto::IsEngineEvent(type), !isPublic) << family.name;
      EXPECT_GT(type, 0) << family.name;
    }
    EXPECT_TRUE(taken.insert(family.first).second) << family.name;
  }
}

TEST(TheEventNames, CoverWholeFamilies) {
  EXPECT_STREQ(zelto::EventName(267), "INCOMING_CALL");
  EXPECT_STREQ(zelto::EventName(412), "WIDGET_OSD_TIMER_EXPIRED");
  EXPECT_STREQ(zelto::EventName(100002), "CALLMEMBER_SPEAKING");
  EXPECT_STREQ(zelto::EventName(19), "PUBLIC_SIGNED_IN");
  for (int nameless : {-1, 0, 255, 261, 414, 99999, 199112}) EXPECT_EQ(zelto::EventName(nameless), nullptr);
}

TEST(TheEventNumbers, AreThoseThatHostsWereBuiltWith) {
  using E = EngineEventTypes;
  EXPECT_EQ(E::ACCOUNT_CBL_IN_SYNC, 271);
  EXPECT_EQ(E::CALL_DURATION, 307);
  EXPECT_EQ(E::VIDEO_STATUS_7, 356);
  EXPECT_EQ(E::CALL_FAILURE_13406, 370);
  EXPECT_EQ(E::VOICEMAIL_STATUS_12, 384);
  EXPECT_EQ(E::CALLMEMBER_STATUS_22, 399);
  EXPECT_EQ(E::REMOTE_VIDEO_ASPECT, 432);
}

}  // namespace
