// The program's command line.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace installer {

struct Options {
  int port = 0;        // 0: a free one
  std::string socket;  // empty: none
  std::string folder = ".";
  std::vector<std::string> failures;  // see Requests::FailNext
  std::int64_t rate = 0;              // bytes a second; 0: as fast as it goes
  bool keep = false;                  // goes on when a client says it is to end
};

// Reads the command line. True when the program goes on; otherwise everything is said and `status` is what
// it ends with.
bool ParseOptions(int argc, char** argv, Options& options, int& status);

}  // namespace installer
