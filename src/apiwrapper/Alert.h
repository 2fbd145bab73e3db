#pragma once

#include "apiwrapper/ZEObject.h"

// A message of the service to the user.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class Alert : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_1 = 1, P_2 = 2, P_3 = 3, P_4 = 4, P_5 = 5, P_6 = 6, P_7 = 7, P_8 = 8, P_9 = 9, P_10 = 10, P_11 = 11,
    P_12 = 12, P_13 = 13, P_14 = 14, P_15 = 15, P_16 = 16, P_17 = 17, P_18 = 18, P_19 = 19, P_20 = 20
  };
  // clang-format on

  Alert(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  void MarkSeen();
  void Delete();
};
