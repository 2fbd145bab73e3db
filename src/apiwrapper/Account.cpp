#include "apiwrapper/Account.h"

#include "apiwrapper/Contact.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

Account::Account(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString Account::getNamespace() { return ACCOUNT_CLASS.token; }

const PMAP* Account::getPMap() { return ACCOUNT_CLASS.properties; }

const EMAP* Account::getEMap() { return ACCOUNT_CLASS.enums; }

void Account::Login() { ZERequest(AccountMethod::Login).send(this); }

void Account::LoginWithPassword(const ZEString& password, bool savePassword) {
  ZERequest(AccountMethod::LoginWithPassword, password, savePassword, true).send(this);
}

void Account::Register(const ZEString& password, bool savePassword, const ZEString& email, bool allowOffers) {
  ZERequest(AccountMethod::Register, password, savePassword, email, allowOffers).send(this);
}

void Account::SubmitUICRequestResponse(const ZEString& blob) {
  ZERequest(AccountMethod::SubmitUICRequestResponse, blob).send(this);
}

void Account::Logout(bool flag) { ZERequest(AccountMethod::Logout, flag).send(this); }

void Account::ChangePassword(const ZEString& oldPassword, const ZEString& newPassword, bool savePassword) {
  ZERequest(AccountMethod::ChangePassword, oldPassword, newPassword, savePassword).send(this);
}

void Account::CancelServerCommit() { ZERequest(AccountMethod::CancelServerCommit).send(this); }

void Account::SetAvailability(AVAILABILITY availability) {
  ZERequest(AccountMethod::SetAvailability, availability).send(this);
}

ZEString Account::GetZeltonameHash() { return ZERequest(AccountMethod::GetZeltonameHash).ask(this).text(); }

Account::CAPABILITYSTATUS Account::GetCapabilityStatus(Contact::CAPABILITY capability, int& expiry) {
  const ZEReply reply = ZERequest(AccountMethod::GetCapabilityStatus, capability).ask(this);
  expiry = static_cast<int>(reply.unsignedNumber(1));
  return reply.enumerator<CAPABILITYSTATUS>();
}

Contact* Account::GetContact() { return ZERequest(AccountMethod::GetContact).ask(this).object<Contact>(); }

bool Account::SetProps(const ZEIntDict& values) {
  if (values.size() == 0) return true;
  return ZERequest::WithPairs(AccountMethod::SetProps, wireProps(values)).ask(this).flag();
}

bool Account::SetProp(int property, const ZEString& value) {
  ZEIntDict values;
  values.insert(property, value);
  return SetProps(values);
}

void Account::SetServersideProps(const ZEIntDict& values) {
  if (values.size() == 0) return;
  ZERequest::WithPairs(AccountMethod::SetServersideProps, wireProps(values)).send(this);
}

void Account::SetServersideProp(int property, const ZEString& value) {
  ZEIntDict values;
  values.insert(property, value);
  SetServersideProps(values);
}

ZEString Account::CreateSignedToken(const ZEString& text) {
  return ZERequest(AccountMethod::CreateSignedToken, text).ask(this).text();
}
