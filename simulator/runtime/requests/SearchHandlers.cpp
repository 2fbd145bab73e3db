#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"

namespace simulator {
namespace {

constexpr int kStatus = 1;  // property of both kinds of search
constexpr int kSearchMilliseconds = 20;

// Numbers of CONTACTSEARCH_STATUS_MAP and SEARCH_STATUS_MAP: under way, and over.
constexpr int kContactSearchRunning = 2;
constexpr int kContactSearchFinished = 5;
constexpr int kSearchRunning = 1;
constexpr int kSearchFinished = 3;

void StartSearch(Session& session, Exchange& exchange, const ZEClass& type, int running, int finished) {
  Object& search = session.world.Create(type);
  session.world.PutInt(search, kStatus, running);
  exchange.AnswerObject(ZEKey::Result, &search);
  const unsigned id = search.id;
  session.scheduler.After(kSearchMilliseconds, [&session, id, finished] {
    Object* object = session.world.Find(id);
    if (object != nullptr) session.world.SetInt(*object, kStatus, finished);
  });
}

void SearchContacts(Session& session, Exchange& exchange) {
  StartSearch(session, exchange, CONTACTSEARCH_CLASS, kContactSearchRunning, kContactSearchFinished);
}

void SearchObjects(Session& session, Exchange& exchange) {
  StartSearch(session, exchange, SEARCH_CLASS, kSearchRunning, kSearchFinished);
}

void GetResults(Session&, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, 1);
  exchange.Answer(ZEKey::Objects, "");
}

void Release(Session& session, Exchange& exchange) { session.world.Delete(exchange.Target().id); }

// There is nothing of the kind yet, so the list is empty.
void EmptyList(Session&, Exchange& exchange) { exchange.Answer(ZEKey::Result, ""); }

// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::NewSearch,            SearchContacts},
    {&RootMethod::NewBasicSearch,       SearchContacts},
    {&RootMethod::NewIdentitySearch,    SearchContacts},
    {&RootMethod::SearchObjects,        SearchObjects},
    {&ContactSearchMethod::GetResults,  GetResults},
    {&ContactSearchMethod::Release,     Release},
    {&SearchMethod::GetResults,         GetResults},
    {&SearchMethod::Release,            Release},
    {&RootMethod::GetHistoricalCalls,   EmptyList},
    {&RootMethod::GetUnseenMissedCalls, EmptyList},
    {&RootMethod::GetActiveTransfers,   EmptyList},
    {&RootMethod::GetRecentChats,       EmptyList},
    {&RootMethod::GetUnreadChats,       EmptyList},
    {&RootMethod::GetBookmarkedChats,   EmptyList},
};
// clang-format on

}  // namespace

HandlerRows SearchHandlers() { return RowsOf(kRows); }

}  // namespace simulator
