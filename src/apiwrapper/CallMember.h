#pragma once

#include "apiwrapper/ZEObject.h"

class Video;

// One far end of a call.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class CallMember : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_IDENTITY = 1, P_DISPLAY_NAME = 2, P_3 = 3, P_4 = 4, P_5 = 5, P_6 = 6, P_7 = 7, P_TYPE = 8,
    P_STATUS = 9, P_FAILUREREASON = 10, P_11 = 11, P_VOICE_LEVEL = 12, P_FAILURE_TEXT = 13, P_14 = 14,
    P_15 = 15, P_16 = 16, P_17 = 17, P_VIDEOSTATUS = 18, P_19 = 19, P_MIKESTATUS = 20, P_21 = 21,
    P_QUALITYSTATUS = 22, P_23 = 23, P_24 = 24, P_25 = 25, P_26 = 26, P_27 = 27, P_28 = 28, P_29 = 29,
    P_30 = 30, P_31 = 31, P_32 = 32, P_33 = 33, P_34 = 34, P_35 = 35, P_CALL_DURATION = 36, P_37 = 37,
    P_VOICEMAIL_FAILUREREASON = 38
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum TYPE : int { TYPE_PHONE_NUMBER = 3 };
  enum STATUS : int { STATUS_FAILED = 4, STATUS_INPROGRESS = 8, STATUS_FINISHED = 11, STATUS_MISSED = 12 };
  enum VIDEOSTATUS : int { VIDEO_NONE = 1, VIDEO_SEND_ENABLED, VIDEO_RECV_ENABLED, VIDEO_BOTH_ENABLED };
  enum ENDACTION : int { HANG_UP = 1, REDIRECT_TO_VOICEMAIL, FORWARD, CANCEL_VOICEMAIL };
  enum DTMF : int {};

  CallMember(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;
  // The far end pressed a key.
  virtual void OnIncomingDTMF(DTMF tone);

  void Answer();
  void Hold(bool hold);
  void GrantMike(bool grant);
  void SkipVoicemailGreeting();
  // Waits until the runtime has it.
  void SetVoicemailOrigin(const ZEString& identity);
  void End(ENDACTION action);
  bool Transfer(const ZEString& identity, const ZEString& topic);
  bool CanTransfer(const ZEString& identity);
  // Null when the member has no such stream. The registry owns it.
  Video* GetSendVideo();
  Video* GetRecvVideo();
  bool Redial(bool video, const ZEString& identity);
  void SetMissed();
};
