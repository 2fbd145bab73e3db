#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/DeviceRoot.h"
#include "tests/system/SwitchedOnTelevision.h"

namespace test {

namespace {

// Runs the program with a script that needs no runtime; answers its exit status.
int RunScript(const std::string& lines) {
  const DeviceRoot root;
  const std::string script = root.Path() + "/script";
  std::ofstream(script) << lines;
  const std::string command = Built("zelto-tv") + " --device-root " + root.Path() + " --script " + script +
                              " --log /dev/null > /dev/null";
  return WEXITSTATUS(std::system(command.c_str()));
}

}  // namespace

TEST(TheTelevisionProgram, EndsWithZeroOnlyWhenTheScriptsExpectationsHeld) {
  EXPECT_EQ(RunScript("GetZeltoState\nexpect 3\nset model X1\nGetTVModel\nexpect X1\n"), 0);
  EXPECT_EQ(RunScript("GetTVModel\nexpect-like ^ZTV-\nquery IsLoggedIn\nexpect no\n"), 0);
  EXPECT_EQ(RunScript("GetZeltoState\nexpect 1\n"), 1);
  EXPECT_EQ(RunScript("NoSuchCommand\n"), 1);
  EXPECT_EQ(RunScript("ShowConnectingWnd\nwait PUBLIC_CONNECTING_SHOWN 5\nwait 371 1\n"), 1);
}

}  // namespace test
