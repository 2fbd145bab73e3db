#include "zelhost/apiwrapper/client/CSearch.h"

#include "apiwrapper/ZEPtrVector.h"
#include "zelhost/history/ZelhostHistoryManager.h"

void CSearch::OnChange(int property, const ZEString& value) {
  client::TraceChange(*this, kTraceSearch, property, value);
  if (property != P_STATUS) return;
  switch (value.toInt()) {
    case STATUS_FINISHED:
      DeliverResults();
      delete this;
      return;
    case STATUS_FAILED:
      delete this;
      return;
    default:
      return;
  }
}

void CSearch::DeliverResults() {
  ZEPtrVector results;
  GetResults(0, -1, results);
  CZelhostHistoryManager::GetInstance()->UpdateHistoryList(m_type, results);
  Release();
}
