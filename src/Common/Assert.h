// Assertions that hold in every build, release included: for mistakes of the engine's own after which it
// must not go on.
#pragma once

#include <cstdio>
#include <cstdlib>

#define ZELTO_ASSERT(condition)                                                                              \
  do {                                                                                                       \
    if (!(condition)) {                                                                                      \
      std::fprintf(stderr, "%s:%d: %s: Assertion `%s' failed.\n", __FILE__, __LINE__, __func__, #condition); \
      std::abort();                                                                                          \
    }                                                                                                        \
  } while (false)
