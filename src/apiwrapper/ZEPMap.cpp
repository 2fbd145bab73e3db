#include "apiwrapper/ZEPMap.h"

ZEString ZEPMap::map(int value) const {
  for (const PMAP* entry = m_table; entry != nullptr && entry->name != nullptr; ++entry) {
    if (entry->value == value) return entry->name;
  }
  return {};
}

int ZEPMap::map(const ZEString& name) const noexcept {
  for (const PMAP* entry = m_table; entry != nullptr && entry->name != nullptr; ++entry) {
    if (name.equals(entry->name)) return entry->value;
  }
  return -1;
}
