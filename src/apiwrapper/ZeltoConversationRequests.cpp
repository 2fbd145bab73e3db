#include "apiwrapper/Zelto.h"

#include "apiwrapper/Call.h"
#include "apiwrapper/Chat.h"
#include "apiwrapper/PriceQuote.h"
#include "apiwrapper/Search.h"
#include "apiwrapper/SearchTerm.h"
#include "apiwrapper/Sms.h"
#include "apiwrapper/Transfer.h"
#include "apiwrapper/Voicemail.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/RootMethods.h"

Call* Zelto::CreateCall() { return ZERequest(RootMethod::CreateCall).ask(this).object<Call>(); }

Call* Zelto::JoinExistingCall(const ZEString& blob, const ZEString& token) {
  return ZERequest(RootMethod::JoinExistingCall, blob, token).ask(this).object<Call>();
}

Call* Zelto::GetCall(const ZEString& guid) {
  return ZERequest(RootMethod::GetCall, guid).ask(this).object<Call>();
}

ZEPtrVector Zelto::GetUnseenMissedCalls() {
  return ZERequest(RootMethod::GetUnseenMissedCalls).ask(this).objects<Call>();
}

ZEPtrVector Zelto::GetHistoricalCalls() {
  return ZERequest(RootMethod::GetHistoricalCalls).ask(this).objects<Call>();
}

void Zelto::ClearCallHistory(Call::CLEARCALLHISTORYTYPE type, const ZEString& identity) {
  ZERequest(RootMethod::ClearCallHistory, type, identity).send(this);
}

Voicemail* Zelto::GetGreeting(const ZEString& identity) {
  return ZERequest(RootMethod::GetGreeting, identity).ask(this).object<Voicemail>();
}

Sms* Zelto::CreateConfirmationRequestSms() {
  return ZERequest(RootMethod::CreateConfirmationRequestSms).ask(this).object<Sms>();
}

Sms* Zelto::CreateConfirmationSubmitSms() {
  return ZERequest(RootMethod::CreateConfirmationSubmitSms).ask(this).object<Sms>();
}

Sms* Zelto::CreateOutgoingSms() { return ZERequest(RootMethod::CreateOutgoingSms).ask(this).object<Sms>(); }

ZEStringList Zelto::GetValidatedSmsNumbers() {
  return ZERequest(RootMethod::GetValidatedSmsNumbers).ask(this).texts();
}

ZEString Zelto::GetLastConfirmationNumber() {
  return ZERequest(RootMethod::GetLastConfirmationNumber).ask(this).text();
}

Chat* Zelto::CreateChat() { return ZERequest(RootMethod::CreateChat).ask(this).object<Chat>(); }

Chat* Zelto::GetChat(const ZEString& name) {
  return ZERequest(RootMethod::GetChat, name).ask(this).object<Chat>();
}

Chat* Zelto::OpenChatTo(const ZEString& identity) {
  return ZERequest(RootMethod::OpenChatTo, identity).ask(this).object<Chat>();
}

Chat* Zelto::GetPublicChat(const ZEString& blob) {
  return ZERequest(RootMethod::GetPublicChat, blob).ask(this).object<Chat>();
}

void Zelto::DeleteAllMessages() { ZERequest(RootMethod::DeleteAllMessages).send(this); }

ZEPtrVector Zelto::GetRecentChats() {
  return ZERequest(RootMethod::GetRecentChats).ask(this).objects<Chat>();
}

ZEPtrVector Zelto::GetUnreadChats() {
  return ZERequest(RootMethod::GetUnreadChats).ask(this).objects<Chat>();
}

ZEPtrVector Zelto::GetBookmarkedChats() {
  return ZERequest(RootMethod::GetBookmarkedChats).ask(this).objects<Chat>();
}

unsigned int Zelto::GetChatMemberCountLimit() {
  return ZERequest(RootMethod::GetChatMemberCountLimit).ask(this).unsignedNumber();
}

Transfer* Zelto::StartTransfer(const ZEString& identities, const ZEString& path) {
  return ZERequest(RootMethod::StartTransfer, identities, path).ask(this).object<Transfer>();
}

ZEPtrVector Zelto::GetActiveTransfers() {
  return ZERequest(RootMethod::GetActiveTransfers).ask(this).objects<Transfer>();
}

Search* Zelto::SearchObjects(const SearchTerm& term, int limit) {
  ZERequest request(RootMethod::SearchObjects, term.target(), limit);
  auto* search = request.withTerms(term.terms()).ask(this).object<Search>();
  if (search != nullptr) search->setTarget(term.target());
  return search;
}

PriceQuote* Zelto::IssuePriceQuote(const ZEString& subject, PriceQuote::TYPE type, const ZEString& detail1,
                                   const ZEString& detail2, const ZEString& detail3, const ZEString& detail4,
                                   const ZEString& detail5) {
  return ZERequest(RootMethod::IssuePriceQuote, subject, type, detail1, detail2, detail3, detail4, detail5)
      .ask(this)
      .object<PriceQuote>();
}
