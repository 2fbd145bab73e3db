#include "apiwrapper/ZEPtrVector.h"

#include <gtest/gtest.h>

namespace {

TEST(APtrVector, SharesItsSlotsWithCopies) {
  int object = 0;
  ZEPtrVector vector(2);
  const ZEPtrVector copy = vector;
  vector[1] = &object;
  EXPECT_EQ(copy.size(), 2U);
  EXPECT_EQ(copy[0], nullptr);
  EXPECT_EQ(copy[1], &object);
}

TEST(APtrVector, GivesASpareSlotOutOfRange) {
  int object = 0;
  const ZEPtrVector null;
  const ZEPtrVector one(1);
  EXPECT_EQ(ZEPtrVector(0).size() + null.size(), 0U);
  null[0] = &object;
  EXPECT_EQ(&null[7], &one[1]);
  EXPECT_EQ(one[1], nullptr);
  EXPECT_EQ(one[0], nullptr);
}

}  // namespace
