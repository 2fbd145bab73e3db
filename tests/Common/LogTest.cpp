#include "Common/Log.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

namespace {

template <typename Function>
std::string Printed(Function function) {
  testing::internal::CaptureStdout();
  function();
  return testing::internal::GetCapturedStdout();
}

TEST(TheLog, PrintsFromEachLevelOnWhatBelongsToIt) {
  const std::string lines[] = {
      "", "[ZELTO_FATAL]f\n", "", "[ZELTO_WARNING]w\n", "[ZELTO_DEBUG]d\n", "[ZELTO_INFO]i\n"};
  std::string expected;
  for (int level = 0; level <= 5; ++level) {
    zelto::g_debugLevel = level;
    expected += lines[level];
    const auto print = [] {
      ZELTO_FATAL("f");
      ZELTO_WARNING("w");
      ZELTO_DEBUG("d");
      ZELTO_INFO("i");
      zelto::Print("p");
    };
    EXPECT_EQ(Printed(print), expected + "p\n") << level;
  }
  zelto::g_debugLevel = 1;
}

TEST(TheLog, KeepsLinesWholeAtEveryLength) {
  for (std::size_t length : std::initializer_list<std::size_t>{0, 1, 495, 496, 497, 498, 499, 508, 509, 510,
                                                               511, 512, 513, 100'000}) {
    const std::string text(length, 'x');
    EXPECT_EQ(Printed([&] { zelto::Print("%s", text.c_str()); }), text + "\n") << length;
    EXPECT_EQ(Printed([&] { ZELTO_FATAL("%s\n", text.c_str()); }), "[ZELTO_FATAL]" + text + "\n") << length;
  }
}

TEST(TheLog, LeavesErrnoAlone) {
  int after = 0;
  const auto printWhatCannotBeFormatted = [&] {
    errno = EDOM;
    zelto::Print("%ls", L"\u20ac");
    after = errno;
  };
  EXPECT_EQ(Printed(printWhatCannotBeFormatted), "\n");
  EXPECT_EQ(after, EDOM);
}

}  // namespace
