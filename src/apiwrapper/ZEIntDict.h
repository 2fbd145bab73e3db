// One text under each integer key: the properties of an object.
#pragma once

#include "apiwrapper/ZEBucketTable.h"
#include "apiwrapper/ZEExport.h"
#include "apiwrapper/ZEHandle.h"
#include "apiwrapper/ZEString.h"

// The order of elements is that of 17 buckets by the key's unsigned remainder, each in the order of
// insertion. Threads: none; see ZEString.
class ZELTO_EXPORT ZEIntDict {
 public:
  // Sets the key's value. An absent key is added, unless onlyIfPresent is set.
  void insert(int key, const ZEString& value, bool onlyIfPresent = false);
  // Null when the key is absent.
  ZEString find(int key) const;

  unsigned int size() const noexcept;
  bool isEmpty() const noexcept { return size() == 0; }
  // The null string when the index is not below size().
  ZEString operator[](unsigned int index) const;
  // -1 when the dictionary is null, otherwise 0 when the index is not below size().
  int keyAt(unsigned int index) const;

  // key="value" pairs with single blanks between them, values as they are. Null when empty.
  ZEString format() const;

 private:
  struct Element {
    std::int32_t key = 0;
    std::uint32_t next = 0;
    ZEString value;
  };
  using Table = ZEBucketTable<Element>;
  struct Block : ZECounted {
    Table table;
  };
  // Position of the key's element in the table, kEnd when absent.
  std::uint32_t position(int key) const noexcept;

  ZEHandle<Block> m_dict;
};
