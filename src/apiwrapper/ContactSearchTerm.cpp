#include "apiwrapper/ContactSearchTerm.h"

#include "apiwrapper/ZEProtocol.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "apiwrapper/tables/Words.h"

void ContactSearchTerm::addTerm(ContactSearch::CONTACTFIELDS field, ContactSearch::CONDITION condition,
                                const ZEString& value) {
  ZEString text("");
  text += ZEProtocol::TokenOf(CONTACTSEARCH_CONTACTFIELDS_MAP, field);
  text += ",";
  text += ZEProtocol::TokenOf(CONTACTSEARCH_CONDITION_MAP, condition);
  text += ",";
  text += value.escape();
  m_terms.append(text);
}

void ContactSearchTerm::addOr() {
  if (m_terms.size() > 0) m_terms.append(ZEWord::SearchOr);
}
