#pragma once

struct CZeltoEvent;
class ZEString;

// The one call at a time: placing, answering, ending, video, and what the widget asks about it.
// The order of the operations is that of the implementing class, CZelhostCallManager.
// Threads: any; an implementation takes the service-host mutex.
// Failures, and every question without a call, answer false, 0 or null. Texts answered stay the
// manager's and valid until its next text.
class CCallManagerImp {
 public:
  CCallManagerImp() = default;
  CCallManagerImp(const CCallManagerImp&) = delete;
  CCallManagerImp& operator=(const CCallManagerImp&) = delete;
  virtual ~CCallManagerImp() = default;

  // Registers the call facade for its engine events.
  virtual void Init() = 0;
  // True lets the event through to the host, after which AfterEvent follows. On the event thread.
  virtual bool OnEvent(const CZeltoEvent* event) = 0;
  virtual bool AfterEvent(const CZeltoEvent* event) = 0;

  virtual bool CreateCall(const char* identity, int type) = 0;  // type 0 voice, 1 video
  virtual bool CallEnd(bool force) = 0;
  virtual bool BlockIncomingCall() = 0;
  virtual bool UnblockIncomingCall(bool keep) = 0;  // true leaves the block in place

  virtual int GetNumOfCallMembers() = 0;
  virtual const char* GetCallMemberInfo(int index, int property) = 0;
  virtual const char* GetCallMemberInfo(const char* identity, int property) = 0;
  virtual bool SendDTMF(int tone) = 0;

  virtual bool StartSendVideo() = 0;
  virtual bool StopSendVideo() = 0;
  virtual bool StartRecvVideo() = 0;
  virtual bool StopRecvVideo() = 0;

  virtual bool Hold() = 0;
  virtual bool Resume() = 0;
  virtual bool Answer(int mode) = 0;  // 0 voice, 1 video
  virtual bool AnswerWithVideo() = 0;
  virtual bool AnswerWithVoice() = 0;
  virtual bool Reject() = 0;
  virtual bool Forward() = 0;
  virtual bool RedirectVoiceMail() = 0;
  virtual bool IsConference() = 0;

  virtual const char* GetCallMemberIdentity(int index) = 0;
  virtual const char* GetCallMemberDisplayName(int index) = 0;
  virtual const char* GetCallMemberAvatarPath(int index) = 0;
  virtual const char* GetCallMemberStatus(int index) = 0;
  virtual const char* GetCallMemberOnlineState(int index) = 0;
  virtual const char* GetCallMemberName(int index) = 0;

  virtual bool IsPSTNCall() = 0;
  virtual int GetCallType() = 0;  // -1 none, 0 voice, 1 video
  virtual bool Mute(bool mute) = 0;
  virtual const char* NormalizeIdentity(const char* identity) = 0;
  virtual bool IsEmergencyCall(const char* identity) = 0;
  virtual bool IsSendingVideo() = 0;
  virtual bool IsReceivingVideo() = 0;
  virtual bool LeaveVoicemail(const char* identity) = 0;
  virtual bool CancelVoicemail() = 0;
  virtual bool IsInCall() = 0;     // a call is in progress
  virtual bool IsInCalling() = 0;  // there is a call in any phase
  virtual bool IsCallMemberVideoAvailable() = 0;
  virtual bool SetRingVolume(unsigned char volume) = 0;
  virtual bool StopRingPlayer() = 0;

  // From the member objects; a member is compared only, never entered.
  virtual void UpdateSpeakingCallMember(void* member, int level) = 0;
  virtual void UpdateCallMemberProperty(void* member, int property, const ZEString& value) = 0;

  virtual bool IsInHold() = 0;
  virtual bool IsMissed() = 0;
  virtual void SetMissed(bool missed) = 0;
  virtual void AddToMissedCallList() = 0;
};
