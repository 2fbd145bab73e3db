#pragma once

#include "apiwrapper/ZEObject.h"

// A text message to phone numbers.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class Sms : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_TYPE = 1, P_STATUS = 2, P_FAILUREREASON = 3, P_4 = 4, P_5 = 5, P_6 = 6, P_7 = 7, P_8 = 8, P_9 = 9,
    P_10 = 10, P_11 = 11, P_12 = 12
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum TARGETSTATUS : int {};
  enum SETBODYRESULT : int {};
  enum CONFIRMTYPE : int {};

  Sms(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  TARGETSTATUS GetTargetStatus(const ZEString& target);
  bool SetReplyTo(const ZEString& number);
  bool SetTargets(const ZEStringList& numbers);
  // `chunks`: the text as it will be sent; `charactersLeft`: room in the last of them.
  SETBODYRESULT SetBody(const ZEString& text, ZEStringList& chunks, unsigned int& charactersLeft);
  bool GetBodyChunks(ZEStringList& chunks, unsigned int& charactersLeft);
  bool Send();
  void MarkSeen();
  void Delete();
  void SetConfirmationType(CONFIRMTYPE type);
};
