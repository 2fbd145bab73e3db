#include "simulator/television/Words.h"

#include <cstdio>

namespace television {

namespace {

constexpr std::string_view kFieldSeparator = "\x03\x02";

std::string Unescaped(char next) {
  switch (next) {
    case 'n':
      return "\n";
    case 't':
      return "\t";
    case '|':
      return std::string(kFieldSeparator);
    default:
      return std::string(1, next);
  }
}

}  // namespace

std::vector<std::string> SplitWords(std::string_view line) {
  std::vector<std::string> words;
  std::string word;
  bool quoted = false;
  bool inWord = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (c == '\\' && i + 1 < line.size()) {
      word += Unescaped(line[++i]);
      inWord = true;
    } else if (c == '"') {
      quoted = !quoted;
      inWord = true;
    } else if (!quoted && (c == ' ' || c == '\t')) {
      if (inWord) words.push_back(std::move(word));
      word.clear();
      inWord = false;
    } else {
      word += c;
      inWord = true;
    }
  }
  if (inWord) words.push_back(std::move(word));
  return words;
}

std::string Readable(std::string_view text) {
  std::string readable;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (text.substr(i, kFieldSeparator.size()) == kFieldSeparator) {
      readable += " | ";
      i += kFieldSeparator.size() - 1;
    } else if (static_cast<unsigned char>(c) < ' ') {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\x%02x", static_cast<unsigned>(static_cast<unsigned char>(c)));
      readable += c == '\n' ? "\\n" : escape;
    } else {
      readable += c;
    }
  }
  return readable;
}

}  // namespace television
