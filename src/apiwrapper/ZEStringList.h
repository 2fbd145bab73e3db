// A list of texts, shared by its copies until one changes.
#pragma once

#include "apiwrapper/ZEExport.h"
#include "apiwrapper/ZEHandle.h"
#include "apiwrapper/ZEListBlock.h"
#include "apiwrapper/ZEString.h"

// An empty list is the null list. Threads: none; see ZEString.
class ZELTO_EXPORT ZEStringList {
 public:
  // A null string is not stored.
  void append(const ZEString& text);
  // Removes and answers the first element; the null string when empty.
  ZEString peek();

  unsigned int size() const noexcept;
  bool isEmpty() const noexcept { return size() == 0; }
  // The null string when the index is not below size().
  ZEString operator[](unsigned int index) const;

  // The elements in order with the separator between them, each escaped first when asked for. Null when
  // empty; a null separator counts as empty.
  ZEString join(const ZEString& separator, bool escape) const;
  // The tokens between runs of separators. With an escape character (0 for none) a separator right behind
  // it or inside double quotes belongs to its token, and a text that begins with two double quotes has no
  // token. Quotes and escape characters stay. Linear in the text's length.
  static ZEStringList split(const ZEString& text, char separator, char escape);

 private:
  ZEHandle<ZEListBlock<ZEString>> m_list;
};
