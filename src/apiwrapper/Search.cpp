#include "apiwrapper/Search.h"

#include "apiwrapper/Alert.h"
#include "apiwrapper/Call.h"
#include "apiwrapper/CallMember.h"
#include "apiwrapper/Chat.h"
#include "apiwrapper/ChatMember.h"
#include "apiwrapper/ChatMessage.h"
#include "apiwrapper/PriceQuote.h"
#include "apiwrapper/Sms.h"
#include "apiwrapper/Transfer.h"
#include "apiwrapper/Voicemail.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

namespace {

// In the order of Search::TARGET.
constexpr ZEReply::Resolver kResolvers[] = {
    zeResolve<Chat>,       zeResolve<ChatMember>, zeResolve<ChatMessage>, zeResolve<Call>,
    zeResolve<CallMember>, zeResolve<Transfer>,   zeResolve<Voicemail>,   zeResolve<Sms>,
    zeResolve<PriceQuote>, zeResolve<Alert>};

ZEObject* noObject(Zelto*, unsigned int) { return nullptr; }

ZEReply::Resolver resolverOf(Search::TARGET target) {
  if (target < Search::CHAT || target > Search::ALERT) return noObject;
  return kResolvers[target - Search::CHAT];
}

}  // namespace

Search::Search(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString Search::getNamespace() { return SEARCH_CLASS.token; }

const PMAP* Search::getPMap() { return SEARCH_CLASS.properties; }

const EMAP* Search::getEMap() { return SEARCH_CLASS.enums; }

void Search::Extend() { ZERequest(SearchMethod::Extend).send(this); }

void Search::Release() { ZERequest(SearchMethod::Release).send(this); }

bool Search::GetResults(int from, int limit, ZEPtrVector& results) {
  const ZEReply reply = ZERequest(SearchMethod::GetResults, from, limit).ask(this);
  results = reply.objects(1, resolverOf(m_target));
  return reply.flag();
}
