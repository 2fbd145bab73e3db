// The second pass of the events: what happens around the call once the host has heard of them.
#include "Common/Log.h"
#include "Common/ZeltoEvent.h"
#include "Common/ZeltoManager.h"
#include "zelhost/Television.h"
#include "zelhost/ZelhostZeltoManager.h"
#include "zelhost/apiwrapper/client/CCall.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/calls/ZelhostCallManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"
#include "zelhost/media/ZelhostIPCManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelhost::Tell;
using E = CZeltoManager;

void CZelhostCallManager::StartCall(const CZeltoEvent&) {
  const int widget = CZelhostZeltoManager::GetInstance()->GetZeltoWidgetMode();
  if (!m_state.inProgress && !m_state.onHold && widget != kWidgetBesideProgrammeAlso) {
    E::NotifyHardwiredEvent(E::PUBLIC_CONNECTING_SHOWN, "Resource/zelto_bg.png", nullptr);
  }
  m_state.inProgress = true;
  ZELTO_DEBUG("<<< INPROGRESS >>> ");
  if (!m_state.onHold) {
    Tell("StopPreview");
    m_state.previewShown = false;
  }
  m_state.onHold = false;
  TellHostCallStarted();
  if (g_lpZelto != nullptr) {
    g_lpZelto->SetSpeakerVolume(CZelhostLocalSetting::GetIntValue(kSettingSpeakerVolume));
  }
  CZelhostIPCManager::GetInstance()->StartExchangeData(kExchangeAll);
  if (m_state.sendingVideo) {
    StartSendVideo();
  } else {
    StopSendingToMember();
  }
}

void CZelhostCallManager::HideVoiceHelpbar(const CZeltoEvent&) { Tell("HideVoiceHelpbar"); }

void CZelhostCallManager::FinishCall(const CZeltoEvent& event) {
  m_state.onHold = false;
  ZELTO_DEBUG("Call ended");
  m_forwardAlarm.Stop();
  RemoveEndedCall();
  CZelhostIPCManager::GetInstance()->StopExchangeData(kExchangeAll);
  TellHostCallEnded();
  if (event.type == E::CALL_ENDED && m_state.inProgress) E::SendEvent(E::CALL_ENDED_POPUP, 0);
  m_state = CallState();
  m_members.Clear();
  E::SendEvent(E::CALL_MEMBERS_CLEARED, 0);
  CZelhostHistoryManager::GetInstance()->RefreshHistoryList();
  ZELTO_DEBUG("CZelhostCallManager::AfterEvent >>> CALL_END !!!! ");
}

// A call that was sent to voicemail because of another one stays in the root's list, and the other one may
// be over first: then no current call stands for it, and every later call would be refused as busy.
void CZelhostCallManager::RemoveEndedCall() {
  CCall* ended = m_pCall;
  if (ended == nullptr) {
    ZELTO_DEBUG("Call ended but call object is invalid\n Maybe rejected call");
    ended = CallInList();
    if (ended == nullptr || ended->GetProp(Call::P_ONGOING).toInt() != 0) return;
  }
  m_pCall = nullptr;
  if (g_lpZelto != nullptr) g_lpZelto->RemoveCall(ended);
}

void CZelhostCallManager::BeginVoicemail(const CZeltoEvent&) {
  ZELTO_DEBUG("<<< Voice mail begginning >>> ");
  if (m_state.hostCallStarted) {
    ZELTO_DEBUG("<<< already start call");
    return;
  }
  m_state.hostCallStarted = true;
  Tell("StartCall");
  CZelhostIPCManager::GetInstance()->StartExchangeData(kExchangeAudio);
}

void CZelhostCallManager::EndGreeting(const CZeltoEvent& event) {
  if (m_state.leavingVoicemail) {
    ZELTO_DEBUG("don't end call since recoding will start just after");
  } else {
    EndVoicemail(event);
  }
}

void CZelhostCallManager::EndVoicemail(const CZeltoEvent&) {
  ZELTO_DEBUG("<<< Voice mail endding >>> ");
  CZelhostIPCManager::GetInstance()->StopExchangeData(kExchangeAudio);
  TellHostToStopCall();
  m_state.hostCallStarted = false;
}

void CZelhostCallManager::NoteSendVideo(const CZeltoEvent&) {
  ZELTO_DEBUG("VIDEO_AVAILABLE");
  m_state.sendVideoAvailable = true;
  StartSendingWhenReady();
}

void CZelhostCallManager::NoteMemberVideoProperty(const CZeltoEvent&) {
  m_state.memberVideoPropertySeen = true;
  StartSendingWhenReady();
}
