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
