// Orders in words, as scenario files hold them.
#include <cctype>
#include <cstdint>
#include <stdexcept>
#include <vector>

#include "simulator/runtime/door/OrderTable.h"
#include "simulator/runtime/door/Orders.h"

namespace simulator {
namespace {

struct Word {
  std::string key;  // empty without "="
  std::string value;
  bool quoted = false;
};

std::vector<Word> SplitWords(std::string_view line) {
  std::vector<Word> words;
  std::size_t at = 0;
  const auto blank = [&] { return std::isspace(static_cast<unsigned char>(line[at])) != 0; };
  while (true) {
    while (at < line.size() && blank()) ++at;
    if (at == line.size()) return words;
    Word word;
    bool inside = false;
    for (; at < line.size() && (inside || !blank()); ++at) {
      const char c = line[at];
      if (c == '"') {
        inside = !inside;
        word.quoted = true;
      } else if (c == '\\' && inside && at + 1 < line.size()) {
        word.value += line[++at];
      } else if (c == '=' && !inside && word.key.empty() && !word.quoted) {
        word.key.swap(word.value);
      } else {
        word.value += c;
      }
    }
    if (inside) throw std::invalid_argument("a quote is not closed");
    words.push_back(std::move(word));
  }
}

nlohmann::json ValueOf(const Word& word) {
  constexpr std::size_t kLongestNumber = 18;
  const std::string& text = word.value;
  if (word.quoted) return text;
  if (text == "true") return true;
  if (text == "false") return false;
  const std::size_t sign = !text.empty() && text[0] == '-' ? 1 : 0;
  const bool number = text.size() > sign && text.size() <= kLongestNumber &&
                      text.find_first_not_of("0123456789", sign) == std::string::npos;
  // Leading zeros mean digits, not a number.
  const bool digits = text.size() > sign + 1 && text[sign] == '0';
  if (number && !digits) return static_cast<std::int64_t>(std::stoll(text));
  return text;
}

}  // namespace

nlohmann::json Orders::FromWords(std::string_view line) {
  const std::vector<Word> words = SplitWords(line);
  if (words.empty() || !words.front().key.empty())
    throw std::invalid_argument("an order begins with its name");
  const std::string& name = words.front().value;
  const OrderRow* row = FindOrder(name);
  if (row == nullptr) throw std::invalid_argument("unknown order " + name);
  nlohmann::json order = {{"order", name}};
  for (std::size_t i = 1; i < words.size(); ++i) {
    const std::string key = words[i].key.empty() ? row->mainArgument : words[i].key;
    if (key.empty()) throw std::invalid_argument(name + " takes no " + words[i].value);
    if (order.contains(key)) throw std::invalid_argument(key + " is given twice");
    order[key] = ValueOf(words[i]);
  }
  return order;
}

}  // namespace simulator
