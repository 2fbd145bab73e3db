#include "apiwrapper/Transfer.h"

#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

Transfer::Transfer(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString Transfer::getNamespace() { return TRANSFER_CLASS.token; }

const PMAP* Transfer::getPMap() { return TRANSFER_CLASS.properties; }

const EMAP* Transfer::getEMap() { return TRANSFER_CLASS.enums; }

bool Transfer::Accept(const ZEString& path) {
  return ZERequest(TransferMethod::Accept, path).ask(this).flag();
}

bool Transfer::Pause() { return ZERequest(TransferMethod::Pause).ask(this).flag(); }

bool Transfer::Resume() { return ZERequest(TransferMethod::Resume).ask(this).flag(); }

bool Transfer::Cancel() { return ZERequest(TransferMethod::Cancel).ask(this).flag(); }

bool Transfer::Delete() { return ZERequest(TransferMethod::Delete).ask(this).flag(); }
