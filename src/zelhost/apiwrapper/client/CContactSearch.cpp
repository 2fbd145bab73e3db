#include "zelhost/apiwrapper/client/CContactSearch.h"

#include "Common/ZeltoManager.h"
#include "apiwrapper/ZEReply.h"
#include "zelhost/PropertyList.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/contacts/ZelhostContactManager.h"

void CContactSearch::OnChange(int property, const ZEString& value) {
  const CZelto* root = client::RootOf(*this);
  if (root != nullptr && root->IsTraced(kTraceContactSearch)) {
    const ZEStringList words = getPropDebug(property, value);
    root->trace(kTraceContactSearch, ":%s = %s", static_cast<const char*>(words[1]),
                static_cast<const char*>(words[2]));
  }
  if (property != P_STATUS) return;
  switch (value.toInt()) {
    case STATUS_RESULTS_ONLY:
      TakeResults();
      break;
    case STATUS_FINISHED:
      Deliver(TakeResults());
      break;
    case STATUS_FAILED:
      TellFinished();
      break;
    default:
      return;
  }
  Release();
  delete this;
}

void CContactSearch::OnDelete() {
  TellFinished();
  ClientObject::OnDelete();
}

ZEPtrVector CContactSearch::TakeResults() {
  ZEPtrVector results;
  GetResults(m_nResultOffset, -1, results);
  ZEIntList properties = zelhost::ListOf(zelhost::kSearchedContactProperties);
  if (m_type == kSearchProfile) {
    for (const int property : zelhost::kProfileProperties) properties.append(property);
  }
  getRoot()->GetMultipleObjectsProps(results, properties);
  client::Trace(*this, kTraceContactSearch, "There are %u results, starting from %d:\n", results.size(),
                m_nResultOffset);
  for (unsigned i = 0; i < results.size(); ++i) {
    if (auto* contact = zeObjectAt<Contact>(results, i)) TraceResult(contact);
  }
  m_nResultOffset += static_cast<int>(results.size());
  return results;
}

// Number, the text properties as they were fetched, and whether there is a picture.
void CContactSearch::TraceResult(Contact* contact) {
  const ZEIntDict& values = contact->propCache;
  const auto text = [&](int property) { return values.find(property); };
  client::Trace(
      *this, kTraceContactSearch, ":OnNewResult = %s,%s,%s,%s,%s,%s,%s,%s",
      static_cast<const char*>(ZEString::from(++m_nPrinted)),
      static_cast<const char*>(text(Contact::P_IDENTITY)), static_cast<const char*>(text(Contact::P_4)),
      static_cast<const char*>(text(Contact::P_COUNTRY)), static_cast<const char*>(text(Contact::P_10)),
      static_cast<const char*>(text(Contact::P_LANGUAGE)), static_cast<const char*>(text(Contact::P_33)),
      text(Contact::P_AVATAR).isEmpty() ? "" : "picture");
}

void CContactSearch::Deliver(const ZEPtrVector& results) {
  auto* contacts = CZelhostContactManager::GetInstance();
  if (m_type == kSearchContacts) contacts->SetSearchedContact(results);
  if (m_type == kSearchProfile) contacts->SetSearchedContactProfile(results);
}

void CContactSearch::TellFinished() {
  CZeltoManager::SendEvent(CZeltoManager::CONTACTSEARCH_FINISHED, m_nResultOffset);
}
