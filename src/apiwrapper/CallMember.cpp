#include "apiwrapper/CallMember.h"

#include "apiwrapper/Video.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

CallMember::CallMember(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString CallMember::getNamespace() { return CALLMEMBER_CLASS.token; }

const PMAP* CallMember::getPMap() { return CALLMEMBER_CLASS.properties; }

const EMAP* CallMember::getEMap() { return CALLMEMBER_CLASS.enums; }

void CallMember::OnIncomingDTMF(DTMF) {}

void CallMember::Answer() { ZERequest(CallMemberMethod::Answer).send(this); }

void CallMember::Hold(bool hold) { ZERequest(CallMemberMethod::Hold, hold).send(this); }

void CallMember::GrantMike(bool grant) { ZERequest(CallMemberMethod::GrantMike, grant).send(this); }

void CallMember::SkipVoicemailGreeting() { ZERequest(CallMemberMethod::SkipVoicemailGreeting).send(this); }

void CallMember::SetVoicemailOrigin(const ZEString& identity) {
  ZERequest(CallMemberMethod::SetVoicemailOrigin, identity).ask(this);
}

void CallMember::End(ENDACTION action) { ZERequest(CallMemberMethod::End, action).send(this); }

bool CallMember::Transfer(const ZEString& identity, const ZEString& topic) {
  return ZERequest(CallMemberMethod::Transfer, identity, topic).ask(this).flag();
}

bool CallMember::CanTransfer(const ZEString& identity) {
  return ZERequest(CallMemberMethod::CanTransfer, identity).ask(this).flag();
}

Video* CallMember::GetSendVideo() {
  return ZERequest(CallMemberMethod::GetSendVideo).ask(this).object<Video>();
}

Video* CallMember::GetRecvVideo() {
  return ZERequest(CallMemberMethod::GetRecvVideo).ask(this).object<Video>();
}

bool CallMember::Redial(bool video, const ZEString& identity) {
  return ZERequest(CallMemberMethod::Redial, video, identity).ask(this).flag();
}

void CallMember::SetMissed() { ZERequest(CallMemberMethod::SetMissed).send(this); }
