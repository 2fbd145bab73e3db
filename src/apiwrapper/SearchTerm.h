#pragma once

#include "apiwrapper/Search.h"
#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZEStringList.h"

// What a search among the runtime's objects looks for: objects of one class, whose properties fulfil every
// condition. A plain value.
// Threads: none of its own; as ZEStringList.
class SearchTerm {
 public:
  explicit SearchTerm(Search::TARGET target);

  // `property` is of the target's PROPERTY; one that it doesn't have travels without a name.
  void add(int property, Search::CONDITION condition, const ZEString& value);
  // The number of an enumerator when the property is enumerated.
  void add(int property, Search::CONDITION condition, int value);

  Search::TARGET target() const { return m_target; }
  // As they travel: property, condition and escaped value with commas between them.
  const ZEStringList& terms() const { return m_terms; }

 private:
  const Search::TARGET m_target;
  ZEStringList m_terms;
};
