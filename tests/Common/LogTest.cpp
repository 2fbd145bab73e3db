#include "Common/Log.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

namespace {

class TheLog : public testing::Test {
 protected:
  ~TheLog() override { zelto::g_debugLevel = 1; }

  template <typename Function>
  static std::string Printed(Function function) {
    testing::internal::CaptureStdout();
    function();
    return testing::internal::GetCapturedStdout();
  }

  static void SayAll() {
    ZELTO_FATAL("f");
    ZELTO_WARNING("w");
    ZELTO_DEBUG("d");
    ZELTO_INFO("i");
    zelto::Print("p");
  }
};

TEST_F(TheLog, PrintsFromEachLevelOnWhatBelongsToIt) {
  const std::string fatal = "[ZELTO_FATAL]f\n";
  const std::string warning = "[ZELTO_WARNING]w\n";
  const std::string debug = "[ZELTO_DEBUG]d\n";
  const std::string info = "[ZELTO_INFO]i\n";
  const std::string always = "p\n";
  const std::string expected[] = {always,
                                  fatal + always,
                                  fatal + always,
                                  fatal + warning + always,
                                  fatal + warning + debug + always,
                                  fatal + warning + debug + info + always};
  for (int level = 0; level <= 5; ++level) {
    zelto::g_debugLevel = level;
    EXPECT_EQ(Printed(SayAll), expected[level]) << level;
  }
}

TEST_F(TheLog, KeepsLinesWholeAtEveryLength) {
  for (std::size_t length :
       {0u, 1u, 490u, 495u, 496u, 497u, 498u, 499u, 508u, 509u, 510u, 511u, 512u, 513u, 100'000u}) {
    const std::string text(length, 'x');
    EXPECT_EQ(Printed([&] { zelto::Print("%s", text.c_str()); }), text + "\n") << length;
    EXPECT_EQ(Printed([&] { ZELTO_FATAL("%s\n", text.c_str()); }), "[ZELTO_FATAL]" + text + "\n") << length;
  }
}

TEST_F(TheLog, LeavesErrnoAlone) {
  errno = EDOM;
  Printed([] { zelto::Print("%s", std::string(2000, 'x').c_str()); });
  EXPECT_EQ(errno, EDOM);
}

}  // namespace
