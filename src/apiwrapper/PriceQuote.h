#pragma once

#include "apiwrapper/ZEObject.h"

// An offer of the service that the user accepts or rejects.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class PriceQuote : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_1 = 1, P_2 = 2, P_TYPE = 3, P_4 = 4, P_5 = 5, P_6 = 6, P_7 = 7, P_8 = 8, P_STATUS = 9,
    P_FAILUREREASON = 10, P_11 = 11
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum TYPE : int {};

  PriceQuote(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  // What the offer is about; null when the engine has not met that object.
  ZEObject* GetReferredObject();
  bool Accept();
  bool Reject();
};
