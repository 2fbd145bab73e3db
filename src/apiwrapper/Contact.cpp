#include "apiwrapper/Contact.h"

#include "apiwrapper/ContactGroup.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

Contact::Contact(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString Contact::getNamespace() { return CONTACT_CLASS.token; }

const PMAP* Contact::getPMap() { return CONTACT_CLASS.properties; }

const EMAP* Contact::getEMap() { return CONTACT_CLASS.enums; }

void Contact::OnContactGoneOffline() {}

bool Contact::IsMemberOf(ContactGroup* group) {
  return ZERequest(ContactMethod::IsMemberOf, group).ask(this).flag();
}

bool Contact::GiveAuthLevel(AUTHLEVEL level) {
  return ZERequest(ContactMethod::GiveAuthLevel, level).ask(this).flag();
}

bool Contact::GiveDisplayName(const ZEString& name) {
  return ZERequest(ContactMethod::GiveDisplayName, name).ask(this).flag();
}

bool Contact::AssignSpeedDial(const ZEString& speedDial) {
  return ZERequest(ContactMethod::AssignSpeedDial, speedDial).ask(this).flag();
}

bool Contact::SetBuddyStatus(bool buddy) {
  return ZERequest(ContactMethod::SetBuddyStatus, buddy).ask(this).flag();
}

bool Contact::SendAuthRequest(const ZEString& message) {
  return ZERequest(ContactMethod::SendAuthRequest, message).ask(this).flag();
}

bool Contact::HasCapability(CAPABILITY capability, bool flag) {
  return ZERequest(ContactMethod::HasCapability, capability, flag).ask(this).flag();
}

void Contact::RefreshProfile() { ZERequest(ContactMethod::RefreshProfile).send(this); }

bool Contact::HasAuthorizedMe() { return ZERequest(ContactMethod::HasAuthorizedMe).ask(this).flag(); }

ZEString Contact::GetAvatar() { return ZERequest(ContactMethod::GetAvatar).ask(this).text(); }

bool Contact::SetPhoneNumber(unsigned int slot, const ZEString& label, const ZEString& number) {
  return ZERequest(ContactMethod::SetPhoneNumber, slot, label, number).ask(this).flag();
}
