#include "apiwrapper/Sms.h"

#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

Sms::Sms(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString Sms::getNamespace() { return SMS_CLASS.token; }

const PMAP* Sms::getPMap() { return SMS_CLASS.properties; }

const EMAP* Sms::getEMap() { return SMS_CLASS.enums; }

Sms::TARGETSTATUS Sms::GetTargetStatus(const ZEString& target) {
  return ZERequest(SmsMethod::GetTargetStatus, target).ask(this).enumerator<TARGETSTATUS>();
}

bool Sms::SetReplyTo(const ZEString& number) {
  return ZERequest(SmsMethod::SetReplyTo, number).ask(this).flag();
}

bool Sms::SetTargets(const ZEStringList& numbers) {
  return ZERequest(SmsMethod::SetTargets, numbers).ask(this).flag();
}

Sms::SETBODYRESULT Sms::SetBody(const ZEString& text, ZEStringList& chunks, unsigned int& charactersLeft) {
  const ZEReply reply = ZERequest(SmsMethod::SetBody, text).ask(this);
  chunks = reply.texts(1);
  charactersLeft = reply.unsignedNumber(2);
  return reply.enumerator<SETBODYRESULT>();
}

bool Sms::GetBodyChunks(ZEStringList& chunks, unsigned int& charactersLeft) {
  const ZEReply reply = ZERequest(SmsMethod::GetBodyChunks).ask(this);
  chunks = reply.texts(1);
  charactersLeft = reply.unsignedNumber(2);
  return reply.flag();
}

bool Sms::Send() { return ZERequest(SmsMethod::Send).ask(this).flag(); }

void Sms::MarkSeen() { ZERequest(SmsMethod::MarkSeen).send(this); }

void Sms::Delete() { ZERequest(SmsMethod::Delete).send(this); }

void Sms::SetConfirmationType(CONFIRMTYPE type) {
  ZERequest(SmsMethod::SetConfirmationType, type).send(this);
}
