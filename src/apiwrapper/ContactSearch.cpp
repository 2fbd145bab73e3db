#include "apiwrapper/ContactSearch.h"

#include "apiwrapper/Contact.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

ContactSearch::ContactSearch(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString ContactSearch::getNamespace() { return CONTACTSEARCH_CLASS.token; }

const PMAP* ContactSearch::getPMap() { return CONTACTSEARCH_CLASS.properties; }

const EMAP* ContactSearch::getEMap() { return CONTACTSEARCH_CLASS.enums; }

void ContactSearch::OnNewResult(Contact*) {}

void ContactSearch::Extend() { ZERequest(ContactSearchMethod::Extend).send(this); }

void ContactSearch::Release() { ZERequest(ContactSearchMethod::Release).send(this); }

bool ContactSearch::GetResults(int from, int limit, ZEPtrVector& results) {
  const ZEReply reply = ZERequest(ContactSearchMethod::GetResults, from, limit).ask(this);
  results = reply.objects<Contact>(1);
  return reply.flag();
}
