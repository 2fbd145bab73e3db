#include "apiwrapper/ZEString.h"

#include <algorithm>
#include <cstdio>
#include <new>

#include "apiwrapper/ZEText.h"

namespace {

// Texts grow in steps of 16 bytes. 64 bits: the sum must not wrap.
std::uint64_t RoomFor(std::uint64_t bytes) { return (bytes & ~std::uint64_t{15}) + 16; }

// Room for a text that has outgrown its capacity. Large ones grow by half, so that a text put together from
// many pieces costs linear time.
std::uint64_t GrownRoom(std::uint64_t capacity, std::uint64_t needed) {
  constexpr std::uint64_t kLarge = 4096;
  return RoomFor(capacity < kLarge ? needed : std::max(needed, capacity + capacity / 2));
}

std::string_view ViewOf(const char* text) { return text == nullptr ? std::string_view() : text; }

}  // namespace

ZEString::Block* ZEString::makeBlock(std::uint64_t capacity, std::uint64_t bytes) {
  if (bytes > 0xFFFFFFFFU) throw std::bad_alloc();
  void* memory = std::malloc(sizeof(Block) + static_cast<std::size_t>(bytes));
  if (memory == nullptr) throw std::bad_alloc();
  Block* block = new (memory) Block(static_cast<std::uint32_t>(capacity));
  block->text()[0] = '\0';
  return block;
}

ZEString ZEString::copyOf(std::string_view text) {
  const std::uint64_t room = RoomFor(text.size() + 1);
  ZEString copy(makeBlock(room, room));
  copy.endAt(zetext::Copy(copy.m_block.get()->text(), text));
  return copy;
}

ZEString::ZEString(const char* text) {
  if (text != nullptr) *this = copyOf(text);
}

ZEString::ZEString(std::string_view text) : ZEString(copyOf(zetext::BeforeNul(text))) {}

ZEString::ZEString(const char* text, unsigned int length) {
  if (text != nullptr) *this = ZEString(std::string_view(text, length));
}

ZEString::ZEString(unsigned int capacity) : m_block(makeBlock(capacity, std::uint64_t{capacity} + 1)) {}

ZEString ZEString::from(int value) {
  char digits[16];
  const int length = std::snprintf(digits, sizeof digits, "%d", value);
  return copyOf({digits, static_cast<std::size_t>(length)});
}

ZEString ZEString::from(unsigned int value, unsigned int base) {
  char digits[16];
  const int length = base == 16 ? std::snprintf(digits, sizeof digits, "%X", value)
                                : std::snprintf(digits, sizeof digits, "%u", value);
  return copyOf({digits, static_cast<std::size_t>(length)});
}

ZEString ZEString::from(bool value) { return copyOf(value ? "1" : "0"); }

ZEString ZEString::from(const char* bytes, unsigned int length) {
  const std::string_view raw = bytes == nullptr ? std::string_view() : std::string_view(bytes, length);
  ZEString text = build(zetext::EscapedSize(raw), [&](char* out) { return zetext::Escape(out, raw); });
  text.markAsBinary();
  return text;
}

ZEString ZEString::keyValue(const ZEString& key, const ZEString& value) {
  if (key.isNull()) return {};
  const std::size_t length = std::size_t{key.length()} + value.length() + zetext::kPairFrame;
  return build(length, [&](char* out) {
    return zetext::WritePair(out, key.view(), [&](char* at) { return zetext::Copy(at, value.view()); });
  });
}

bool ZEString::equals(const ZEString& other) const noexcept {
  return isNull() == other.isNull() && view() == other.view();
}

bool ZEString::equals(const char* other) const noexcept {
  return isNull() == (other == nullptr) && view() == ViewOf(other);
}

bool ZEString::startsWith(std::string_view prefix) const noexcept {
  return !isNull() && view().substr(0, prefix.size()) == prefix;
}

unsigned int ZEString::find(int from, char wanted) const noexcept {
  const std::size_t at = view().find(wanted, from < 0 ? 0 : static_cast<std::size_t>(from));
  return at == std::string_view::npos ? kNotFound : static_cast<unsigned int>(at);
}

void ZEString::markAsBinary() {
  if (isNull()) return;
  if (m_block.isShared()) *this = deepCopy();
  m_block.get()->binary = true;
}

unsigned int ZEString::toBinary(char* out) const noexcept {
  if (!isBinary()) return 0;
  const std::string_view text = view();
  char* end = out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escaped = text[i] == '\\' && i + 1 < text.size();
    if (escaped) ++i;
    *end++ = escaped && text[i] == '0' ? '\0' : text[i];
  }
  return static_cast<unsigned int>(end - out);
}

ZEString ZEString::getHexRepresentation() const {
  if (!isBinary()) return {};
  static constexpr char kDigits[] = "0123456789abcdef";
  const ZEString decoded(length());
  char* bytes = decoded.m_block.get()->text();
  const std::size_t count = toBinary(bytes);
  return build(2 * count, [&](char* out) {
    for (std::size_t i = 0; i < count; ++i) {
      const unsigned int byte = static_cast<unsigned char>(bytes[i]);
      *out++ = kDigits[byte >> 4];
      *out++ = kDigits[byte & 15];
    }
    return out;
  });
}

ZEString ZEString::right(unsigned int count) const {
  if (isNull()) return {};
  const std::string_view text = view();
  return copyOf(text.substr(text.size() - std::min<std::size_t>(count, text.size())));
}

ZEString ZEString::trim(const ZEString& prefix) const {
  if (prefix.isEmpty() || !startWith(prefix)) return *this;
  return copyOf(view().substr(prefix.length()));
}

ZEString ZEString::substr(int from, int to) const {
  return isNull() ? ZEString() : copyOf(zetext::Range(view(), from, to));
}

ZEString ZEString::escape() const {
  if (isNull()) return {};
  return build(zetext::EscapedSize(view()), [&](char* out) { return zetext::Escape(out, view()); });
}

ZEString ZEString::unescape() const {
  if (isNull()) return {};
  return build(length(), [&](char* out) { return zetext::Unescape(out, view()); });
}

ZEString ZEString::deepCopy() const {
  if (isNull()) return {};
  ZEString copy = copyOf(view());
  copy.m_block.get()->binary = isBinary();
  return copy;
}

ZEString& ZEString::operator+=(const char* text) {
  if (isNull()) return *this = ZEString(text);
  append(ViewOf(text));
  return *this;
}

ZEString& ZEString::operator+=(const ZEString& text) {
  if (isNull()) return *this = text;
  // Held here: the argument may be this very string, whose block moves when it grows.
  const ZEString held = text;
  append(held.view());
  return *this;
}

// Not null here.
void ZEString::append(std::string_view text) {
  if (text.empty()) return;
  Block* block = m_block.get();
  const std::size_t old = block->length;
  const std::uint64_t needed = std::uint64_t{old} + text.size() + 1;
  ZEHandle<Block> former;  // kept until the end: the added text may be part of it
  if (m_block.isShared() || needed > block->capacity) {
    const std::uint64_t room =
        needed > block->capacity ? GrownRoom(block->capacity, needed) : block->capacity;
    ZEHandle<Block>(makeBlock(room, room)).swap(former);
    former.swap(m_block);
    zetext::Copy(m_block.get()->text(), {block->text(), old});
    m_block.get()->binary = block->binary;
    block = m_block.get();
  }
  *zetext::Copy(block->text() + old, text) = '\0';
  block->length = static_cast<std::uint32_t>(needed - 1);
}
