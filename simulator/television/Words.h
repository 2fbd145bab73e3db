#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace television {

// A console line as words, separated by blanks. Double quotes keep blanks in a word (and make an empty
// one); inside and outside of them a backslash takes the next character as it is, except "\n" (a line
// feed), "\t" (a tab) and "\|" (the engine's two-byte field separator). An open quote ends with the line.
std::vector<std::string> SplitWords(std::string_view line);

// A text of the engine for people: field separators become " | ", other control characters their escapes.
std::string Readable(std::string_view text);

}  // namespace television
