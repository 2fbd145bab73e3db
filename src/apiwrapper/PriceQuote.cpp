#include "apiwrapper/PriceQuote.h"

#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

PriceQuote::PriceQuote(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString PriceQuote::getNamespace() { return PRICEQUOTE_CLASS.token; }

const PMAP* PriceQuote::getPMap() { return PRICEQUOTE_CLASS.properties; }

const EMAP* PriceQuote::getEMap() { return PRICEQUOTE_CLASS.enums; }

ZEObject* PriceQuote::GetReferredObject() {
  return ZERequest(PriceQuoteMethod::GetReferredObject).ask(this).object<ZEObject>();
}

bool PriceQuote::Accept() { return ZERequest(PriceQuoteMethod::Accept).ask(this).flag(); }

bool PriceQuote::Reject() { return ZERequest(PriceQuoteMethod::Reject).ask(this).flag(); }
