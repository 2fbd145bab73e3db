#include "apiwrapper/ChatMember.h"

#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

ChatMember::ChatMember(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString ChatMember::getNamespace() { return CHATMEMBER_CLASS.token; }

const PMAP* ChatMember::getPMap() { return CHATMEMBER_CLASS.properties; }

const EMAP* ChatMember::getEMap() { return CHATMEMBER_CLASS.enums; }

bool ChatMember::CanSetRoleTo(ROLE role) {
  return ZERequest(ChatMemberMethod::CanSetRoleTo, role).ask(this).flag();
}

bool ChatMember::SetRoleTo(ROLE role) {
  return ZERequest(ChatMemberMethod::SetRoleTo, role).ask(this).flag();
}
