// How the television is told that a call starts, ends or shows its preview.
#include "Common/Log.h"
#include "zelhost/Television.h"
#include "zelhost/ZelhostZeltoManager.h"
#include "zelhost/calls/ZelhostCallManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelhost::Decimal;
using zelhost::HostSaysYes;
using zelhost::Tell;

CZelhostZeltoManager& CZelhostCallManager::Widget() { return *CZelhostZeltoManager::GetInstance(); }

void CZelhostCallManager::TellHostCallStarted() {
  const int widget = Widget().GetZeltoWidgetMode();
  ZELTO_DEBUG("ZeltoWidgetMode is %d\n", widget);
  if (widget == kWidgetFullScreen) {
    ShowCallInWidget();
  } else if (IsWidgetBesideProgramme()) {
    ShowCallOverProgramme();
  }
}

void CZelhostCallManager::ShowCallInWidget() {
  SetExtVideoRect();
  Tell("StartCall");
  if (HostSaysYes("SupportDoubleTalk")) {
    Widget().SetTVAudioMixed(true);
    Tell("SetMainMixAudioVolume", Decimal(CZelhostLocalSetting::GetIntValue(kSettingTvMixRatio)).Text());
  }
  Tell("MuteSpeakerVolume", "0");
  Widget().SetCallMixVolume(CZelhostZeltoManager::kLoudest);
  m_state.hostCallStarted = true;
}

void CZelhostCallManager::ShowCallOverProgramme() {
  Tell("MuteReceiverSound", "1");
  ChangeSourceMode("1");
  Tell("StartCallWithTV");
  m_state.hostCallStarted = true;
  Widget().SetCallMixVolume(CZelhostZeltoManager::kLoudest);
}

// A call that was never placed or answered has changed nothing on the television that would be restored.
void CZelhostCallManager::TellHostCallEnded() {
  Tell("HideVoiceHelpbar");
  Tell("SetCameraLightMode", "0");
  StopPreviewIfShown();
  if (m_state.type != kNoCallType) RestoreTelevision();
  Tell("ReleaseMixVideo");
}

void CZelhostCallManager::RestoreTelevision() {
  TellHostToStopCall();
  if (Widget().GetZeltoWidgetMode() != kWidgetFullScreen) {
    Tell("MuteReceiverSound", "0");
    Widget().SetTVMixVolume(CZelhostZeltoManager::kLoudest);
  } else if (HostSaysYes("SupportDoubleTalk")) {
    Widget().SetTVAudioMixed(false);
    Tell("SetMainMixAudioVolume", Decimal(CZelhostZeltoManager::kLoudest).Text());
  }
}

void CZelhostCallManager::TellHostToStopCall() {
  Tell(Widget().GetZeltoWidgetMode() == kWidgetFullScreen ? "StopCall" : "StopCallWithTV");
}

bool CZelhostCallManager::IsWidgetBesideProgramme() {
  const int widget = Widget().GetZeltoWidgetMode();
  return widget == kWidgetBesideProgramme || widget == kWidgetBesideProgrammeAlso;
}

void CZelhostCallManager::TellPlace(const char* control, const VideoRect& place) {
  Tell(control, Decimal(place.x).Text(), Decimal(place.y).Text(), Decimal(place.width).Text(),
       Decimal(place.height).Text());
}

void CZelhostCallManager::ShowPreviewAt(const VideoRect& place) {
  TellPlace("StartPreview", place);
  m_state.previewShown = true;
}

void CZelhostCallManager::StopPreviewIfShown() {
  if (!m_state.previewShown) return;
  m_state.previewShown = false;
  Tell("StopPreview");
}
