#include "apiwrapper/Zelto.h"

#include "apiwrapper/Account.h"
#include "apiwrapper/Contact.h"
#include "apiwrapper/ContactGroup.h"
#include "apiwrapper/ContactSearch.h"
#include "apiwrapper/ContactSearchTerm.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/RootMethods.h"

ZEStringList Zelto::GetExistingAccounts() {
  return ZERequest(RootMethod::GetExistingAccounts).ask(this).texts();
}

Account* Zelto::GetDefaultAccount() {
  return ZERequest(RootMethod::GetDefaultAccount).ask(this).object<Account>();
}

Account* Zelto::GetAccount(const ZEString& identity) {
  return ZERequest(RootMethod::GetAccount, identity).ask(this).object<Account>();
}

int Zelto::GetFreeBytesLeft(Account::PROPERTY property, const ZEString& value) {
  return ZERequest(RootMethod::GetFreeBytesLeft, property, value).ask(this).number();
}

bool Zelto::IsValidEmail(const ZEString& email) {
  return ZERequest(RootMethod::IsValidEmail, email).ask(this).flag();
}

ZEString Zelto::GetSuggestedZeltoname(const ZEString& name) {
  return ZERequest(RootMethod::GetSuggestedZeltoname, name).ask(this).text();
}

Account::VALIDATERESULT Zelto::ValidatePassword(const ZEString& name, const ZEString& password) {
  return ZERequest(RootMethod::ValidatePassword, name, password)
      .ask(this)
      .enumerator<Account::VALIDATERESULT>();
}

Contact* Zelto::GetContact(const ZEString& identity) {
  return ZERequest(RootMethod::GetContact, identity).ask(this).object<Contact>();
}

Contact* Zelto::FindContactBySpeedDial(const ZEString& speedDial) {
  return ZERequest(RootMethod::FindContactBySpeedDial, speedDial).ask(this).object<Contact>();
}

Contact* Zelto::FindContactByPstnNumber(const ZEString& number, Contact::PROPERTY& property) {
  const ZEReply reply = ZERequest(RootMethod::FindContactByPstnNumber, number).ask(this);
  property = reply.enumerator<Contact::PROPERTY>(1);
  return reply.object<Contact>();
}

Contact::NORMALIZERESULT Zelto::NormalizeIdentity(const ZEString& identity, bool newAccount,
                                                  ZEString& normalized) {
  const ZEReply reply = ZERequest(RootMethod::NormalizeIdentity, identity, newAccount).ask(this);
  normalized = reply.text(1);
  return reply.enumerator<Contact::NORMALIZERESULT>();
}

Contact::TYPE Zelto::GetTypeByIdentity(const ZEString& identity) {
  return ZERequest(RootMethod::GetTypeByIdentity, identity).ask(this).enumerator<Contact::TYPE>();
}

ContactGroup* Zelto::GetHardwiredContactGroup(ContactGroup::TYPE type) {
  return ZERequest(RootMethod::GetHardwiredContactGroup, type).ask(this).object<ContactGroup>();
}

ZEPtrVector Zelto::GetCustomContactGroups() {
  return ZERequest(RootMethod::GetCustomContactGroups).ask(this).objects<ContactGroup>();
}

ContactGroup* Zelto::CreateCustomContactGroup() {
  return ZERequest(RootMethod::CreateCustomContactGroup).ask(this).object<ContactGroup>();
}

ContactSearch* Zelto::NewSearch(const ContactSearchTerm& term, bool flag, int limit) {
  ZERequest request(RootMethod::NewSearch, flag, limit);
  return request.withTerms(term.terms()).ask(this).object<ContactSearch>();
}

ContactSearch* Zelto::NewBasicSearch(const ZEString& text, bool flag, int limit) {
  return ZERequest(RootMethod::NewBasicSearch, text, flag, limit).ask(this).object<ContactSearch>();
}

ContactSearch* Zelto::NewIdentitySearch(const ZEString& identity, bool flag, int limit) {
  return ZERequest(RootMethod::NewIdentitySearch, identity, flag, limit).ask(this).object<ContactSearch>();
}

ZEStringList Zelto::GetOptimalAgeRanges() {
  return ZERequest(RootMethod::GetOptimalAgeRanges).ask(this).texts();
}
