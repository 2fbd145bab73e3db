#include "apiwrapper/ZEText.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(AnEqualMask, IsTheSameWithAndWithoutVectorRegisters) {
  std::mt19937 random(1);
  for (int round = 0; round < 2000; ++round) {
    char block[zetext::kBlock];
    for (char& c : block) c = static_cast<char>(random() % (round % 2 == 0 ? 3 : 256));
    for (const int wanted : {0, 1, 2, 127, 128, 255}) {
      std::uint64_t expected = 0;
      for (unsigned int i = 0; i < zetext::kBlock; ++i) {
        if (block[i] == static_cast<char>(wanted)) expected |= std::uint64_t{1} << i;
      }
      ASSERT_EQ(zetext::EqualMask(block, static_cast<char>(wanted)), expected);
      ASSERT_EQ(zetext::EqualMaskPortable(block, static_cast<char>(wanted)), expected);
    }
  }
}

}  // namespace
