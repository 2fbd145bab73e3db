#include "apiwrapper/Alert.h"

#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

Alert::Alert(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString Alert::getNamespace() { return ALERT_CLASS.token; }

const PMAP* Alert::getPMap() { return ALERT_CLASS.properties; }

const EMAP* Alert::getEMap() { return ALERT_CLASS.enums; }

void Alert::MarkSeen() { ZERequest(AlertMethod::MarkSeen).send(this); }

void Alert::Delete() { ZERequest(AlertMethod::Delete).send(this); }
