#include "zelhost/apiwrapper/client/CContactSearch.h"

void CContactSearch::OnNewResult(Contact* contact) {
  client::Trace(*this, kTraceContactSearch, ":OnNewResult = %p", static_cast<void*>(contact));
}
