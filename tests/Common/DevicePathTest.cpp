#include "Common/DevicePath.h"

#include <gtest/gtest.h>

#include <cstdlib>

TEST(DevicePath, PutsTheRootBeforeAPathOnlyWhenOneIsGiven) {
  setenv("ZELTO_DEVICE_ROOT", "/somewhere", 1);
  EXPECT_EQ(zelto::DevicePath("/dtv/socket"), "/somewhere/dtv/socket");
  setenv("ZELTO_DEVICE_ROOT", "", 1);
  EXPECT_EQ(zelto::DevicePath("/dtv/socket"), "/dtv/socket");
  unsetenv("ZELTO_DEVICE_ROOT");
  EXPECT_EQ(zelto::DevicePath("/dtv/socket"), "/dtv/socket");
}

TEST(ShellPath, QuotesOnlyWhatAShellWouldSplitOrExpand) {
  setenv("ZELTO_DEVICE_ROOT", "/a b'$(c)", 1);
  EXPECT_EQ(zelto::ShellPath("/x"), "'/a b'\\''$(c)/x'");
  unsetenv("ZELTO_DEVICE_ROOT");
  EXPECT_EQ(zelto::ShellPath("/tmp/shmipc2_conn"), "/tmp/shmipc2_conn");
}
