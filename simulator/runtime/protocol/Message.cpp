#include "simulator/runtime/protocol/Message.h"

#include <charconv>
#include <limits>

namespace simulator {
namespace {

constexpr char kEscape = '\\';
constexpr std::string_view kEscaped = ",\"\\";

// Takes the next word off the front; blanks around it go too.
std::string_view TakeWord(std::string_view& text) {
  const auto begin = text.find_first_not_of(' ');
  if (begin == std::string_view::npos) {
    text = {};
    return {};
  }
  const auto end = std::min(text.find(' ', begin), text.size());
  const auto word = text.substr(begin, end - begin);
  text.remove_prefix(end);
  return word;
}

// Length of a quoted value that starts at the front of the text, up to its closing quote.
std::size_t QuotedLength(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') return i;
    if (text[i] == kEscape) ++i;
  }
  return std::string_view::npos;
}

bool IsRequestId(std::string_view word) {
  return word.size() > 1 && word.size() <= 9 && word[0] == '#' &&
         word.find_first_not_of("0123456789ABCDEF", 1) == std::string_view::npos;
}

template <typename Integer>
Integer ToNumber(std::string_view text) {
  const auto begin = text.find_first_not_of(" \t");
  if (begin == std::string_view::npos) return 0;
  text.remove_prefix(begin);
  Integer value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  return text[0] == '-' ? std::numeric_limits<Integer>::min() : std::numeric_limits<Integer>::max();
}

}  // namespace

std::string Unescape(std::string_view raw) {
  std::string text;
  text.reserve(raw.size());
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] == kEscape && ++i == raw.size()) break;
    text += raw[i];
  }
  return text;
}

std::string UnescapeBinary(std::string_view raw) {
  std::string bytes;
  bytes.reserve(raw.size());
  for (std::size_t i = 0; i < raw.size(); ++i) {
    const bool escaped = raw[i] == kEscape;
    if (escaped && ++i == raw.size()) break;
    bytes += escaped && raw[i] == '0' ? '\0' : raw[i];
  }
  return bytes;
}

std::string EscapeBinary(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 16);
  for (const char c : bytes) {
    if (c == '\0') {
      text += "\\0";
      continue;
    }
    if (kEscaped.find(c) != std::string_view::npos) text += kEscape;
    text += c;
  }
  return text;
}

std::vector<std::string_view> SplitList(std::string_view raw) {
  std::vector<std::string_view> pieces;
  if (raw.empty()) return pieces;
  std::size_t begin = 0;
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] == kEscape) {
      ++i;
    } else if (raw[i] == ',') {
      pieces.push_back(raw.substr(begin, i - begin));
      begin = i + 1;
    }
  }
  pieces.push_back(raw.substr(begin));
  return pieces;
}

int ToInt(std::string_view text) { return ToNumber<int>(text); }
unsigned ToUnsigned(std::string_view text) { return ToNumber<unsigned>(text); }

bool ParsePairs(std::string_view text, std::vector<Pair>& pairs) {
  for (;;) {
    const auto begin = text.find_first_not_of(' ');
    if (begin == std::string_view::npos) return true;
    text.remove_prefix(begin);
    const auto equals = text.find('=');
    if (equals == std::string_view::npos || equals == 0) return false;
    Pair pair{text.substr(0, equals), {}, false};
    if (pair.key.find(' ') != std::string_view::npos) return false;
    text.remove_prefix(equals + 1);
    if (!text.empty() && text[0] == 'r') {
      pair.binary = true;
      text.remove_prefix(1);
    }
    if (text.empty() || text[0] != '"') return false;
    text.remove_prefix(1);
    const auto length = QuotedLength(text);
    if (length == std::string_view::npos) return false;
    pair.raw = text.substr(0, length);
    pairs.push_back(pair);
    text.remove_prefix(length + 1);
    if (!text.empty() && text[0] != ' ') return false;
  }
}

bool Request::Parse(std::string_view text) {
  m_id = m_class = m_method = {};
  m_pairs.clear();
  if (!text.empty() && text[0] == '#') {
    std::string_view rest = text;
    const auto word = TakeWord(rest);
    if (!IsRequestId(word) || rest.empty()) return false;
    m_id = text.substr(0, word.size() + 1);
    text = rest;
  }
  if (TakeWord(text) != "a") return false;
  m_class = TakeWord(text);
  m_method = TakeWord(text);
  return !m_class.empty() && !m_method.empty() && ParsePairs(text, m_pairs);
}

const Pair* Request::Find(std::string_view key) const {
  for (const Pair& pair : m_pairs) {
    if (pair.key == key) return &pair;
  }
  return nullptr;
}

void PairWriter::Open(std::string_view key, bool binary) {
  if (!m_first) *m_text += ' ';
  m_first = false;
  m_text->append(key).append(binary ? "=r\"" : "=\"");
}

void PairWriter::Text(std::string_view key, std::string_view value) {
  Open(key, false);
  for (auto at = value.find_first_of(kEscaped); at != std::string_view::npos;
       at = value.find_first_of(kEscaped)) {
    m_text->append(value.substr(0, at)) += kEscape;
    *m_text += value[at];
    value.remove_prefix(at + 1);
  }
  m_text->append(value) += '"';
}

void PairWriter::Binary(std::string_view key, std::string_view value) {
  Open(key, true);
  m_text->append(value) += '"';
}

void PairWriter::Number(std::string_view key, long long value) {
  Open(key, false);
  char digits[24];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  m_text->append(digits, static_cast<std::size_t>(end - digits)) += '"';
}

}  // namespace simulator
