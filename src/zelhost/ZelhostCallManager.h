#pragma once

#include <atomic>

#include "Common/CallManagerImp.h"
#include "zelhost/ManagerInstance.h"
#include "zelhost/VideoLayout.h"

class CCall;

// The one call at a time. It places and takes no calls yet: it knows which call the root object has
// handed to it, whether incoming calls are blocked, and where the television shall show pictures;
// everything else is answered as without a call.
// Threads: any; the layout and the current call are used under the service-host mutex only.
class CZelhostCallManager : public CCallManagerImp {
 public:
  static CZelhostCallManager* GetInstance() { return m_instance.Get(); }
  ~CZelhostCallManager() override;

  // The call that the manager works with; compared only, since the root object may delete it at any
  // time. Null when there is none.
  static CCall* m_pCall ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get());

  // Makes a call the current one; null when there is none any more.
  void SetCallMembers(CCall* call);
  // Whether incoming calls are to be refused as busy.
  bool IsBlockingIncomingCall() const { return m_blockingIncomingCall.load(); }
  // Nine fields about the current call; null without one.
  const char* GetCallInfo();
  // Whether the current call has reached its in-progress phase.
  bool IsCallInProgress();

  // Where the television shows pictures, in screen points.
  void SetTvRecvRect(int x, int y, int width, int height);
  void SetTvPreviewRect(int x, int y, int width, int height);
  void SetTvViewRect(int x, int y, int width, int height);
  void SetNormalRecvRect(int x, int y, int width, int height);
  void SetNormalPreviewRect(int x, int y, int width, int height);
  void SetCallingPreviewRect(int x, int y, int width, int height);
  void GetTvViewRect(int& x, int& y, int& width, int& height);
  // Chooses between the rectangles of TV mode ("1") and the normal ones ("0"). There is no picture to
  // move yet.
  void ChangeSourceMode(const char* mode);
  // The source mode of TV mode, by its older name.
  void SetMixVideoSize() { ChangeSourceMode("1"); }
  // How a call shall be answered once the widget is there: 0 voice, 1 video, -1 none waits.
  int PendingAnswer() const { return m_pendingAnswer.load(); }
  // Shows the camera's preview where the present mode allows one; there is none yet.
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
  CZelhostCallManager() = default;

  void Place(const char* operation, VideoRect VideoLayout::*rect, const VideoRect& place);

  static inline zelhost::ManagerInstance<CZelhostCallManager> m_instance;

  std::atomic<bool> m_blockingIncomingCall{false};
  std::atomic<int> m_pendingAnswer{-1};
  VideoLayout m_layout ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get());
};
