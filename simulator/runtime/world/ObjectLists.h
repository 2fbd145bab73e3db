// Lists of objects' ids as requests answer them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace simulator {

// The ids of a map's entries by a time of each, the latest first; among equals the object that was made
// first.
template <class Entries, class TimeOf>
std::vector<unsigned> NewestFirst(const Entries& entries, TimeOf timeOf) {
  std::vector<std::pair<std::int64_t, unsigned>> order;
  for (const auto& [id, entry] : entries) order.emplace_back(-timeOf(entry), id);
  std::sort(order.begin(), order.end());
  std::vector<unsigned> ids;
  for (const auto& [time, id] : order) ids.push_back(id);
  return ids;
}

// Those for which it holds, in their order.
template <class Wanted>
std::vector<unsigned> Only(std::vector<unsigned> ids, Wanted wanted) {
  ids.erase(std::remove_if(ids.begin(), ids.end(), [&](unsigned id) { return !wanted(id); }), ids.end());
  return ids;
}

}  // namespace simulator
