#pragma once

#include "apiwrapper/CallMember.h"
#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEPtrVector.h"

// A call, live or of the history.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class Call : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_START_TIME = 1, P_2 = 2, P_3 = 3, P_UNSEEN = 4, P_PARTNER_IDENTITY = 5, P_MIKESTATUS = 6,
    P_DURATION = 7, P_8 = 8, P_9 = 9, P_ACTIVE_MEMBERS = 10, P_ONGOING = 11, P_12 = 12, P_13 = 13,
    P_14 = 14, P_15 = 15, P_16 = 16, P_INCOMING = 17, P_CONFERENCE = 18
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum CLEARCALLHISTORYTYPE : int {};

  Call(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  void Mute(bool mute);
  void SetTopic(const ZEString& topic);
  void SetAccessToken(const ZEString& token);
  // `video`: whether pictures are offered at once.
  bool Ring(const ZEString& identity, bool video = false);
  bool LeaveVoicemail(const ZEString& identity);
  // Takes the members of the other call into this one.
  bool Assimilate(Call* other);
  void RequestMike(bool request);
  void GrantMike(bool grant);
  // Slots of CallMember.
  ZEPtrVector GetMembers();
  void Delete();
  void End(CallMember::ENDACTION action);
  void Hold(bool hold);
  bool CanHold();
  bool CanResume();
  void MarkSeen();
  void MarkUnseen();
  void PlayAndSendDTMF(CallMember::DTMF tone);
};
