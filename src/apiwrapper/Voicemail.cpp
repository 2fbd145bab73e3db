#include "apiwrapper/Voicemail.h"

#include "apiwrapper/Contact.h"
#include "apiwrapper/ContactGroup.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

Voicemail::Voicemail(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString Voicemail::getNamespace() { return VOICEMAIL_CLASS.token; }

const PMAP* Voicemail::getPMap() { return VOICEMAIL_CLASS.properties; }

const EMAP* Voicemail::getEMap() { return VOICEMAIL_CLASS.enums; }

bool Voicemail::StartRecording() { return ZERequest(VoicemailMethod::StartRecording).ask(this).flag(); }

void Voicemail::StopRecording() { ZERequest(VoicemailMethod::StopRecording).send(this); }

bool Voicemail::StartPlayback() { return ZERequest(VoicemailMethod::StartPlayback).ask(this).flag(); }

void Voicemail::StopPlayback() { ZERequest(VoicemailMethod::StopPlayback).send(this); }

void Voicemail::Delete() { ZERequest(VoicemailMethod::Delete).send(this); }

void Voicemail::Cancel() { ZERequest(VoicemailMethod::Cancel).send(this); }

bool Voicemail::ForwardToContacts(const ZEPtrVector& contacts) {
  return ZERequest(VoicemailMethod::ForwardToContacts, contacts).ask(this).flag();
}

bool Voicemail::ForwardToGroups(const ZEPtrVector& groups) {
  return ZERequest(VoicemailMethod::ForwardToGroups, groups).ask(this).flag();
}

ZEString Voicemail::GetEventId() { return ZERequest(VoicemailMethod::GetEventId).ask(this).text(); }

void Voicemail::SetOrigin(const ZEString& identity) {
  ZERequest(VoicemailMethod::SetOrigin, identity).send(this);
}

bool Voicemail::MarkSeen() { return ZERequest(VoicemailMethod::MarkSeen).ask(this).flag(); }

bool Voicemail::CheckPermission() { return ZERequest(VoicemailMethod::CheckPermission).ask(this).flag(); }
