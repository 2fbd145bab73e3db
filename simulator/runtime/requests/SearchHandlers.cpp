#include <algorithm>
#include <optional>

#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "apiwrapper/tables/Words.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/protocol/Values.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"
#include "simulator/runtime/service/AccountProperties.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/MagicNames.h"

namespace simulator {
namespace {

constexpr std::size_t kMostPeople = 1000;  // whatever limit is asked for
constexpr std::size_t kMostTerms = 100;

// Numbers of CONTACTSEARCH_STATUS_MAP and SEARCH_STATUS_MAP.
const Searches::Kind kContactSearch = {CONTACTSEARCH_CLASS, 2, 4, 5, true};
const Searches::Kind kObjectSearch = {SEARCH_CLASS, 1, 3, 4, false};

// "PROPERTY,CONDITION,VALUE" with tokens in front. Null when it is nothing of the kind.
std::optional<Condition> ConditionOf(std::string_view term, const ZEClass& type, const PMAP* properties,
                                     const PMAP* relations) {
  constexpr std::size_t kParts = 3;
  const std::vector<std::string_view> parts = SplitList(term);
  if (parts.size() != kParts) return std::nullopt;
  const int property = ZEProtocol::ValueOf(properties, std::string(parts[0]).c_str());
  const int relation = ZEProtocol::ValueOf(relations, std::string(parts[1]).c_str());
  if (property < 1 || relation < 1) return std::nullopt;
  return Condition{property, static_cast<Relation>(relation),
                   ReadProperty(type, property, {{}, parts[2], false}).text};
}

// The terms of a request. Null when one of them is none.
std::optional<Query> QueryOf(const Request& request, const ZEClass& type, const PMAP* properties,
                             const PMAP* relations) {
  Query query;
  std::size_t terms = 0;
  for (const Pair& pair : request.Pairs()) {
    if (pair.key != ZEKey::SearchTerm) continue;
    if (++terms > kMostTerms) return std::nullopt;
    if (pair.raw == ZEWord::SearchOr) {
      query.emplace_back();
      continue;
    }
    const auto condition = ConditionOf(pair.raw, type, properties, relations);
    if (!condition) return std::nullopt;
    if (query.empty()) query.emplace_back();
    query.back().push_back(*condition);
  }
  return query;
}

// The directory.

void FindPeople(Session& session, Exchange& exchange, const std::optional<Query>& query) {
  const int limit = exchange.Number(ZEKey::ResultLimit);
  const std::size_t most = limit < 1 ? kMostPeople : std::min(kMostPeople, static_cast<std::size_t>(limit));
  const auto find = [&session, query, most](std::vector<unsigned>& results) {
    const std::string& account = session.signIn.Name();
    if (!query || account.empty()) return false;
    // Nobody looks for himself.
    for (const std::string& name : session.service.FindPeople(*query, most + 1)) {
      if (name == account || results.size() == most || session.world.IsFull()) continue;
      if (const Object* contact = session.contacts.Find(name)) results.push_back(contact->id);
    }
    return true;
  };
  exchange.AnswerObject(ZEKey::Result, &session.searches.Start(kContactSearch, find));
}

void NewSearch(Session& session, Exchange& exchange) {
  FindPeople(session, exchange,
             QueryOf(exchange.TheRequest(), ACCOUNT_CLASS, CONTACTSEARCH_CONTACTFIELDS_MAP,
                     CONTACTSEARCH_CONDITION_MAP));
}

// As people look for people: by the beginnings of names, or a whole address.
void NewBasicSearch(Session& session, Exchange& exchange) {
  const std::string text = exchange.Text(ZEKey::Text);
  const bool empty = text.find_first_not_of(' ') == std::string::npos;
  FindPeople(session, exchange,
             empty ? std::optional<Query>()
                   : Query{{{account::kName, Relation::BeginsWith, text}},
                           {{account::kFullName, Relation::HasWordBeginnings, text}},
                           {{account::kEmails, Relation::HasWords, text}}});
}

void NewIdentitySearch(Session& session, Exchange& exchange) {
  const std::string name = NormalizeIdentity(exchange.Text(ZEKey::Identity), false).identity;
  const auto find = [&session, name](std::vector<unsigned>& results) {
    if (session.signIn.Name().empty()) return false;
    const bool known = session.service.Exists(name) || IsMagicName(name);
    const Object* contact = known ? session.contacts.Find(name) : nullptr;
    if (contact != nullptr) results.push_back(contact->id);
    return true;
  };
  exchange.AnswerObject(ZEKey::Result, &session.searches.Start(kContactSearch, find));
}

// The runtime's own objects.

struct Target {
  const ZEClass& type;
  std::vector<unsigned> (*list)(Session& session);
};

// Of other classes there are none to be found.
const Target kTargets[] = {
    {CHAT_CLASS, [](Session& session) { return session.chats.All(); }},
    {CALL_CLASS, [](Session& session) { return session.pastCalls.All(); }},
    {VOICEMAIL_CLASS, [](Session& session) { return session.voicemails.All(); }},
};

const Target* TargetOf(const std::string& token) {
  for (const Target& target : kTargets) {
    if (token == target.type.token) return &target;
  }
  return nullptr;
}

void SearchObjects(Session& session, Exchange& exchange) {
  const Target* target = TargetOf(exchange.Text(ZEKey::Target));
  const int limit = exchange.Number(ZEKey::Limit);
  std::optional<Query> query = Query();
  if (target != nullptr) {
    query = QueryOf(exchange.TheRequest(), target->type, target->type.properties, SEARCH_CONDITION_MAP);
  }
  const auto find = [&session, target, limit, query](std::vector<unsigned>& results) {
    if (!query || session.signIn.Name().empty()) return false;
    if (target == nullptr) return true;
    for (const unsigned id : target->list(session)) {
      if (limit > 0 && results.size() == static_cast<std::size_t>(limit)) break;
      const Object* object = session.world.Find(id);
      const auto textOf = [object](int property) -> std::string_view { return object->GetText(property); };
      if (object != nullptr && Holds(*query, textOf)) results.push_back(id);
    }
    return true;
  };
  exchange.AnswerObject(ZEKey::Result, &session.searches.Start(kObjectSearch, find));
}

// Searches of both classes.

void GetResults(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, 1);
  exchange.AnswerObjects(ZEKey::Objects,
                         session.searches.Results(exchange.Target().id, exchange.Number(ZEKey::From),
                                                  exchange.Number(ZEKey::Limit)));
}

void Release(Session& session, Exchange& exchange) { session.searches.Release(exchange.Target().id); }

// There is nothing of the kind, so the list is empty.
void EmptyList(Session&, Exchange& exchange) { exchange.Answer(ZEKey::Result, ""); }

// A search has found all there is, so nothing comes of extending it.
// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::NewSearch,           NewSearch},
    {&RootMethod::NewBasicSearch,      NewBasicSearch},
    {&RootMethod::NewIdentitySearch,   NewIdentitySearch},
    {&RootMethod::SearchObjects,       SearchObjects},
    {&ContactSearchMethod::GetResults, GetResults},
    {&ContactSearchMethod::Release,    Release},
    {&ContactSearchMethod::Extend,     TakeNote},
    {&SearchMethod::GetResults,        GetResults},
    {&SearchMethod::Release,           Release},
    {&SearchMethod::Extend,            TakeNote},
    {&RootMethod::GetActiveTransfers,  EmptyList},
};
// clang-format on

}  // namespace

HandlerRows SearchHandlers() { return RowsOf(kRows); }

}  // namespace simulator
