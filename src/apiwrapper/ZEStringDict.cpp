#include "apiwrapper/ZEStringDict.h"

#include <vector>

#include "apiwrapper/ZEBucketTable.h"
#include "apiwrapper/ZEText.h"
#include "apiwrapper/ZETokenizer.h"

namespace {

// A key or a value. Kept small and plain: a hostile message can hold millions of them.
struct Text {
  enum class Kind : std::uint8_t { Null, Own, Part, BinaryPart };

  std::uint32_t at = 0;      // Own: index among the block's own texts. Part: place in its message
  std::uint32_t length = 0;  // Part only
  Kind kind = Kind::Null;
};

struct Element {
  Text key;
  Text value;
  std::uint32_t next = 0;
};

using Table = ZEBucketTable<Element>;

// Bytes that a pair of a message usually takes or more: a short key and a value of some twenty bytes.
constexpr std::size_t kUsualPair = 24;

std::uint32_t BucketOf(std::string_view key) { return ZEString::hashOf(key) % kDictBuckets; }

}  // namespace

struct ZEStringDict::Block : ZECounted {
  Table table;
  // What a parsed dictionary was read from: a private copy, so that values can be unescaped in place.
  // Copies of the block share it.
  ZEString message;
  const char* base = message;  // its first byte
  // What was inserted.
  std::vector<ZEString> texts;

  std::string_view view(const Text& text) const noexcept {
    if (text.kind == Text::Kind::Own) return texts[text.at].view();
    return {base + text.at, text.length};
  }
  bool isBinary(const Text& text) const noexcept {
    return text.kind == Text::Kind::Own ? texts[text.at].isBinary() : text.kind == Text::Kind::BinaryPart;
  }
  // What is handed out: a part is copied, so that it does not keep the whole message.
  ZEString string(const Text& text) const {
    if (text.kind == Text::Kind::Null) return {};
    if (text.kind == Text::Kind::Own) return texts[text.at];
    ZEString copy(view(text));
    if (text.kind == Text::Kind::BinaryPart) copy.markAsBinary();
    return copy;
  }

  void setMessage(ZEString privateCopy) {
    message = std::move(privateCopy);
    base = message;
  }
  void setOwn(Text& text, const ZEString& value) {
    if (value.isNull()) return;
    text.at = static_cast<std::uint32_t>(texts.size());
    text.kind = Text::Kind::Own;
    texts.push_back(value);
  }
  void setPart(Text& text, std::string_view part, Text::Kind kind) const noexcept {
    text.at = static_cast<std::uint32_t>(part.data() - base);
    text.length = static_cast<std::uint32_t>(part.size());
    text.kind = kind;
  }

  // Reads one token, which lies in the message.
  void addToken(std::string_view token, bool escapes);
  void readValue(Text& value, std::string_view token, std::size_t equals, bool escapes);
};

inline void ZEStringDict::Block::addToken(std::string_view token, bool escapes) {
  std::size_t equals = 0;
  std::uint32_t hash = 0;
  while (equals < token.size() && token[equals] != '=') hash = ZEString::hashStep(hash, token[equals++]);
  if (equals == token.size()) return;
  Element& added = table.append(hash % kDictBuckets);
  setPart(added.key, token.substr(0, equals), Text::Kind::Part);
  readValue(added.value, token, equals, escapes);
}

inline void ZEStringDict::Block::readValue(Text& value, std::string_view token, std::size_t equals,
                                           bool escapes) {
  const bool binary = token.substr(equals + 1, 2) == "r\"";
  const std::string_view raw = zetext::Range(token, static_cast<std::int64_t>(equals) + (binary ? 3 : 2), -1);
  if (raw.substr(0, 2) == "\"\"") return;
  if (binary) return setPart(value, raw, Text::Kind::BinaryPart);
  if (!escapes) return setPart(value, raw, Text::Kind::Part);
  // Of a token that ends right behind its "=" the value takes in the end of the key, which must stay.
  if (raw.data() < token.data() + equals) return setOwn(value, ZEString(raw).unescape());
  char* text = const_cast<char*>(raw.data());
  setPart(value, {text, static_cast<std::size_t>(zetext::Unescape(text, raw) - text)}, Text::Kind::Part);
}

ZEStringDict::ZEStringDict() noexcept = default;
ZEStringDict::ZEStringDict(const ZEStringDict&) noexcept = default;
ZEStringDict::ZEStringDict(ZEStringDict&&) noexcept = default;
ZEStringDict& ZEStringDict::operator=(const ZEStringDict&) noexcept = default;
ZEStringDict& ZEStringDict::operator=(ZEStringDict&&) noexcept = default;
ZEStringDict::~ZEStringDict() = default;

void ZEStringDict::insert(const ZEString& key, const ZEString& value) {
  if (key.isNull()) return;
  Block& block = m_dict.own();
  Element& added = block.table.append(BucketOf(key.view()));
  block.setOwn(added.key, key);
  block.setOwn(added.value, value);
}

ZEString ZEStringDict::find(const ZEString& key, unsigned int n) const {
  return key.isNull() ? ZEString() : findView(key.view(), n);
}

ZEString ZEStringDict::find(const char* key, unsigned int n) const {
  return key == nullptr ? ZEString() : findView(key, n);
}

ZEString ZEStringDict::findView(std::string_view key, unsigned int n) const {
  if (isEmpty()) return {};
  const Block& block = *m_dict.get();
  const Table& table = block.table;
  for (std::uint32_t i = table.first(BucketOf(key)); i != Table::kEnd; i = table.next(i)) {
    if (block.view(table.at(i).key) == key && n-- == 0) return block.string(table.at(i).value);
  }
  return {};
}

unsigned int ZEStringDict::size() const noexcept {
  return m_dict.get() == nullptr ? 0 : m_dict.get()->table.size();
}

ZEString ZEStringDict::operator[](unsigned int index) const {
  return index < size() ? m_dict.get()->string(m_dict.get()->table.inOrder(index).value) : ZEString();
}

ZEString ZEStringDict::keyAt(unsigned int index) const {
  return index < size() ? m_dict.get()->string(m_dict.get()->table.inOrder(index).key) : ZEString();
}

ZEString ZEStringDict::format(bool escape) const {
  if (isEmpty()) return {};
  const Block& block = *m_dict.get();
  const auto escaped = [&](const Text& value) { return escape && !block.isBinary(value); };
  std::size_t length = 0;
  block.table.forEach([&](const Element& e) {
    const std::string_view value = block.view(e.value);
    length += block.view(e.key).size() + zetext::kPairFrame;
    length += escaped(e.value) ? zetext::EscapedSize(value) : value.size();
  });
  return ZEString::build(length, [&](char* out) {
    block.table.forEach([&](const Element& e) {
      out = zetext::WritePair(out, block.view(e.key), [&](char* at) {
        const std::string_view value = block.view(e.value);
        return escaped(e.value) ? zetext::Escape(at, value) : zetext::Copy(at, value);
      });
    });
    return out - 1;  // without the last pair's blank
  });
}

ZEStringDict ZEStringDict::parse(const ZEString& text) { return readMessage(text.deepCopy()); }

ZEStringDict ZEStringDict::parse(std::string_view text) { return readMessage(ZEString(text)); }

ZEStringDict ZEStringDict::readMessage(ZEString message) {
  ZEStringDict dict;
  if (message.startWith("\"\"")) return dict;
  ZETokenizer tokenizer(message.view(), ' ', '\\', ZETokenizer::Quotes::Protect);
  Block& block = dict.m_dict.own();
  block.table.reserve(message.length() / kUsualPair);
  block.setMessage(std::move(message));
  tokenizer.forEach([&](std::string_view token, bool escapes) { block.addToken(token, escapes); });
  dict.dropIfEmpty();
  return dict;
}

ZEStringDict ZEStringDict::parse(const ZEStringList& tokens) {
  ZEStringDict dict;
  std::size_t length = 0;
  for (unsigned int i = 0; i < tokens.size(); ++i) length += tokens[i].length();
  Block& block = dict.m_dict.own();
  block.setMessage(ZEString::build(length, [&](char* out) {
    for (unsigned int i = 0; i < tokens.size(); ++i) out = zetext::Copy(out, tokens[i].view());
    return out;
  }));
  std::string_view left = block.message.view();
  for (unsigned int i = 0; i < tokens.size(); ++i) {
    block.addToken(left.substr(0, tokens[i].length()), true);
    left.remove_prefix(tokens[i].length());
  }
  dict.dropIfEmpty();
  return dict;
}

// A dictionary without elements is the null dictionary.
void ZEStringDict::dropIfEmpty() noexcept {
  if (isEmpty()) m_dict.reset();
}
