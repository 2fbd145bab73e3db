#include "simulator/runtime/service/Conditions.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "simulator/runtime/service/AccountRules.h"

namespace simulator {
namespace {

std::optional<long long> NumberIn(std::string_view text) {
  long long number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

template <typename T>
int Order(const T& a, const T& b) {
  return a < b ? -1 : b < a ? 1 : 0;
}

int Compare(const std::string& text, const std::string& value) {
  const auto a = NumberIn(text);
  const auto b = NumberIn(value);
  return a && b ? Order(*a, *b) : Order(text, value);
}

std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  while (!text.empty()) {
    const auto end = std::min(text.find(' '), text.size());
    if (end > 0) words.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return words;
}

bool HasWords(std::string_view text, std::string_view value, bool beginnings) {
  const auto words = WordsOf(text);
  const auto wanted = WordsOf(value);
  const auto isThere = [&](std::string_view word) {
    return std::any_of(words.begin(), words.end(), [&](std::string_view candidate) {
      return beginnings ? candidate.substr(0, word.size()) == word : candidate == word;
    });
  };
  return !wanted.empty() && std::all_of(wanted.begin(), wanted.end(), isThere);
}

}  // namespace

bool Holds(const Condition& condition, std::string_view given) {
  const std::string text = Lower(given);
  const std::string value = Lower(condition.value);
  const std::string beginning = text.substr(0, value.size());
  const bool comparable = !text.empty() && !value.empty();
  switch (condition.relation) {
    case Relation::Equal:
      return Compare(text, value) == 0;
    case Relation::Greater:
      return comparable && Compare(text, value) > 0;
    case Relation::GreaterOrEqual:
      return comparable && Compare(text, value) >= 0;
    case Relation::Less:
      return comparable && Compare(text, value) < 0;
    case Relation::LessOrEqual:
      return comparable && Compare(text, value) <= 0;
    case Relation::BeginsWith:
      return beginning == value;
    case Relation::BeginsGreaterOrEqual:
      return comparable && beginning >= value;
    case Relation::BeginsLessOrEqual:
      return comparable && beginning <= value;
    case Relation::HasWords:
      return HasWords(text, value, false);
    case Relation::HasWordBeginnings:
      return HasWords(text, value, true);
  }
  return false;
}

bool Holds(const Query& query, const std::function<std::string_view(int property)>& textOf) {
  const auto holds = [&](const Condition& condition) { return Holds(condition, textOf(condition.property)); };
  return query.empty() || std::any_of(query.begin(), query.end(), [&](const Alternative& alternative) {
           return std::all_of(alternative.begin(), alternative.end(), holds);
         });
}

}  // namespace simulator
