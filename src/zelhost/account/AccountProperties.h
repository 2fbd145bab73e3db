// What the engine keeps of the signed-in account, and what the host may ask for.
#pragma once

namespace zelhost {

// clang-format off
// Properties, in the order in which they are fetched.
inline constexpr int kAccountProperties[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11,
                                             12, 15, 16, 18, 26, 27, 34, 36, 37, 35, 20};
inline constexpr int kAccountCapabilities[] = {1, 2, 3, 5};
// clang-format on

static_assert(sizeof kAccountProperties / sizeof kAccountProperties[0] == 22, "one for each profile value");
static_assert(sizeof kAccountCapabilities / sizeof kAccountCapabilities[0] == 4, "one for each capability");

}  // namespace zelhost
