// A read-only view on a table of names and numbers.
#pragma once

#include "apiwrapper/ZEExport.h"
#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/ZEString.h"

// The table outlives the view. Without a table nothing is found. Threads: any.
class ZELTO_EXPORT ZEPMap {
 public:
  explicit ZEPMap(const PMAP* table) noexcept : m_table(table) {}

  // Name of the first entry with that value; the null string when there is none.
  ZEString map(int value) const;
  // Value of the first entry with that name; -1 when there is none.
  int map(const ZEString& name) const noexcept;

 private:
  const PMAP* m_table;
};
