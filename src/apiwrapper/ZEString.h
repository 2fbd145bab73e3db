// Text as the client protocol carries it: a shared, copy-on-write byte string with a null value that
// differs from the empty text.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "apiwrapper/ZEExport.h"
#include "apiwrapper/ZEHandle.h"

// The text ends at its first NUL byte. A binary string carries arbitrary bytes in escaped form (byte 0 as
// backslash and "0"; comma, double quote and backslash each after a backslash), so it never holds a NUL.
// Every operation accepts null strings. Sizes are in bytes. Only memory exhaustion throws.
// Threads: none; copies share a plain counter. Hand a value to another thread under a lock, or keep no copy.
class ZELTO_EXPORT ZEString {
 public:
  ZEString() noexcept = default;
  // A null pointer gives the null string.
  ZEString(const char* text);
  // The first length bytes, or fewer when one of them is NUL.
  ZEString(const char* text, unsigned int length);
  explicit ZEString(std::string_view text);
  // Not null, empty, with room for that many characters.
  explicit ZEString(unsigned int capacity);
  ZEString& operator=(const char* text) { return *this = ZEString(text); }

  // A text of that length that fill(char* bytes) writes; it ends before the first NUL byte written.
  template <class Fill>
  static ZEString filled(unsigned int length, Fill&& fill) {
    return build(length, [&](char* bytes) {
      fill(bytes);
      return bytes + strnlen(bytes, length);
    });
  }
  // A text of at most that length; write(char* bytes) writes no NUL and answers the place behind its last
  // byte.
  template <class Write>
  static ZEString build(std::size_t length, Write&& write) {
    ZEString text(makeBlock(length, std::uint64_t{length} + 1));
    text.endAt(write(text.m_block.get()->text()));
    return text;
  }

  static ZEString from(int value);
  // Base 16: upper-case hexadecimal without prefix. Any other base: decimal.
  static ZEString from(unsigned int value, unsigned int base = 10);
  // "1" or "0".
  static ZEString from(bool value);
  // A binary string.
  static ZEString from(const char* bytes, unsigned int length);
  static ZEString from(const char*) = delete;  // would otherwise be taken for a bool

  // key="value" and one blank; the value is not escaped. Null when the key is.
  static ZEString keyValue(const ZEString& key, const ZEString& value);

  bool isNull() const noexcept { return m_block.get() == nullptr; }
  unsigned int length() const noexcept { return isNull() ? 0 : m_block.get()->length; }
  bool isEmpty() const noexcept { return length() == 0; }
  bool isBinary() const noexcept { return !isNull() && m_block.get()->binary; }
  // Valid until this string changes or its last copy goes; "" for the null string.
  operator const char*() const noexcept { return isNull() ? "" : m_block.get()->text(); }
  explicit operator bool() const = delete;  // would test a pointer that is never null
  // Valid as long as the pointer above; empty for the null string.
  std::string_view view() const noexcept { return {*this, length()}; }

  // Equal bytes; the null string equals only a null string or a null pointer.
  bool equals(const ZEString& other) const noexcept;
  bool equals(const char* other) const noexcept;
  // False when this string is null, true when the prefix is null or empty.
  bool startWith(const ZEString& prefix) const noexcept { return startsWith(prefix.view()); }
  bool startWith(const char* prefix) const noexcept {
    return startsWith(prefix == nullptr ? std::string_view() : std::string_view(prefix));
  }
  // Index of the first occurrence (at or after `from`), kNotFound when there is none.
  unsigned int find(char wanted) const noexcept { return find(0, wanted); }
  unsigned int find(int from, char wanted) const noexcept;
  // The modulus is not 0. 0 for the null and the empty string.
  unsigned int hash(unsigned int modulus) const noexcept {
    return isEmpty() ? 0 : ZEString::hashOf(view()) % modulus;
  }

  // As strtol and strtoul do, narrowed; 0 or false without leading digits.
  int toInt() const noexcept { return static_cast<int>(std::strtol(*this, nullptr, 10)); }
  unsigned int toUInt() const noexcept { return static_cast<unsigned int>(std::strtoul(*this, nullptr, 10)); }
  bool toBool() const noexcept { return std::strtol(*this, nullptr, 10) != 0; }

  // Declares the text to be in escaped form. Does nothing on the null string.
  void markAsBinary();
  // Decodes into `out`, which has room for length() bytes. Answers the bytes written, 0 unless binary.
  unsigned int toBinary(char* out) const noexcept;
  // The decoded bytes, two lower-case digits each. Null unless binary.
  ZEString getHexRepresentation() const;

  // Derived strings: null gives null; a copy by range is not binary.
  // The last min(count, length()) characters.
  ZEString right(unsigned int count) const;
  // Without one leading occurrence of the prefix.
  ZEString trim(const ZEString& prefix) const;
  // Both bounds inclusive. A negative `to` counts from the last character (-1: up to the second to last);
  // swapped bounds are put right, and what lies outside of the text is left out.
  ZEString substr(int from, int to) const;
  // A backslash before every comma, double quote and backslash; and the reverse.
  ZEString escape() const;
  ZEString unescape() const;
  // Equal, and shared with nobody.
  ZEString deepCopy() const;

  // A null string becomes the other one; a null argument changes nothing.
  ZEString& operator+=(const char* text);
  ZEString& operator+=(const ZEString& text);

  static constexpr unsigned int kNotFound = 0xFFFFFFFFU;

  // The full hash that `hash` takes the remainder of.
  static std::uint32_t hashOf(std::string_view text) noexcept {
    std::uint32_t hash = 0;
    for (const char c : text) hash = hashStep(hash, c);
    return hash;
  }
  static std::uint32_t hashStep(std::uint32_t hash, char c) noexcept {
    hash = (hash << 4) + static_cast<std::uint32_t>(static_cast<std::int32_t>(static_cast<signed char>(c)));
    const std::uint32_t top = hash & 0xF0000000U;
    if (top == 0) return hash;
    const std::uint32_t sign = (top & 0x80000000U) != 0 ? 0xFFFFFF00U : 0;
    return (hash & 0x0FFFFFFFU) ^ (top >> 24 | sign);
  }

 private:
  // The characters and their NUL follow the block in the same piece of memory.
  struct Block : ZECounted {
    explicit Block(std::uint32_t room) noexcept : capacity(room) {}
    char* text() noexcept { return reinterpret_cast<char*>(this + 1); }
    static void operator delete(void* memory) noexcept { std::free(memory); }

    std::uint32_t length = 0;
    std::uint32_t capacity;
    bool binary = false;
  };

  explicit ZEString(Block* block) noexcept : m_block(block) {}
  // An empty text with room for `bytes`, the NUL included.
  static Block* makeBlock(std::uint64_t capacity, std::uint64_t bytes);
  // The text holds no NUL.
  static ZEString copyOf(std::string_view text);
  void endAt(char* end) noexcept {
    *end = '\0';
    m_block.get()->length = static_cast<std::uint32_t>(end - m_block.get()->text());
  }
  bool startsWith(std::string_view prefix) const noexcept;
  void append(std::string_view text);

  ZEHandle<Block> m_block;
};

inline bool operator==(const ZEString& a, const ZEString& b) noexcept { return a.equals(b); }
inline bool operator==(const ZEString& a, const char* b) noexcept { return a.equals(b); }
inline bool operator==(const char* a, const ZEString& b) noexcept { return b.equals(a); }
inline bool operator!=(const ZEString& a, const ZEString& b) noexcept { return !a.equals(b); }
inline bool operator!=(const ZEString& a, const char* b) noexcept { return !a.equals(b); }
inline bool operator!=(const char* a, const ZEString& b) noexcept { return !b.equals(a); }
