// The rules of tokens and pairs once more, a byte at a time and with no regard to speed: what the value
// types do in blocks is compared with this.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace plain {

// quotes[i]: number of unescaped double quotes at positions 0..i.
inline std::vector<int> QuoteCounts(const std::string& text, char escape) {
  std::vector<int> counts;
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::size_t run = 0;
    while (run < i && text[i - 1 - run] == escape) ++run;
    const bool counted = text[i] == '"' && run % 2 == 0;
    counts.push_back((counts.empty() ? 0 : counts.back()) + (counted ? 1 : 0));
  }
  return counts;
}

inline std::vector<std::string> Walk(const std::string& text, char separator, char escape,
                                     const std::vector<int>& quotes) {
  std::vector<std::string> tokens;
  std::size_t i = text.find_first_not_of(separator);
  while (i < text.size()) {
    const std::size_t start = i;
    for (; i < text.size(); ++i) {
      if (text[i] != separator) continue;
      if (escape == 0) break;
      if (text[i - 1] != escape && (quotes.empty() || quotes[i] % 2 == 0)) break;
    }
    tokens.push_back(text.substr(start, i - start));
    i = text.find_first_not_of(separator, i);
  }
  return tokens;
}

inline std::vector<std::string> Split(const std::string& text, char separator, char escape) {
  if (escape == 0) return Walk(text, separator, escape, {});
  if (text.substr(0, 2) == "\"\"") return {};
  return Walk(text, separator, escape, QuoteCounts(text, escape));
}

inline std::string Range(const std::string& text, long from, long to) {
  const long length = static_cast<long>(text.size());
  std::string range;
  if (from < 0) from = 0;
  if (to >= length) to = length - 1;
  if (to < 0) to = length - 1 + to;
  if (to < from) std::swap(from, to);
  for (long i = std::max(from, 0L); i <= to && i < length; ++i) range += text[static_cast<std::size_t>(i)];
  return range;
}

inline std::string Unescape(const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\' && ++i == text.size()) break;
    result += text[i];
  }
  return result;
}

struct Pair {
  std::string key;
  std::optional<std::string> value;
  bool binary = false;
};

// The pairs in the order of the text.
inline std::vector<Pair> Parse(const std::vector<std::string>& tokens) {
  std::vector<Pair> pairs;
  for (const std::string& token : tokens) {
    const std::size_t equals = token.find('=');
    if (equals == std::string::npos) continue;
    Pair pair;
    pair.key = token.substr(0, equals);
    pair.binary = token.substr(equals + 1, 2) == "r\"";
    const std::string raw = Range(token, static_cast<long>(equals) + (pair.binary ? 3 : 2), -1);
    if (raw.substr(0, 2) != "\"\"") pair.value = pair.binary ? raw : Unescape(raw);
    pairs.push_back(pair);
  }
  return pairs;
}

}  // namespace plain
