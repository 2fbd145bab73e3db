#pragma once

#include "apiwrapper/ContactSearch.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A search of the service's directory for people.
// Threads: the caller holds the service-host mutex.
class CContactSearch : public ClientObject<ContactSearch, kTraceContactSearch> {
 public:
  enum SEARCH_TYPE {
    kSearchProfile = 2,   // the profile of one identity
    kSearchContacts = 3,  // people that match a text
    kSearchByTerm = 4,    // a term built on a console; not offered
  };

  using ClientObject::ClientObject;

  void SetSearchType(SEARCH_TYPE type) { m_type = type; }
  SEARCH_TYPE GetSearchType() const { return m_type; }

  void OnNewResult(Contact* contact) override;

 private:
  SEARCH_TYPE m_type = kSearchContacts;
};
