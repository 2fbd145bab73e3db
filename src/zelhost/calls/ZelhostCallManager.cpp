// Placing, answering and ending the call.
#include "zelhost/calls/ZelhostCallManager.h"

#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/Television.h"
#include "zelhost/ZelhostZeltoManager.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/apiwrapper/client/CCall.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/media/ZelhostIPCManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelhost::ServiceHostLock;
using zelhost::Tell;

namespace {

constexpr int kSignedIn = 2;                      // login state
constexpr char kOverProgramme[] = "TVModeAudio";  // how a widget starts that leaves the programme visible

bool IsSignedIn() {
  return g_lpZelto != nullptr && g_lpZelto->m_lpActiveAccount != nullptr &&
         CZelhostAccountManager::GetInstance()->GetLoginState() == kSignedIn;
}

int CallTypeOf(int asked) { return asked == kVideoCall ? kVideoCall : kVoiceCall; }

}  // namespace

CCall* CZelhostCallManager::m_pCall = nullptr;

CZelhostCallManager::~CZelhostCallManager() {
  ServiceHostLock lock("~CZelhostCallManager");
  m_pCall = nullptr;
  m_instance.Forget();
}

bool CZelhostCallManager::HasCallToWorkWith(const char* without) {
  if (g_lpZelto == nullptr) return false;
  if (m_pCall == nullptr && without != nullptr) ZELTO_DEBUG("%s", without);
  return m_pCall != nullptr;
}

// While a call is being cleared away another one would be cleared away with it.
bool CZelhostCallManager::IsTaken() {
  if (m_pCall == nullptr && !m_state.ending) return false;
  ZELTO_FATAL("Already there is a call[%p]\n", static_cast<void*>(m_pCall));
  return true;
}

bool CZelhostCallManager::NoteCallEnding(const CCall* call) {
  ServiceHostLock lock("NoteCallEnding");
  if (m_pCall != nullptr && m_pCall != call) return false;
  m_state.ending = true;
  return true;
}

// A call that only rings here has changed nothing yet.
void CZelhostCallManager::NoteCallDropped(const CCall* call) {
  ServiceHostLock lock("NoteCallDropped");
  const bool leavesTraces = m_state.type != kNoCallType || m_state.inProgress || m_state.hostCallStarted;
  if (m_pCall != call || m_state.ending || !leavesTraces) return;
  m_state.ending = true;
  CZeltoManager::SendEvent(CZeltoManager::CALL_ENDED, 0);
}

bool CZelhostCallManager::CreateCall(const char* identity, int type) {
  ServiceHostLock lock("CreateCall");
  if (!IsSignedIn() || IsTaken()) return false;
  m_state.onHold = false;
  m_state.type = CallTypeOf(type);
  UnblockIncomingCall(false);

  m_pCall = dynamic_cast<CCall*>(g_lpZelto->CreateCall());
  ZELTO_DEBUG("m_pCall = %p is created\n", static_cast<void*>(m_pCall));
  if (m_pCall == nullptr) ZELTO_DEBUG("fail to CreateCall");
  if (m_pCall == nullptr || !m_pCall->Ring(identity)) {
    ZELTO_DEBUG("fail to Ring %s\n", identity != nullptr ? identity : "");
    return HangUpHalfMadeCall();
  }
  ZELTO_DEBUG("m_pCall = %p ringing\n", static_cast<void*>(m_pCall));
  ChooseVideo(m_state.type);
  if (m_state.type == kVideoCall) ShowCallingPreview();
  return true;
}

bool CZelhostCallManager::HangUpHalfMadeCall() {
  if (m_pCall != nullptr) m_pCall->End(CallMember::HANG_UP);
  m_pCall = nullptr;
  m_state.type = kNoCallType;
  m_state.leavingVoicemail = false;
  return false;
}

void CZelhostCallManager::ChooseVideo(int type) {
  m_state.sendingVideo = type == kVideoCall;
  if (!m_state.sendingVideo) {
    m_pCall->StopVideoSendToMember(0);
  } else if (MayStartSending()) {
    m_pCall->StartVideoSendToMember(0);
  }
}

void CZelhostCallManager::ShowCallingPreview() {
  const int widget = Widget().GetZeltoWidgetMode();
  if (m_state.previewShown || !Widget().WidgetHandleIncomingCall() || widget == kWidgetBesideProgrammeAlso) {
    return;
  }
  if (widget == kWidgetBesideProgramme) Tell("SetPIPSourceMedia");
  const VideoRect& place = m_layout.callingPreview;
  ZELTO_DEBUG("StartPreview: %d %d %d %d\n", place.x, place.y, place.width, place.height);
  ShowPreviewAt(place);
}

bool CZelhostCallManager::LeaveVoicemail(const char* identity) {
  ServiceHostLock lock("LeaveVoicemail");
  if (g_lpZelto == nullptr) return false;
  if (IsTaken()) return false;
  m_pCall = dynamic_cast<CCall*>(g_lpZelto->CreateCall());
  if (m_pCall == nullptr) {
    ZELTO_DEBUG("fail to CreateCall");
    return HangUpHalfMadeCall();
  }
  m_state.type = kVoiceCall;
  m_state.leavingVoicemail = true;
  return m_pCall->LeaveVoicemail(identity) || HangUpHalfMadeCall();
}

bool CZelhostCallManager::Answer(int mode) {
  ServiceHostLock lock("Answer");
  if (g_lpZelto == nullptr) return false;
  NotifyRingStopped();
  m_forwardAlarm.Stop();
  if (m_pCall == nullptr) {
    ZELTO_FATAL("answer but call was already disconnected by call member");
  } else if (Widget().GetZeltoWidgetState()) {
    AnswerNow(CallTypeOf(mode));
  } else {
    AnswerOnceTheWidgetIsThere(CallTypeOf(mode));
  }
  return true;
}
bool CZelhostCallManager::AnswerWithVideo() { return Answer(kVideoCall); }
bool CZelhostCallManager::AnswerWithVoice() { return Answer(kVoiceCall); }

void CZelhostCallManager::AnswerNow(int type) {
  m_state.pendingAnswer = kNoPendingAnswer;
  ChooseVideo(type);
  m_state.type = type;
  m_pCall->Answer();
}

void CZelhostCallManager::AnswerOnceTheWidgetIsThere(int type) {
  ZELTO_DEBUG("answering will be done after loading widget");
  m_state.pendingAnswer = type;
  Widget().SetWidgetActivatedByAnswering(true);
  CZeltoManager::SendEvent(CZeltoManager::WIDGET_LAUNCH, Widget().GetZeltoWidgetState() ? 1 : 0);
  CZeltoManager::SetRunWidgetParam("");
  const char* parameter = "";
  if (!zelhost::HostSaysYes("IsUserWatchingTV")) {
    ZELTO_DEBUG("Normal Mode Call ");
  } else if (type == kVideoCall) {
    ZELTO_DEBUG("TV Mode Video Call ");
    parameter = kOverProgramme;
  } else if (IsConference()) {
    ZELTO_DEBUG("TV Mode but Conference call --> Normal Mode Call ");
  } else {
    ZELTO_DEBUG("TV Mode Audio Call ");
    parameter = kOverProgramme;
  }
  Tell("StartWidgetWithParam", parameter, "1");
  CZeltoManager::SendEvent(CZeltoManager::CONNECTING_WND_SHOWN, 0);
}

bool CZelhostCallManager::EndRingingCall(CallMember::ENDACTION action) {
  if (!HasCallToWorkWith()) return false;
  NotifyRingStopped();
  m_pCall->End(action);
  return true;
}

bool CZelhostCallManager::Reject() {
  ServiceHostLock lock("Reject");
  if (!HasCallToWorkWith()) return false;
  const bool toVoicemail = CZelhostLocalSetting::GetIntValue(kSettingVoicemailForReject) != 0;
  return EndRingingCall(toVoicemail ? CallMember::REDIRECT_TO_VOICEMAIL : CallMember::HANG_UP);
}

bool CZelhostCallManager::Forward() {
  ServiceHostLock lock("Forward");
  return EndRingingCall(CallMember::FORWARD);
}

bool CZelhostCallManager::RedirectVoiceMail() {
  ServiceHostLock lock("RedirectVoiceMail");
  return EndRingingCall(CallMember::REDIRECT_TO_VOICEMAIL);
}

bool CZelhostCallManager::CancelVoicemail() {
  ServiceHostLock lock("CancelVoicemail");
  if (!HasCallToWorkWith("no call")) return false;
  m_pCall->End(CallMember::CANCEL_VOICEMAIL);
  return true;
}

bool CZelhostCallManager::CallEnd(bool force) {
  ServiceHostLock lock("CallEnd");
  if (!HasCallToWorkWith("no call")) return false;
  ZELTO_DEBUG("CZelhostCallManager::CallEnd(%d)", force);
  m_state.onHold = false;
  if (force) {
    ZELTO_DEBUG(">>>>   Call end forced  <<<<< ");
    CZelhostIPCManager::GetInstance()->StopExchangeData(kExchangeAll);
    StopPreviewIfShown();
    TellHostToStopCall();
    m_state.hostCallStarted = false;
  }
  m_pCall->End(CallMember::HANG_UP);
  m_state.tvSourceMode = false;
  return true;
}

bool CZelhostCallManager::Hold() {
  ServiceHostLock lock("Hold");
  if (!HasCallToWorkWith() || !m_pCall->CanHold()) return false;
  m_pCall->Hold(true);
  return true;
}

bool CZelhostCallManager::Resume() {
  ServiceHostLock lock("Resume");
  if (!HasCallToWorkWith() || !m_pCall->CanResume()) return false;
  m_pCall->Hold(false);
  return true;
}

bool CZelhostCallManager::Mute(bool mute) {
  ServiceHostLock lock("Mute");
  if (!HasCallToWorkWith()) return false;
  m_pCall->Mute(mute);
  return true;
}

bool CZelhostCallManager::SendDTMF(int tone) {
  ServiceHostLock lock("SendDTMF");
  if (!HasCallToWorkWith()) return false;
  m_pCall->PlayAndSendDTMF(static_cast<CallMember::DTMF>(tone));
  return true;
}

// Ringing is the television's work; it hears of it as public events.
bool CZelhostCallManager::SetRingVolume(unsigned char) { return true; }
bool CZelhostCallManager::StopRingPlayer() { return true; }
