// The program's command line.
#pragma once

#include <cstdint>
#include <string>

namespace simulator {

struct Options {
  std::string socket = "zelhost.socket";
  std::string home;                  // HOME, or the current folder without one
  std::string scenario;              // --scenario, else the environment's ZELHOST_SCENARIO; empty for none
  std::int64_t clockDifference = 0;  // seconds
  unsigned seed = 1;
  int pace = 1;  // its own waits are so many times as short
  bool decode = false;
  bool verbose = false;
  bool keep = false;  // goes on listening when an engine has gone
};

// Reads the command line. True when the program goes on; otherwise everything is said and `status` is what
// it ends with.
bool ParseOptions(int argc, char** argv, Options& options, int& status);

}  // namespace simulator
