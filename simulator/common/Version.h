#pragma once

namespace simulator {

// The version of the simulator's programs, as --version prints it.
inline constexpr char kVersion[] = "1.0.0";

}  // namespace simulator
