// What the tables need to state their own sizes.
#pragma once

#include <cstddef>

#include "apiwrapper/ZEProtocol.h"

// Entries before the one that ends the table.
template <std::size_t N>
constexpr std::size_t entriesOf(const PMAP (&)[N]) {
  return N - 1;
}

template <std::size_t N>
constexpr std::size_t entriesOf(const EMAP (&)[N]) {
  return N - 1;
}
