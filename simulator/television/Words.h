#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace television {

// A console line as words, separated by blanks. Double quotes keep blanks in a word (and make an empty
// one); inside and outside of them a backslash takes the next character as it is, except "\n" (a line
// feed), "\t" (a tab) and "\|" (the engine's two-byte field separator). An open quote ends with the line.
std::vector<std::string> SplitWords(std::string_view line);

// A word by its place; empty when there are not so many.
std::string WordAt(const std::vector<std::string>& words, std::size_t index);

// What follows a line's first word, unsplit.
std::string AfterFirstWord(const std::string& line);

// A text with blanks after it up to the width, one at least. Counts characters, not bytes.
std::string Column(std::string text, std::size_t width);

// A text of the engine for people: field separators become " | ", other control characters their escapes.
std::string Readable(std::string_view text);

}  // namespace television
