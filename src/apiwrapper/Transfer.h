#pragma once

#include "apiwrapper/ZEObject.h"

// A file on its way to or from a contact.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class Transfer : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_TYPE = 1, P_PARTNER_IDENTITY = 2, P_PARTNER_DISPLAY_NAME = 3, P_STATUS = 4, P_FAILUREREASON = 5,
    P_6 = 6, P_7 = 7, P_8 = 8, P_9 = 9, P_10 = 10, P_11 = 11, P_12 = 12
  };
  // clang-format on

  Transfer(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  // `path`: where the runtime stores the file.
  bool Accept(const ZEString& path);
  bool Pause();
  bool Resume();
  bool Cancel();
  bool Delete();
};
