// Texts under text keys, several per key: the arguments and results of one protocol message.
#pragma once

#include <string_view>

#include "apiwrapper/ZEExport.h"
#include "apiwrapper/ZEHandle.h"
#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZEStringList.h"

// The order of elements (operator[], keyAt, format) is that of 17 buckets by ZEString::hash(17), each in
// the order of insertion. A parsed dictionary keeps its message in one piece; values and keys handed out
// are copies that do not keep it alive. Threads: none; see ZEString.
class ZELTO_EXPORT ZEStringDict {
 public:
  ZEStringDict() noexcept;
  ZEStringDict(const ZEStringDict&) noexcept;
  ZEStringDict(ZEStringDict&&) noexcept;
  ZEStringDict& operator=(const ZEStringDict&) noexcept;
  ZEStringDict& operator=(ZEStringDict&&) noexcept;
  ~ZEStringDict();

  // Adds a value behind those that the key has. A null key does nothing.
  void insert(const ZEString& key, const ZEString& value);
  // The n-th value under the key, counted from 0 in order of insertion; null when there is none.
  ZEString find(const ZEString& key, unsigned int n = 0) const;
  ZEString find(const char* key, unsigned int n = 0) const;

  unsigned int size() const noexcept;
  bool isEmpty() const noexcept { return size() == 0; }
  // Value and key of an element; the null string when the index is not below size().
  ZEString operator[](unsigned int index) const;
  ZEString keyAt(unsigned int index) const;

  // key="value" pairs with single blanks between them, values that are not binary escaped when asked for.
  // Null when empty.
  ZEString format(bool escape) const;
  // The reverse of format(true). What cannot be read as a pair is left out. Linear in the text's length.
  static ZEStringDict parse(const ZEString& text);
  static ZEStringDict parse(const char* text) {
    return parse(text == nullptr ? std::string_view() : std::string_view(text));
  }
  static ZEStringDict parse(std::string_view text);
  // The same for tokens that ZEStringList::split made with blank and backslash. The list stays as it is.
  static ZEStringDict parse(const ZEStringList& tokens);

 private:
  struct Block;
  ZEString findView(std::string_view key, unsigned int n) const;
  // The message is shared with nobody.
  static ZEStringDict readMessage(ZEString message);
  void dropIfEmpty() noexcept;

  ZEHandle<Block> m_dict;
};
