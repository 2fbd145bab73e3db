#include "apiwrapper/Chat.h"

#include "apiwrapper/ChatMember.h"
#include "apiwrapper/ChatMessage.h"
#include "apiwrapper/Contact.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

Chat::Chat(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString Chat::getNamespace() { return CHAT_CLASS.token; }

const PMAP* Chat::getPMap() { return CHAT_CLASS.properties; }

const EMAP* Chat::getEMap() { return CHAT_CLASS.enums; }

ZEString Chat::GetJoinBlob() { return ZERequest(ChatMethod::GetJoinBlob).ask(this).text(); }

bool Chat::Join() { return ZERequest(ChatMethod::Join).ask(this).flag(); }

bool Chat::SetPassword(const ZEString& password, const ZEString& hint) {
  return ZERequest(ChatMethod::SetPassword, password, hint).ask(this).flag();
}

bool Chat::EnterPassword(const ZEString& password) {
  return ZERequest(ChatMethod::EnterPassword, password).ask(this).flag();
}

bool Chat::AcceptAdd() { return ZERequest(ChatMethod::AcceptAdd).ask(this).flag(); }

bool Chat::AddMembers(const ZEStringList& identities) {
  return ZERequest(ChatMethod::AddMembers, identities).ask(this).flag();
}

bool Chat::SetPicture(const ZEString& picture) {
  return ZERequest(ChatMethod::SetPicture, picture).ask(this).flag();
}

ZEString Chat::GetPicture() { return ZERequest(ChatMethod::GetPicture).ask(this).text(); }

bool Chat::GetRecentMessages(ZEPtrVector& earlier, ZEPtrVector& messages) {
  const ZEReply reply = ZERequest(ChatMethod::GetRecentMessages).ask(this);
  earlier = reply.objects<ChatMessage>(1);
  messages = reply.objects<ChatMessage>(2);
  return reply.flag();
}

bool Chat::ClearRecentMessages() { return ZERequest(ChatMethod::ClearRecentMessages).ask(this).flag(); }

bool Chat::GetUnsentMessages(ZEPtrVector& messages) {
  const ZEReply reply = ZERequest(ChatMethod::GetUnsentMessages).ask(this);
  messages = reply.objects<ChatMessage>(1);
  return reply.flag();
}

bool Chat::SetOptions(int options) { return ZERequest(ChatMethod::SetOptions, options).ask(this).flag(); }

ChatMessage* Chat::Say(const ZEString& text, bool flag) {
  return ZERequest(ChatMethod::Say, text, flag).ask(this).object<ChatMessage>();
}

bool Chat::SetTopic(const ZEString& topic, bool flag) {
  return ZERequest(ChatMethod::SetTopic, topic, flag).ask(this).flag();
}

bool Chat::SetGuidelines(const ZEString& guidelines, bool flag) {
  return ZERequest(ChatMethod::SetGuidelines, guidelines, flag).ask(this).flag();
}

bool Chat::KickMember(const ZEString& identity, const ZEString& reason) {
  return ZERequest(ChatMethod::KickMember, identity, reason).ask(this).flag();
}

bool Chat::PostContacts(const ZEPtrVector& contacts) {
  return ZERequest(ChatMethod::PostContacts, contacts).ask(this).flag();
}

bool Chat::PostFiles(const ZEStringList& files, const ZEString& text) {
  return ZERequest(ChatMethod::PostFiles, files, text).ask(this).flag();
}

void Chat::ReportMyActivities(ChatMember::ACTIVITY activity) {
  ZERequest(ChatMethod::ReportMyActivities, activity).send(this);
}

bool Chat::Leave(LEAVEREASON reason) { return ZERequest(ChatMethod::Leave, reason).ask(this).flag(); }

bool Chat::Disband() { return ZERequest(ChatMethod::Disband).ask(this).flag(); }

bool Chat::SetBookmark(bool bookmark) {
  return ZERequest(ChatMethod::SetBookmark, bookmark).ask(this).flag();
}

bool Chat::SetAlertString(const ZEString& text) {
  return ZERequest(ChatMethod::SetAlertString, text).ask(this).flag();
}

bool Chat::Delete() { return ZERequest(ChatMethod::Delete).ask(this).flag(); }

ZEPtrVector Chat::GetMembers() { return ZERequest(ChatMethod::GetMembers).ask(this).objects<ChatMember>(); }
