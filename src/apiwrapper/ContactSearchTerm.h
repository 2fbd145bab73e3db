#pragma once

#include "apiwrapper/ContactSearch.h"
#include "apiwrapper/ZEString.h"
#include "apiwrapper/ZEStringList.h"

// What a search of the directory looks for: contacts that fulfil every condition up to an "or", or every one
// after it. A plain value.
// Threads: none of its own; as ZEStringList.
class ContactSearchTerm {
 public:
  void addTerm(ContactSearch::CONTACTFIELDS field, ContactSearch::CONDITION condition, const ZEString& value);
  // Does nothing while there is no term yet.
  void addOr();

  // As they travel: field, condition and escaped value with commas between them.
  const ZEStringList& terms() const { return m_terms; }

 private:
  ZEStringList m_terms;
};
