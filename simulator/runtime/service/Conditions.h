// What people look for: conditions on texts, as the terms of a search give them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

// Numbers of CONTACTSEARCH_CONDITION_MAP and SEARCH_CONDITION_MAP.
enum class Relation : int {
  Equal = 1,
  Greater = 2,
  GreaterOrEqual = 3,
  Less = 4,
  LessOrEqual = 5,
  BeginsWith = 6,
  BeginsGreaterOrEqual = 7,  // only as many characters count as are given
  BeginsLessOrEqual = 8,
  HasWords = 9,            // all of them, in any order
  HasWordBeginnings = 10,  // a word for each of them
};

struct Condition {
  int property;
  Relation relation;
  std::string value;
};

using Alternative = std::vector<Condition>;  // all of them hold
using Query = std::vector<Alternative>;      // one of them holds; an empty query always does

// Upper and lower case of plain letters are the same. Two decimal numbers are compared as such, anything
// else as text; an empty value is neither greater nor less than anything.
// Threads: any; nothing here has a state.
bool Holds(const Condition& condition, std::string_view text);
bool Holds(const Query& query, const std::function<std::string_view(int property)>& textOf);

}  // namespace simulator
