// One line on standard error for what a person at the console should know.
#pragma once

#include <cstdio>
#include <string>

namespace simulator {

inline void Log(const std::string& line) { std::fprintf(stderr, "zelhost: %s\n", line.c_str()); }

}  // namespace simulator
