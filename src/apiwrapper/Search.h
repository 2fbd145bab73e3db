#pragma once

#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEPtrVector.h"

// A search among the runtime's own objects, running or finished.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class Search : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_STATUS = 1
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum STATUS : int { STATUS_FINISHED = 3, STATUS_FAILED };
  enum TARGET : int {
    CHAT = 1,
    CHATMEMBER,
    CHATMESSAGE,
    CALLS,
    CALLMEMBER,
    TRANSFER,
    VOICEMAIL,
    SMS,
    PRICEQUOTE,
    ALERT
  };
  enum CONDITION : int {};

  Search(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  // What it was started for; GetResults answers nothing before it is known. Zelto::SearchObjects tells it.
  void setTarget(TARGET target) { m_target = target; }

  void Extend();
  void Release();
  // `limit` -1: all. Slots of the class that was searched for.
  bool GetResults(int from, int limit, ZEPtrVector& results);

 private:
  TARGET m_target = static_cast<TARGET>(0);
};
