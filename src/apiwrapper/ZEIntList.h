// A list of integers, shared by its copies until one changes.
#pragma once

#include "apiwrapper/ZEExport.h"
#include "apiwrapper/ZEHandle.h"
#include "apiwrapper/ZEListBlock.h"
#include "apiwrapper/ZEString.h"

// An empty list is the null list. Threads: none; see ZEString.
class ZELTO_EXPORT ZEIntList {
 public:
  void append(int value);
  // Removes and answers the first value; 0 when empty.
  int peek();

  unsigned int size() const noexcept;
  bool isEmpty() const noexcept { return size() == 0; }
  // 0 when the index is not below size().
  int operator[](unsigned int index) const;

  // The tokens between runs of separators, each as ZEString::toInt reads it. A separator right behind the
  // escape character (0 for none) belongs to its token; quotes protect nothing here.
  static ZEIntList split(const ZEString& text, char separator, char escape);

 private:
  ZEHandle<ZEListBlock<int>> m_list;
};
