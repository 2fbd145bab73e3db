#include "simulator/television/Words.h"

#include <algorithm>
#include <cstdio>

#include "simulator/television/Records.h"

namespace television {

namespace {

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

std::string WordAt(const std::vector<std::string>& words, std::size_t index) {
  return index < words.size() ? words[index] : std::string();
}

std::string AfterFirstWord(const std::string& line) {
  const std::size_t start = line.find_first_not_of(" \t");
  const std::size_t blank = line.find_first_of(" \t", start);
  const std::size_t rest = line.find_first_not_of(" \t", blank);
  return blank == std::string::npos || rest == std::string::npos ? std::string() : line.substr(rest);
}

std::string Column(std::string text, std::size_t width) {
  const auto characters = static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xc0) != 0x80; }));
  text.append(characters < width ? width - characters : 1, ' ');
  return text;
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
