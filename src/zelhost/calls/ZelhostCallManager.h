#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Common/CallManagerImp.h"
#include "apiwrapper/CallMember.h"
#include "zelhost/ManagerAlarm.h"
#include "zelhost/ManagerInstance.h"
#include "zelhost/calls/CallMemberCache.h"
#include "zelhost/calls/CallState.h"
#include "zelhost/calls/VideoLayout.h"

class CCall;
class CZelhostZeltoManager;

// A call that nobody answered.
struct t_MissedCallInfo {
  std::string startTime;
  std::string partner;
  bool unread = true;
};

// The one call at a time: places, answers and ends it, decides about incoming ones, arranges the
// television's picture and sound around it, and keeps its members for the widget.
// Without a root object the operations on calls answer false, 0 or null and change nothing.
// Threads: any; every operation takes the service-host mutex.
class CZelhostCallManager : public CCallManagerImp {
 public:
  static CZelhostCallManager* GetInstance() { return m_instance.Get(); }
  ~CZelhostCallManager() override;

  // The current call, null when there is none. The root object or the runtime may delete it at any time;
  // it takes itself out of here when it goes.
  static CCall* m_pCall ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get());

  // Makes a call the current one and asks the runtime for its members; null when there is none any more.
  void SetCallMembers(CCall* call);
  // A member object is going: nothing of it may be met again. Creates no manager.
  static void ForgetCallMember(const void* member);
  // Whether incoming calls are to be refused as busy.
  bool IsBlockingIncomingCall();
  // The runtime has ended the call: until the event that clears it away has done so, no other call may take
  // its place. False when the current call is another one, which this end is no business of.
  bool NoteCallEnding(const CCall* call);
  // The call object is dropped, by the runtime or with a sign-out. A current call whose end has not been told
  // ends with that, so that media and television do not stay as they are.
  void NoteCallDropped(const CCall* call);
  // Nine fields about the current call, each with its separator: conference, video call, and of the first
  // member the type, identity, display name and picture; sending, receiving, and whether pictures from this
  // member are wanted. Null without a call.
  const char* GetCallInfo();
  // Whether the current call has reached its in-progress phase; holding it does not change that.
  bool IsCallInProgress();
  // How a call shall be answered once the widget is there: 0 voice, 1 video, -1 none waits.
  int PendingAnswer();

  // Where the television shows pictures, in screen points.
  void SetTvRecvRect(int x, int y, int width, int height);
  void SetTvPreviewRect(int x, int y, int width, int height);
  void SetTvViewRect(int x, int y, int width, int height);
  void SetNormalRecvRect(int x, int y, int width, int height);
  void SetNormalPreviewRect(int x, int y, int width, int height);
  void SetCallingPreviewRect(int x, int y, int width, int height);
  void GetTvViewRect(int& x, int& y, int& width, int& height);

  // Chooses between the places of TV mode ("1") and the normal ones ("0"), and moves the pictures there.
  // Other texts change nothing.
  void ChangeSourceMode(const char* mode);
  // The source mode of TV mode, by its older name.
  void SetMixVideoSize() { ChangeSourceMode("1"); }
  // Moves the far end's picture to where it belongs now.
  void SetExtVideoRect();
  // The same for the camera's picture, while it is sent. `start`: also shows the preview where the present
  // mode allows one.
  void SetPreviewVideoRect(bool start);
  // Shows the camera's preview; refused over the programme.
  void StartPreview();

  void Init() override;
  bool OnEvent(const CZeltoEvent* event) override;
  bool AfterEvent(const CZeltoEvent* event) override;

  bool CreateCall(const char* identity, int type) override;
  bool CallEnd(bool force) override;
  bool BlockIncomingCall() override;
  bool UnblockIncomingCall(bool keep) override;

  int GetNumOfCallMembers() override;
  const char* GetCallMemberInfo(int index, int property) override;
  const char* GetCallMemberInfo(const char* identity, int property) override;
  bool SendDTMF(int tone) override;

  bool StartSendVideo() override;
  bool StopSendVideo() override;
  bool StartRecvVideo() override;
  bool StopRecvVideo() override;

  bool Hold() override;
  bool Resume() override;
  bool Answer(int mode) override;
  bool AnswerWithVideo() override;
  bool AnswerWithVoice() override;
  bool Reject() override;
  bool Forward() override;
  bool RedirectVoiceMail() override;
  bool IsConference() override;

  const char* GetCallMemberIdentity(int index) override;
  const char* GetCallMemberDisplayName(int index) override;
  const char* GetCallMemberAvatarPath(int index) override;
  const char* GetCallMemberStatus(int index) override;
  const char* GetCallMemberOnlineState(int index) override;
  const char* GetCallMemberName(int index) override;

  bool IsPSTNCall() override;
  int GetCallType() override;
  bool Mute(bool mute) override;
  const char* NormalizeIdentity(const char* identity) override;
  bool IsEmergencyCall(const char* identity) override;
  bool IsSendingVideo() override;
  bool IsReceivingVideo() override;
  bool LeaveVoicemail(const char* identity) override;
  bool CancelVoicemail() override;
  bool IsInCall() override;
  bool IsInCalling() override;
  bool IsCallMemberVideoAvailable() override;
  bool SetRingVolume(unsigned char volume) override;
  bool StopRingPlayer() override;

  void UpdateSpeakingCallMember(void* member, int level) override;
  void UpdateCallMemberProperty(void* member, int property, const ZEString& value) override;

  bool IsInHold() override;
  bool IsMissed() override;
  void SetMissed(bool missed) override;
  void AddToMissedCallList() override;

 private:
  friend class zelhost::ManagerInstance<CZelhostCallManager>;
  using Host = zelhost::ServiceHostMutex;
  struct Decision;
  struct Reaction;

  CZelhostCallManager() = default;

  void Place(const char* operation, VideoRect VideoLayout::*rect, const VideoRect& place);
  // Keeps a text until the next one.
  const char* Result(std::string_view text) ZELTO_REQUIRES(Host::Get());
  // What the contact list knows of the member.
  const char* MemberContactInfo(int index, int property);

  // Placing and answering.
  static CCall* CallInList() ZELTO_REQUIRES(Host::Get());  // the root's first; null when there is none
  // `without` is the line for the log when there is none.
  static bool HasCallToWorkWith(const char* without = nullptr) ZELTO_REQUIRES(Host::Get());
  bool IsTaken() ZELTO_REQUIRES(Host::Get());  // by a call, or by one that is not cleared away yet
  // False, for who has failed.
  bool HangUpHalfMadeCall() ZELTO_REQUIRES(Host::Get());
  // Whether the own picture goes out with a call of that type.
  void ChooseVideo(int type) ZELTO_REQUIRES(Host::Get());
  void ShowCallingPreview() ZELTO_REQUIRES(Host::Get());
  void AnswerNow(int type) ZELTO_REQUIRES(Host::Get());
  void AnswerOnceTheWidgetIsThere(int type) ZELTO_REQUIRES(Host::Get());
  static bool EndRingingCall(CallMember::ENDACTION action) ZELTO_REQUIRES(Host::Get());

  // Incoming calls and the alarms around them.
  bool ProcessIncomingCallEvent() ZELTO_REQUIRES(Host::Get());
  bool IsRefusedByPolicy() ZELTO_REQUIRES(Host::Get());
  bool ForwardNowOrLater() ZELTO_REQUIRES(Host::Get());
  // False when the settings say neither.
  bool ForwardOrRedirect() ZELTO_REQUIRES(Host::Get());
  void BlockForAWhile() ZELTO_REQUIRES(Host::Get());
  static bool t_CallForwardAlarmCallback(const void* number);
  static bool t_UnblockIncomingCallAlarmCallback(const void* number);

  // Television and media.
  static CZelhostZeltoManager& Widget();
  static void NotifyRingStopped();
  static bool IsWidgetBesideProgramme();
  void TellHostCallStarted() ZELTO_REQUIRES(Host::Get());
  void ShowCallInWidget() ZELTO_REQUIRES(Host::Get());
  void ShowCallOverProgramme() ZELTO_REQUIRES(Host::Get());
  void TellHostCallEnded() ZELTO_REQUIRES(Host::Get());
  static void RestoreTelevision();
  static void TellHostToStopCall();
  static void TellPlace(const char* control, const VideoRect& place);
  void ShowPreviewAt(const VideoRect& place) ZELTO_REQUIRES(Host::Get());
  void StopPreviewIfShown() ZELTO_REQUIRES(Host::Get());
  bool MayStartSending() const ZELTO_REQUIRES(Host::Get()) {
    return m_state.sendVideoAvailable && m_state.memberVideoPropertySeen;
  }
  void StartSendingWhenReady() ZELTO_REQUIRES(Host::Get());
  static void StopSendingToMember() ZELTO_REQUIRES(Host::Get());
  // Whether that person's pictures are shown as soon as they are offered, and whether at all.
  static bool TakesVideoFrom(const ZEString& identity);
  static bool MayShowVideoFrom(const ZEString& identity);

  // First pass of the events: what happens before the host hears of them.
  bool StopRingForCall() ZELTO_REQUIRES(Host::Get());
  void NoteHold(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void NoteMissed(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void NoteDuration(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void BeginCallEnd(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void StopRing(const CZeltoEvent& event);
  void StopOwnVideo(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void RebuildMembers(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void NoteMemberVideo(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void ReceiveVideo(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void StopReceiving(const CZeltoEvent& event);
  void RefreshHistory(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void ForgetVoicemail(const CZeltoEvent& event);

  // Second pass: what happens once the host has heard of them.
  void StartCall(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void HideVoiceHelpbar(const CZeltoEvent& event);
  void FinishCall(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void BeginVoicemail(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void EndVoicemail(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void EndGreeting(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void NoteSendVideo(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  void NoteMemberVideoProperty(const CZeltoEvent& event) ZELTO_REQUIRES(Host::Get());
  static void RemoveEndedCall() ZELTO_REQUIRES(Host::Get());

  static inline zelhost::ManagerInstance<CZelhostCallManager> m_instance;

  bool m_blockingIncomingCall ZELTO_GUARDED_BY(Host::Get()) = false;
  CallState m_state ZELTO_GUARDED_BY(Host::Get());
  CallMemberCache m_members ZELTO_GUARDED_BY(Host::Get());
  VideoLayout m_layout ZELTO_GUARDED_BY(Host::Get());
  zelhost::ManagerAlarm m_forwardAlarm ZELTO_GUARDED_BY(Host::Get());
  zelhost::ManagerAlarm m_unblockAlarm ZELTO_GUARDED_BY(Host::Get());
  int m_duration ZELTO_GUARDED_BY(Host::Get()) = 0;  // seconds, as last reported
  bool m_missed ZELTO_GUARDED_BY(Host::Get()) = false;
  std::vector<t_MissedCallInfo> m_missedCalls ZELTO_GUARDED_BY(Host::Get());
  std::string m_ReturnStr ZELTO_GUARDED_BY(Host::Get());
};
