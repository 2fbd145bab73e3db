#include "zelhost/apiwrapper/client/CSearch.h"

#include <utility>

#include "apiwrapper/SearchTerm.h"
#include "apiwrapper/ZEPtrVector.h"
#include "apiwrapper/Zelto.h"
#include "zelhost/chats/ZelhostChatManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"

CSearch* CSearch::Start(Zelto& root, TARGET kind) {
  constexpr int kAll = -1;
  auto* search = dynamic_cast<CSearch*>(root.SearchObjects(SearchTerm(kind), kAll));
  if (search != nullptr) search->SetSearchType(kind);
  return search;
}

void CSearch::GiveUp(CSearch*& search) {
  CSearch* ended = std::exchange(search, nullptr);
  if (ended == nullptr) return;
  ended->Release();
  delete ended;
}

CSearch::~CSearch() {
  CZelhostChatManager::ForgetSearch(this);
  CZelhostHistoryManager::ForgetSearch(this);
}

void CSearch::OnChange(int property, const ZEString& value) {
  client::TraceChange(*this, kTraceSearch, property, value);
  if (property != P_STATUS) return;
  switch (value.toInt()) {
    case STATUS_FINISHED:
      DeliverResults();
      delete this;
      return;
    case STATUS_FAILED:
      ReportFailure();
      delete this;
      return;
    default:
      return;
  }
}

void CSearch::OnDelete() {
  ReportFailure();
  ClientObject::OnDelete();
}

void CSearch::DeliverResults() {
  ZEPtrVector results;
  GetResults(0, -1, results);
  CZelhostHistoryManager::GetInstance()->UpdateHistoryList(m_type, results);
  Release();
}

void CSearch::ReportFailure() { CZelhostHistoryManager::GetInstance()->OnSearchFailed(m_type); }
