#pragma once

#include "apiwrapper/ContactSearch.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A search of the service's directory for people. Hands its results to the contact manager when it ends,
// releases itself and deletes itself; nobody keeps a pointer to it.
// Threads: the caller holds the service-host mutex.
class CContactSearch : public ClientObject<ContactSearch, kTraceContactSearch> {
 public:
  enum SEARCH_TYPE {
    kSearchUntyped = 0,   // nobody waits for the results
    kSearchProfile = 2,   // the profile of one identity
    kSearchContacts = 3,  // people that match a text
    kSearchByTerm = 4,    // a term built on a console; not offered
  };

  using ClientObject::ClientObject;

  void SetSearchType(SEARCH_TYPE type) { m_type = type; }
  SEARCH_TYPE GetSearchType() const { return m_type; }

  void OnChange(int property, const ZEString& value) override;
  // Dropped by the runtime before its end: the widget, which waits for it, hears that it is over.
  void OnDelete() override;

 private:
  ZEPtrVector TakeResults();
  void TraceResult(Contact* contact);
  void Deliver(const ZEPtrVector& results);
  void TellFinished();

  SEARCH_TYPE m_type = kSearchUntyped;
  int m_nResultOffset = 0;  // results already taken
  int m_nPrinted = 0;       // results already traced
};
