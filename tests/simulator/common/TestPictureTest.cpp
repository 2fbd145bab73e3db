#include "simulator/common/TestPicture.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <stdexcept>

#include "simulator/common/PictureShape.h"

namespace simulator {
namespace {

constexpr std::size_t kLargest = 100'000;  // bytes, so that three pictures fit into a channel

std::optional<BurntIn> Read(const std::vector<unsigned char>& frame) {
  return ReadTestPicture(frame.data() + TestPicture::kTimeStampSize,
                         frame.size() - TestPicture::kTimeStampSize);
}

TEST(ATestPicture, TellsWhatWasBurntInAtAnySize) {
  constexpr BurntIn kBurnt[] = {
      {0, 0},
      {1, 1'000'000},
      {0x80000001, 123'456'789'012'345},
      {std::numeric_limits<std::uint32_t>::max(), std::numeric_limits<std::int64_t>::max()},
      {12, -1},
  };
  for (const PictureShape& shape : {PictureShape{640, 480}, {160, 120}, {1920, 1080}, {168, 4096}}) {
    TestPicture picture("Camera 1", static_cast<int>(shape.width), static_cast<int>(shape.height));
    for (const BurntIn& burnt : kBurnt) {
      const std::vector<unsigned char>& frame = picture.Draw(burnt);
      EXPECT_EQ(shape, ReadPictureShape(frame.data() + TestPicture::kTimeStampSize, frame.size() - 4));
      const auto read = Read(frame);
      ASSERT_TRUE(read.has_value()) << burnt.counter;
      EXPECT_EQ(burnt.counter, read->counter);
      EXPECT_EQ(burnt.clock, read->clock);
      EXPECT_LT(frame.size(), shape.width == 640 ? kLargest : 5 * kLargest);
    }
  }
  EXPECT_THROW(TestPicture("small", 152, 120), std::invalid_argument);
  EXPECT_THROW(TestPicture("crooked", 161, 120), std::invalid_argument);
}

// Nothing is ever read that was not burnt in.
TEST(ADamagedTestPicture, TellsTheTruthOrNothing) {
  TestPicture picture("Camera 1");
  const BurntIn burnt{4711, 987'654'321};
  const std::vector<unsigned char> whole = picture.Draw(burnt);
  std::mt19937 random(1);
  int refused = 0;
  for (int i = 0; i < 500; ++i) {
    std::vector<unsigned char> frame = whole;
    frame[4 + random() % (frame.size() - 4)] ^= static_cast<unsigned char>(1 + random() % 255);
    if (i % 2 == 0) frame.resize(4 + random() % (frame.size() - 4));
    const auto read = Read(frame);
    refused += read.has_value() ? 0 : 1;
    EXPECT_TRUE(!read || (read->counter == burnt.counter && read->clock == burnt.clock));
    for (unsigned char& byte : frame) byte = static_cast<unsigned char>(random());
    EXPECT_FALSE(Read(frame).has_value());
  }
  EXPECT_GT(refused, 250);
  EXPECT_TRUE(Read(whole).has_value());  // as if there had been no others
  EXPECT_FALSE(ReadTestPicture(nullptr, 0).has_value());
}

}  // namespace
}  // namespace simulator
