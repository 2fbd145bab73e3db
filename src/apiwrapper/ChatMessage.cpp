#include "apiwrapper/ChatMessage.h"

#include "apiwrapper/Contact.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

ChatMessage::ChatMessage(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString ChatMessage::getNamespace() { return CHATMESSAGE_CLASS.token; }

const PMAP* ChatMessage::getPMap() { return CHATMESSAGE_CLASS.properties; }

const EMAP* ChatMessage::getEMap() { return CHATMESSAGE_CLASS.enums; }

bool ChatMessage::IsEditable() { return ZERequest(ChatMessageMethod::IsEditable).ask(this).flag(); }

bool ChatMessage::Edit(const ZEString& text, bool flag) {
  return ZERequest(ChatMessageMethod::Edit, text, flag).ask(this).flag();
}

bool ChatMessage::MarkRead() { return ZERequest(ChatMessageMethod::MarkRead).ask(this).flag(); }

bool ChatMessage::GetContacts(ZEPtrVector& contacts) {
  const ZEReply reply = ZERequest(ChatMessageMethod::GetContacts).ask(this);
  contacts = reply.objects<Contact>(1);
  return reply.flag();
}
