// One line on standard error for what a person at the console should know.
#pragma once

#include <cstdio>
#include <string>

namespace simulator {

// Off where lines come by the million and nobody reads them.
inline bool g_logs = true;

inline void Log(const std::string& line) {
  if (g_logs) std::fprintf(stderr, "zelhost: %s\n", line.c_str());
}

}  // namespace simulator
