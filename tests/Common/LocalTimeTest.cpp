#include "Common/LocalTime.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "Common/ZeltoManager.h"
#include "tests/Common/TestHost.h"

namespace {

class ATelevisionsClock : public testing::Test {
 protected:
  ATelevisionsClock() : engine(host.StartEngine()) { std::memset(buffer, 'x', sizeof buffer); }
  ~ATelevisionsClock() override { CZeltoManager::Destroy(engine); }

  test::TestHost host;
  IMoIPEngine* const engine;
  char buffer[zelto::kLocalTimeSize + 1];
};

TEST_F(ATelevisionsClock, WritesTheTimeThatTheHostAnswers) {
  host.SetAnswer("GetLocalTime", "2026-11-24 20:15");
  host.SetAnswer("GetLocalTime12", "8:15 PM");
  EXPECT_STREQ(zelto::ConvertToLocalTime(1795551300, buffer), "2026-11-24 20:15");
  EXPECT_STREQ(zelto::ConvertToLocalTime12(1795551300, buffer, 7), "8:15 PM");
  EXPECT_EQ(host.Log(),
            (std::vector<std::string>{"GetLocalTime[1795551300, , , ]", "GetLocalTime12[1795551300, , , ]"}));
}

TEST_F(ATelevisionsClock, NeverWritesBehindTheBuffer) {
  host.SetAnswer("GetLocalTime", std::string(100, '9'));
  zelto::ConvertToLocalTime(0, buffer);
  EXPECT_EQ(std::string(buffer, sizeof buffer), std::string(zelto::kLocalTimeSize, '9') + "x");
}

TEST_F(ATelevisionsClock, LeavesAnEmptyTextWithoutAnAnswer) {
  EXPECT_STREQ(zelto::ConvertToLocalTime(1, buffer), "");
  EXPECT_EQ(zelto::ConvertToLocalTime(1, nullptr), nullptr);
}

}  // namespace
