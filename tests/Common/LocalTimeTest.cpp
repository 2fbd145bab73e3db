#include "Common/LocalTime.h"

#include <cstring>

#include "tests/Common/EngineFixture.h"

namespace {

class ATelevisionsClock : public test::EngineFixture {};

TEST_F(ATelevisionsClock, WritesWhatTheHostAnswersAndNeverBehindTheBuffer) {
  char buffer[zelto::kLocalTimeSize + 1];
  std::memset(buffer, 'x', sizeof buffer);
  host.answers = {{"GetLocalTime", std::string(100, '9')}, {"GetLocalTime12", "8:15 PM"}};
  zelto::ConvertToLocalTime(1795551300, buffer);
  EXPECT_EQ(std::string(buffer, sizeof buffer), std::string(zelto::kLocalTimeSize, '9') + "x");
  EXPECT_STREQ(zelto::ConvertToLocalTime12(1795551300, buffer, 7), "8:15 PM");
  EXPECT_EQ(host.TakeLog(),
            (test::Log{"GetLocalTime[1795551300, , , ]", "GetLocalTime12[1795551300, , , ]"}));
  host.answers.clear();
  EXPECT_STREQ(zelto::ConvertToLocalTime(1, buffer), "");
  EXPECT_EQ(zelto::ConvertToLocalTime(1, nullptr), nullptr);
}

}  // namespace
