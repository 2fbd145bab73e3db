// How the widget is shown, and what the television does about it.
#include "Common/CallManager.h"
#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/Television.h"
#include "zelhost/ZelhostZeltoManager.h"
#include "zelhost/calls/ZelhostCallManager.h"

using zelhost::HostSaysYes;
using zelhost::Tell;

namespace {

constexpr int kNobodyWaits = -1;

// A call arrived while the widget was loading, and the viewer has said how it shall be answered.
bool AnswerWaitingCall() {
  const int mode = CZelhostCallManager::GetInstance()->PendingAnswer();
  if (mode == kNobodyWaits) return false;
  ZELTO_DEBUG("Answer the call after loading widget");
  CCallManager::GetInstance()->Answer(mode);
  return true;
}

void ShowFullScreen() {
  Tell("SetWidgetState", "1");
  Tell("MuteReceiverSound", "1");
  if (CCallManager::GetInstance()->IsInCall()) Tell("MuteSpeakerVolume", "0");
  CCallManager::GetInstance()->UnblockIncomingCall(false);
  Tell("SetMoIPVideoEnhancement", "1");
}

void ShowBesideProgramme() {
  CZelhostCallManager* call = CZelhostCallManager::GetInstance();
  if (call->IsCallInProgress()) {
    Tell("SetTVMode", "1");
    Tell("SetPIPSourceMedia");
    call->SetMixVideoSize();
    Tell("MuteReceiverSound", "1");
  }
  if (HostSaysYes("SupportDoubleTalk")) Tell("SetMainMixAudioVolume", "100");
  Tell("SetWidgetState", "1");
  CCallManager::GetInstance()->UnblockIncomingCall(false);
}

}  // namespace

void CZelhostZeltoManager::TakeVideoOffScreen(int widgetState) {
  CCallManager* calls = CCallManager::GetInstance();
  calls->StopRecvVideo();
  Tell("CloseExtVideo");
  calls->StopSendVideo();
  Tell("ReleaseMixVideo");
  if (widgetState == kWidgetFullScreen) Tell("StopPIGMode");
}

void CZelhostZeltoManager::CloseWidget(int before) {
  if (CCallManager::GetInstance()->IsInCall()) {
    if (HostSaysYes("IsZeltoSupportMultitasking")) {
      ZELTO_DEBUG("%s:call is in progress, stop send/receive video\n", "SetZeltoWidgetState");
      TakeVideoOffScreen(before);
    } else {
      ZELTO_FATAL("%s:call is in progress\n", "SetZeltoWidgetState");
    }
  }
  CZelhostCallManager::GetInstance()->ChangeSourceMode("0");
  for (const char* control :
       {"SetMoIPVideoEnhancement", "SetTVMode", "SetWidgetState", "MuteReceiverSound"}) {
    Tell(control, "0");
  }
  CCallManager::GetInstance()->UnblockIncomingCall(false);
  CZeltoManager::NotifyHardwiredEvent(CZeltoManager::PUBLIC_HISTORY_OR_WIDGET, nullptr, nullptr);
  SetCallMixVolume(kLoudest);
  m_widgetActivatedByAnswering = false;
}

bool CZelhostZeltoManager::SetZeltoWidgetState(int state) {
  zelhost::ServiceHostLock lock("SetZeltoWidgetState");
  const int before = m_widgetState.exchange(state);
  if (before == kWidgetClosed && state == kWidgetClosed) {
    ZELTO_DEBUG("already SetZeltoWidgetState(0) is called");
    return true;
  }
  ZELTO_FATAL("SetZeltoWidgetState %d\n", state);
  CZeltoManager::SetWidgetStarted(false);
  switch (state) {
    case kWidgetClosed:
      CloseWidget(before);
      return true;
    case kWidgetFullScreen:
      ShowFullScreen();
      return !AnswerWaitingCall();
    case kWidgetBesideProgramme:
    case kWidgetBesideProgrammeAlso:
      ShowBesideProgramme();
      return !AnswerWaitingCall();
    default:
      return true;
  }
}

bool CZelhostZeltoManager::GetZeltoWidgetState() { return m_widgetState > kWidgetClosed; }
