#include "apiwrapper/ContactGroup.h"

#include "apiwrapper/Contact.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

ContactGroup::ContactGroup(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString ContactGroup::getNamespace() { return CONTACTGROUP_CLASS.token; }

const PMAP* ContactGroup::getPMap() { return CONTACTGROUP_CLASS.properties; }

const EMAP* ContactGroup::getEMap() { return CONTACTGROUP_CLASS.enums; }

void ContactGroup::OnGroupChanged(Contact*, bool) {}

ZEPtrVector ContactGroup::GetContacts() {
  return ZERequest(ContactGroupMethod::GetContacts).ask(this).objects<Contact>();
}

bool ContactGroup::GiveDisplayName(const ZEString& name) {
  return ZERequest(ContactGroupMethod::GiveDisplayName, name).ask(this).flag();
}

bool ContactGroup::CanAddContact(Contact* contact) {
  return ZERequest(ContactGroupMethod::CanAddContact, contact).ask(this).flag();
}

bool ContactGroup::AddContact(Contact* contact) {
  return ZERequest(ContactGroupMethod::AddContact, contact).ask(this).flag();
}

bool ContactGroup::CanRemoveContact() {
  return ZERequest(ContactGroupMethod::CanRemoveContact).ask(this).flag();
}

bool ContactGroup::RemoveContact(Contact* contact) {
  return ZERequest(ContactGroupMethod::RemoveContact, contact).ask(this).flag();
}

bool ContactGroup::Delete(bool flag) { return ZERequest(ContactGroupMethod::Delete, flag).ask(this).flag(); }
