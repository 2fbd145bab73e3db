#include "apiwrapper/Call.h"

#include "apiwrapper/CallMember.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

Call::Call(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString Call::getNamespace() { return CALL_CLASS.token; }

const PMAP* Call::getPMap() { return CALL_CLASS.properties; }

const EMAP* Call::getEMap() { return CALL_CLASS.enums; }

void Call::Mute(bool mute) { ZERequest(CallMethod::Mute, mute).send(this); }

void Call::SetTopic(const ZEString& topic) { ZERequest(CallMethod::SetTopic, topic).send(this); }

void Call::SetAccessToken(const ZEString& token) { ZERequest(CallMethod::SetAccessToken, token).send(this); }

bool Call::Ring(const ZEString& identity, bool video) {
  return ZERequest(CallMethod::Ring, identity, video).ask(this).flag();
}

bool Call::LeaveVoicemail(const ZEString& identity) {
  return ZERequest(CallMethod::LeaveVoicemail, identity).ask(this).flag();
}

bool Call::Assimilate(Call* other) { return ZERequest(CallMethod::Assimilate, other).ask(this).flag(); }

void Call::RequestMike(bool request) { ZERequest(CallMethod::RequestMike, request).send(this); }

void Call::GrantMike(bool grant) { ZERequest(CallMethod::GrantMike, grant).send(this); }

ZEPtrVector Call::GetMembers() { return ZERequest(CallMethod::GetMembers).ask(this).objects<CallMember>(); }

void Call::Delete() { ZERequest(CallMethod::Delete).send(this); }

void Call::End(CallMember::ENDACTION action) { ZERequest(CallMethod::End, action).send(this); }

void Call::Hold(bool hold) { ZERequest(CallMethod::Hold, hold).send(this); }

bool Call::CanHold() { return ZERequest(CallMethod::CanHold).ask(this).flag(); }

bool Call::CanResume() { return ZERequest(CallMethod::CanResume).ask(this).flag(); }

void Call::MarkSeen() { ZERequest(CallMethod::MarkSeen).send(this); }

void Call::MarkUnseen() { ZERequest(CallMethod::MarkUnseen).send(this); }

void Call::PlayAndSendDTMF(CallMember::DTMF tone) { ZERequest(CallMethod::PlayAndSendDTMF, tone).send(this); }
