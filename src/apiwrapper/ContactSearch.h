#pragma once

#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEPtrVector.h"

class Contact;

// A search of the directory for contacts, running or finished.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class ContactSearch : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_STATUS = 1
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum STATUS : int { STATUS_RESULTS_ONLY = 3, STATUS_FINISHED, STATUS_FAILED };
  enum CONTACTFIELDS : int {};
  enum CONDITION : int {};

  ContactSearch(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;
  virtual void OnNewResult(Contact* contact);

  void Extend();
  void Release();
  // `limit` -1: all. Slots of Contact.
  bool GetResults(int from, int limit, ZEPtrVector& results);
};
