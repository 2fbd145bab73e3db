#include "apiwrapper/Zelto.h"

#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/RootMethods.h"

Zelto::FILEERROR Zelto::GetLastFileError(ZEString& fileName, int& errorCode) {
  const ZEReply reply = ZERequest(RootMethod::GetLastFileError).ask(this);
  fileName = reply.text(1);
  errorCode = reply.number(2);
  return reply.enumerator<FILEERROR>();
}

Zelto::CONNSTATUS Zelto::GetConnStatus() {
  return ZERequest(RootMethod::GetConnStatus).ask(this).enumerator<CONNSTATUS>();
}

Zelto::RCONNECTION_STATUS Zelto::GetRConnectionStatus() {
  return ZERequest(RootMethod::GetRConnectionStatus).ask(this).enumerator<RCONNECTION_STATUS>();
}

bool Zelto::StartRConnection(bool flag, const ZEString& text) {
  return ZERequest(RootMethod::StartRConnection, flag, text).ask(this).flag();
}

bool Zelto::StartRConnectionSnap(bool flag, const ZEString& snap) {
  return ZERequest(RootMethod::StartRConnectionSnap, flag, snap).ask(this).flag();
}

bool Zelto::StartRConnectionAlwaysAsk(bool flag) {
  return ZERequest(RootMethod::StartRConnectionAlwaysAsk, flag).ask(this).flag();
}

void Zelto::StopRConnection() { ZERequest(RootMethod::StopRConnection).ask(this); }

unsigned int Zelto::GetRConnectionIAP() {
  return ZERequest(RootMethod::GetRConnectionIAP).ask(this).unsignedNumber();
}

unsigned int Zelto::GetUsedPort() { return ZERequest(RootMethod::GetUsedPort).ask(this).unsignedNumber(); }

ZEString Zelto::GetDebugInfo() { return ZERequest(RootMethod::GetDebugInfo).ask(this).text(); }

void Zelto::Log(const ZEString& source, const ZEString& text) {
  ZERequest(RootMethod::Log, source, text).send(this);
}

unsigned int Zelto::GetTotalOnlineUserCount() {
  return ZERequest(RootMethod::GetTotalOnlineUserCount).ask(this).unsignedNumber();
}

bool Zelto::Ping() { return ZERequest(RootMethod::Ping).ask(this).flag(); }

void Zelto::DeclareClientProp(CLIENTPROP property, const ZEString& value) {
  ZERequest(RootMethod::DeclareClientProp, property, value).send(this);
}

int Zelto::GetIntClientProp(CLIENTPROP property) {
  return ZERequest(RootMethod::GetIntClientProp, property).ask(this).number();
}

Zelto::LIBSTATUS Zelto::GetLibStatus() {
  return ZERequest(RootMethod::GetLibStatus).ask(this).enumerator<LIBSTATUS>();
}

ZEString Zelto::GetDefaultDBPath() { return ZERequest(RootMethod::GetDefaultDBPath).ask(this).text(); }

ZEString Zelto::GetFatalErrorMessage() {
  return ZERequest(RootMethod::GetFatalErrorMessage).ask(this).text();
}

ZEStringDict Zelto::GetISOCountryNameDict(const ZEString& language) {
  return ZERequest(RootMethod::GetISOCountryNameDict, language).ask(this).values();
}

ZEStringDict Zelto::GetISOLanguageNameDict(const ZEString& language) {
  return ZERequest(RootMethod::GetISOLanguageNameDict, language).ask(this).values();
}

ZEStringDict Zelto::GetISOCountryPrefixDict() {
  return ZERequest(RootMethod::GetISOCountryPrefixDict).ask(this).values();
}

ZEStringDict Zelto::GetISOCountryDialExampleDict() {
  return ZERequest(RootMethod::GetISOCountryDialExampleDict).ask(this).values();
}

ZEStringList Zelto::GetISOCountryCodeList() {
  return ZERequest(RootMethod::GetISOCountryCodeList).ask(this).texts();
}

ZEStringList Zelto::GetISOLanguageCodeList() {
  return ZERequest(RootMethod::GetISOLanguageCodeList).ask(this).texts();
}

bool Zelto::IsISOCountryCode(const ZEString& country) {
  return ZERequest(RootMethod::IsISOCountryCode, country).ask(this).flag();
}

ZEString Zelto::GetISOCountryName(const ZEString& country, const ZEString& language) {
  return ZERequest(RootMethod::GetISOCountryName, country, language).ask(this).text();
}

ZEString Zelto::GetISOLanguageName(const ZEString& code, const ZEString& language) {
  return ZERequest(RootMethod::GetISOLanguageName, code, language).ask(this).text();
}

int Zelto::GetISOCountryPrefix(const ZEString& country) {
  return ZERequest(RootMethod::GetISOCountryPrefix, country).ask(this).number();
}

ZEString Zelto::GetISOCountryDialExample(const ZEString& country) {
  return ZERequest(RootMethod::GetISOCountryDialExample, country).ask(this).text();
}

ZEStringList Zelto::GetISOCountryCodeByPrefix(int prefix) {
  return ZERequest(RootMethod::GetISOCountryCodeByPrefix, prefix).ask(this).texts();
}

ZEString Zelto::GetVersion() { return ZERequest(RootMethod::GetVersion).ask(this).text(); }

ZEString Zelto::GetPlatform() { return ZERequest(RootMethod::GetPlatform).ask(this).text(); }

unsigned int Zelto::GetUnixTimestamp() {
  return ZERequest(RootMethod::GetUnixTimestamp).ask(this).unsignedNumber();
}

Zelto::UPGRADEAVAILABILITY Zelto::GetUpgradeInfo(ZEString& version) {
  const ZEReply reply = ZERequest(RootMethod::GetUpgradeInfo).ask(this);
  version = reply.text(1);
  return reply.enumerator<UPGRADEAVAILABILITY>();
}

ZEString Zelto::GetStr(const ZEString& key) { return ZERequest(RootMethod::GetStr, key).ask(this).text(); }

int Zelto::GetInt(const ZEString& key) { return ZERequest(RootMethod::GetInt, key).ask(this).number(); }

void Zelto::SetStr(const ZEString& key, const ZEString& value) {
  ZERequest(RootMethod::SetStr, key, value).send(this);
}

void Zelto::SetInt(const ZEString& key, int value) { ZERequest(RootMethod::SetInt, key, value).send(this); }

bool Zelto::IsDefined(const ZEString& key) { return ZERequest(RootMethod::IsDefined, key).ask(this).flag(); }

void Zelto::Delete(const ZEString& key) { ZERequest(RootMethod::Delete, key).send(this); }

ZEStringList Zelto::GetSubKeys(const ZEString& key) {
  return ZERequest(RootMethod::GetSubKeys, key).ask(this).texts();
}
