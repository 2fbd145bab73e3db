// Commands that arrange the television's picture and sound around a call.
#include "Common/Log.h"
#include "zelhost/Television.h"
#include "zelhost/commands/Handlers.h"

namespace zelhost {

namespace {

// Without double talk the programme would be heard by the far end, so it falls silent.
void MixProgrammeSound() {
  const bool audible = HostSaysYes("SupportDoubleTalk");
  CZelhostZeltoManager::GetInstance()->SetTVMixVolume(
      audible ? CZelhostLocalSetting::GetIntValue(kSettingTvMixRatio) : 0);
}

void ShowExternalVideo() {
  Tell("OpenExtVideo");
  Tell("StartExtVideo");
}

// A picture that is shown anew needs a whole frame to begin with.
void ReceiveAnew() {
  CCallManager::GetInstance()->StartRecvVideo();
  CZelhostIPCManager::GetInstance()->SendKeyFrameRequest();
}

void LeaveTVMode() {
  Tell("StopPreview");
  Tell("CloseExtVideo");
  Tell("RegisterAfterSourceChangeCallback", "ResumeNormalModeVideo");
  Tell("StopPIGMode");
}

void EnterTVMode() {
  Tell("CloseExtVideo");
  Tell("StopPreview");
  Tell("RegisterAfterSourceChangeCallback", "ResumeTVModeVideo");
  VideoRect view{};
  CZelhostCallManager::GetInstance()->GetTvViewRect(view.x, view.y, view.width, view.height);
  MixProgrammeSound();
  Tell("StartPIGMode", Decimal(view.x).Text(), Decimal(view.y).Text(), Decimal(view.width).Text(),
       Decimal(view.height).Text());
}

}  // namespace

// The widget is closing; the service goes on running.
void Stop(const CommandCall&, std::string& answer) {
  CZelhostZeltoManager* host = CZelhostZeltoManager::GetInstance();
  CCallManager* calls = CCallManager::GetInstance();
  const int state = host->GetZeltoWidgetMode();
  answer.clear();
  if (state != kWidgetClosed) {
    if (calls->IsInCall()) {
      if (HostSaysYes("IsZeltoSupportMultitasking")) {
        CZelhostZeltoManager::TakeVideoOffScreen(state);
        AnswerDone(answer);
      } else {
        Answer(answer, calls->CallEnd(true));
      }
    }
    const bool besideProgramme = state == kWidgetBesideProgramme || state == kWidgetBesideProgrammeAlso;
    if (!besideProgramme && host->IsTVAudioMixed()) Tell("SetMainMixAudioVolume", "100");
  }
  ZELTO_DEBUG("End of processing \"Stop\" command");
}

void SetSourceMode(const CommandCall& call, std::string& answer) {
  // The picture moves only once the source has changed; what is drawn until then is dropped.
  Tell("DiscardExtVideoRenderCommand", "1");
  if (call.Flag(1)) {
    EnterTVMode();
  } else {
    LeaveTVMode();
  }
  AnswerDone(answer);
}

void ResumeTVModeVideo(const CommandCall&, std::string& answer) {
  CCallManager* calls = CCallManager::GetInstance();
  CZelhostCallManager* layout = CZelhostCallManager::GetInstance();
  CZeltoManager::SendEvent(CZeltoManager::TV_MODE_VIDEO_RESUMED, 0);
  MixProgrammeSound();
  layout->ChangeSourceMode("1");
  Tell("DiscardExtVideoRenderCommand", "0");
  if (calls->IsReceivingVideo()) {
    ShowExternalVideo();
    ReceiveAnew();
  }
  if (calls->IsSendingVideo()) layout->StartPreview();
  AnswerDone(answer);
}

void ResumeNormalModeVideo(const CommandCall&, std::string& answer) {
  CCallManager* calls = CCallManager::GetInstance();
  CZelhostCallManager* layout = CZelhostCallManager::GetInstance();
  CZeltoManager::SendEvent(CZeltoManager::NORMAL_MODE_VIDEO_RESUMED, 0);
  CZelhostZeltoManager::GetInstance()->SetTVAudioMixed(false);
  Tell("SetMainMixAudioVolume", "100");
  layout->ChangeSourceMode("0");
  Tell("DiscardExtVideoRenderCommand", "0");
  if (calls->IsReceivingVideo()) {
    ShowExternalVideo();
    CZelhostIPCManager::GetInstance()->SendKeyFrameRequest();
  }
  if (calls->IsSendingVideo()) layout->StartPreview();
  if (calls->IsReceivingVideo()) ReceiveAnew();
  AnswerDone(answer);
}

void GetLastSourceMode(const CommandCall& call, std::string& answer) {
  Host(call, answer);
  ZELTO_DEBUG("LastSource is %s\n", answer.c_str());
}

void SetMediaSource(const CommandCall&, std::string& answer) { Answer(answer, 1); }

void SetCameraLightMode(const CommandCall&, std::string& answer) {
  const Decimal mode(CZelhostLocalSetting::GetIntValue(kSettingCameraLightMode));
  Answer(answer, Tell(kSetCameraLightMode, mode.Text()));
}

void SetRemoteInputType(const CommandCall& call, std::string& answer) {
  Answer(answer, Tell(call.Name(), TextOrNull<1>::From(call)));
}

}  // namespace zelhost
