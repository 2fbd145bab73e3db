#pragma once

#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEPtrVector.h"

// A voicemail, received or being left.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class Voicemail : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_TYPE = 1, P_PARTNER_IDENTITY = 2, P_PARTNER_DISPLAY_NAME = 3, P_STATUS = 4, P_FAILUREREASON = 5,
    P_6 = 6, P_TIMESTAMP = 7, P_DURATION = 8, P_9 = 9, P_10 = 10
  };
  // clang-format on

  Voicemail(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  bool StartRecording();
  void StopRecording();
  bool StartPlayback();
  void StopPlayback();
  void Delete();
  void Cancel();
  // Slots of ZEObject*.
  bool ForwardToContacts(const ZEPtrVector& contacts);
  bool ForwardToGroups(const ZEPtrVector& groups);
  ZEString GetEventId();
  void SetOrigin(const ZEString& identity);
  bool MarkSeen();
  bool CheckPermission();
};
