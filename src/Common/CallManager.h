// The facade of the call manager: the one call at a time.
#pragma once

#include "Common/CallManagerImp.h"
#include "Common/ManagerFacade.h"

// The operations are those of CCallManagerImp, which states their contracts.
// Threads: any; see ManagerFacade.
class CCallManager : public zelto::ManagerFacade<CCallManager, CCallManagerImp> {
 public:
  CCallManagerImp* GetCallManagerImp() { return GetImp(); }

  bool AfterEvent(const CZeltoEvent* event) override {
    return Handle([event](CCallManagerImp* imp) { return imp->AfterEvent(event); });
  }

  bool CreateCall(const char* identity, int type) { return GetImp()->CreateCall(identity, type); }
  bool CallEnd(bool force) { return GetImp()->CallEnd(force); }
  bool BlockIncomingCall() { return GetImp()->BlockIncomingCall(); }
  bool UnblockIncomingCall(bool keep) { return GetImp()->UnblockIncomingCall(keep); }
  int GetNumOfCallMembers() { return GetImp()->GetNumOfCallMembers(); }
  const char* GetCallMemberInfo(int index, int property) {
    return GetImp()->GetCallMemberInfo(index, property);
  }
  const char* GetCallMemberInfo(const char* identity, int property) {
    return GetImp()->GetCallMemberInfo(identity, property);
  }
  bool SendDTMF(int tone) { return GetImp()->SendDTMF(tone); }
  bool StartSendVideo() { return GetImp()->StartSendVideo(); }
  bool StopSendVideo() { return GetImp()->StopSendVideo(); }
  bool StartRecvVideo() { return GetImp()->StartRecvVideo(); }
  bool StopRecvVideo() { return GetImp()->StopRecvVideo(); }
  bool Hold() { return GetImp()->Hold(); }
  bool Resume() { return GetImp()->Resume(); }
  bool Answer(int mode) { return GetImp()->Answer(mode); }
  bool AnswerWithVideo() { return GetImp()->AnswerWithVideo(); }
  bool AnswerWithVoice() { return GetImp()->AnswerWithVoice(); }
  bool Reject() { return GetImp()->Reject(); }
  bool Forward() { return GetImp()->Forward(); }
  bool RedirectVoiceMail() { return GetImp()->RedirectVoiceMail(); }
  bool IsConference() { return GetImp()->IsConference(); }
  const char* GetCallMemberIdentity(int index) { return GetImp()->GetCallMemberIdentity(index); }
  const char* GetCallMemberDisplayName(int index) { return GetImp()->GetCallMemberDisplayName(index); }
  const char* GetCallMemberAvatarPath(int index) { return GetImp()->GetCallMemberAvatarPath(index); }
  const char* GetCallMemberStatus(int index) { return GetImp()->GetCallMemberStatus(index); }
  const char* GetCallMemberOnlineState(int index) { return GetImp()->GetCallMemberOnlineState(index); }
  const char* GetCallMemberName(int index) { return GetImp()->GetCallMemberName(index); }
  bool IsPSTNCall() { return GetImp()->IsPSTNCall(); }
  int GetCallType() { return GetImp()->GetCallType(); }
  bool Mute(bool mute) { return GetImp()->Mute(mute); }
  const char* NormalizeIdentity(const char* identity) { return GetImp()->NormalizeIdentity(identity); }
  bool IsEmergencyCall(const char* identity) { return GetImp()->IsEmergencyCall(identity); }
  bool IsSendingVideo() { return GetImp()->IsSendingVideo(); }
  bool IsReceivingVideo() { return GetImp()->IsReceivingVideo(); }
  bool LeaveVoicemail(const char* identity) { return GetImp()->LeaveVoicemail(identity); }
  bool CancelVoicemail() { return GetImp()->CancelVoicemail(); }
  bool IsInCall() { return GetImp()->IsInCall(); }
  bool IsInCalling() { return GetImp()->IsInCalling(); }
  bool IsCallMemberVideoAvailable() { return GetImp()->IsCallMemberVideoAvailable(); }
  bool SetRingVolume(unsigned char volume) { return GetImp()->SetRingVolume(volume); }
  bool StopRingPlayer() { return GetImp()->StopRingPlayer(); }
  void UpdateSpeakingCallMember(void* member, int level) {
    GetImp()->UpdateSpeakingCallMember(member, level);
  }
  void UpdateCallMemberProperty(void* member, int property, const ZEString& value) {
    GetImp()->UpdateCallMemberProperty(member, property, value);
  }
  bool IsInHold() { return GetImp()->IsInHold(); }
  bool IsMissed() { return GetImp()->IsMissed(); }
  void SetMissed(bool missed) { GetImp()->SetMissed(missed); }
  void AddToMissedCallList() { GetImp()->AddToMissedCallList(); }

 private:
  friend class zelto::ManagerFacade<CCallManager, CCallManagerImp>;
  CCallManager() = default;

  static CCallManagerImp* CreateImp();
};
