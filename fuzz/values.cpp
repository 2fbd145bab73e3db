// Foreign texts through the value types, beside the plain rules: the first two bytes choose separator and
// escape character, the rest is the text.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "../tests/apiwrapper/values/PlainRules.h"
#include "apiwrapper/ZEIntDict.h"
#include "apiwrapper/ZEIntList.h"
#include "apiwrapper/ZEStringDict.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckSplit(const ZEString& text, char separator, char escape) {
  const std::vector<std::string> expected = plain::Split(std::string(text.view()), separator, escape);
  ZEStringList tokens = ZEStringList::split(text, separator, escape);
  Require(tokens.size() == expected.size());
  for (const std::string& token : expected) Require(tokens.peek().view() == token);
  Require(tokens.peek().isNull());

  const std::vector<std::string> numbers = plain::Walk(std::string(text.view()), separator, escape, {});
  ZEIntList values = ZEIntList::split(text, separator, escape);
  Require(values.size() == numbers.size());
  for (const std::string& number : numbers) Require(values.peek() == ZEString(number).toInt());
}

void CheckParse(const ZEString& text) {
  std::vector<plain::Pair> expected = plain::Parse(plain::Split(std::string(text.view()), ' ', '\\'));
  std::stable_sort(expected.begin(), expected.end(), [](const plain::Pair& a, const plain::Pair& b) {
    return ZEString(a.key).hash(17) < ZEString(b.key).hash(17);
  });
  const ZEStringDict dict = ZEStringDict::parse(text);
  const ZEStringDict byList = ZEStringDict::parse(ZEStringList::split(text, ' ', '\\'));
  Require(dict.size() == expected.size() && byList.size() == expected.size());
  for (unsigned int i = 0; i < dict.size(); ++i) {
    Require(dict.keyAt(i).view() == expected[i].key && byList.keyAt(i) == dict.keyAt(i));
    Require(dict[i].isNull() == !expected[i].value.has_value() && byList[i] == dict[i]);
    Require(dict[i].view() == expected[i].value.value_or(""));
    Require(dict[i].isBinary() == (expected[i].binary && expected[i].value.has_value()));
  }
  const ZEString formatted = dict.format(true);
  Require(formatted.isNull() == (dict.size() == 0));
}

// A value comes back from the wire as it was, an empty one as null.
void CheckRoundTrip(const ZEString& text) {
  ZEStringDict dict;
  dict.insert("1137", text);
  dict.insert("1338", "1");
  const ZEStringDict parsed = ZEStringDict::parse(dict.format(true));
  Require(parsed.size() == 2 && parsed.find("1338") == "1");
  Require(text.isEmpty() ? parsed.find("1137").isNull() : parsed.find("1137") == text);
  Require(text.escape().unescape() == text);

  ZEIntDict numbers;
  numbers.insert(-1, text);
  numbers.insert(-1, text.escape());
  Require(numbers.size() == 1 && numbers.format().length() == text.escape().length() + 5);
}

void CheckBinary(const std::string& bytes) {
  const ZEString text = ZEString::from(bytes.data(), static_cast<unsigned int>(bytes.size()));
  std::vector<char> decoded(text.length() + 1);
  Require(text.toBinary(decoded.data()) == bytes.size());
  Require(std::equal(bytes.begin(), bytes.end(), decoded.begin()));
  Require(text.getHexRepresentation().length() == 2 * bytes.size());

  // Bytes that only claim to be in escaped form.
  ZEString claimed{std::string_view(bytes)};
  claimed.markAsBinary();
  std::vector<char> out(claimed.length() + 1, 'x');
  Require(claimed.toBinary(out.data()) <= claimed.length() && out.back() == 'x');
}

void CheckRanges(const ZEString& text, int from, int to) {
  const std::string plainText(text.view());
  Require(text.substr(from, to).view() == plain::Range(plainText, from, to));
  Require(text.right(static_cast<unsigned int>(to)).length() <= text.length());
  ZEString built = text;
  built += static_cast<const char*>(text);
  built += built;
  Require(built.length() == 4 * text.length() && (text.isEmpty() || built.trim(text).startWith(text)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data) + 2, size - 2);
  const ZEString text{std::string_view(bytes)};
  CheckSplit(text, static_cast<char>(data[0]), static_cast<char>(data[1]));
  CheckParse(text);
  CheckRoundTrip(text);
  CheckBinary(bytes);
  CheckRanges(text, static_cast<std::int8_t>(data[0]), static_cast<std::int8_t>(data[1]));
  return 0;
}
