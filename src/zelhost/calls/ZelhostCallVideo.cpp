// Where the call's pictures are shown, and when they are sent and received.
#include "Common/Log.h"
#include "zelhost/Television.h"
#include "zelhost/apiwrapper/client/CCall.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/calls/ZelhostCallManager.h"
#include "zelhost/contacts/ZelhostContactManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelhost::ServiceHostLock;
using zelhost::Tell;

namespace {

constexpr int kBrightestLight = 3;
constexpr char kSourceFile[] = "ZelhostCallVideo.cpp";

}  // namespace

void CZelhostCallManager::Place(const char* operation, VideoRect VideoLayout::*rect, const VideoRect& place) {
  ServiceHostLock lock("Place");
  ZELTO_DEBUG("%s(%d,%d,%d,%d)", operation, place.x, place.y, place.width, place.height);
  m_layout.*rect = place;
}
void CZelhostCallManager::SetTvRecvRect(int x, int y, int width, int height) {
  Place("SetTvRecvRect", &VideoLayout::tvReceive, {x, y, width, height});
}
void CZelhostCallManager::SetTvPreviewRect(int x, int y, int width, int height) {
  Place("SetTvPreviewRect", &VideoLayout::tvPreview, {x, y, width, height});
}
void CZelhostCallManager::SetTvViewRect(int x, int y, int width, int height) {
  Place("SetTvViewRect", &VideoLayout::tvView, {x, y, width, height});
}
void CZelhostCallManager::SetNormalRecvRect(int x, int y, int width, int height) {
  Place("SetNormalRecvRect", &VideoLayout::normalReceive, {x, y, width, height});
}
void CZelhostCallManager::SetNormalPreviewRect(int x, int y, int width, int height) {
  Place("SetNormalPreviewRect", &VideoLayout::normalPreview, {x, y, width, height});
}
void CZelhostCallManager::SetCallingPreviewRect(int x, int y, int width, int height) {
  Place("SetCallingPreviewRect", &VideoLayout::callingPreview, {x, y, width, height});
}
void CZelhostCallManager::GetTvViewRect(int& x, int& y, int& width, int& height) {
  ZELTO_DEBUG("GetTvViewRect");
  ServiceHostLock lock("GetTvViewRect");
  x = m_layout.tvView.x;
  y = m_layout.tvView.y;
  width = m_layout.tvView.width;
  height = m_layout.tvView.height;
}

void CZelhostCallManager::ChangeSourceMode(const char* mode) {
  ServiceHostLock lock("ChangeSourceMode");
  ZELTO_DEBUG("ChangeSourceMode()");
  if (mode == nullptr) {
    ZELTO_FATAL("%s:NULL string\n", "ChangeSourceMode");
    return;
  }
  const std::string_view text = mode;
  if (text != "0" && text != "1") {
    zelto::Print("%s: errorr!!\n", "ChangeSourceMode");
    return;
  }
  m_state.tvSourceMode = text == "1";
  SetExtVideoRect();
  SetPreviewVideoRect(false);
}

void CZelhostCallManager::SetExtVideoRect() {
  ServiceHostLock lock("SetExtVideoRect");
  ZELTO_DEBUG("SetExtVideoRect");
  TellPlace("SetExtVideoSize", m_state.tvSourceMode ? m_layout.tvReceive : m_layout.normalReceive);
}

void CZelhostCallManager::SetPreviewVideoRect(bool start) {
  ServiceHostLock lock("SetPreviewVideoRect");
  ZELTO_DEBUG("SetPreviewVideoRect");
  if (!m_state.sendingVideo) {
    ZELTO_DEBUG("m_bSendingVideo");
    return;
  }
  const bool overProgramme = m_state.tvSourceMode || IsWidgetBesideProgramme();
  const VideoRect& place = overProgramme ? m_layout.tvPreview : m_layout.normalPreview;
  TellPlace("SetCamVideoSize", place);
  if (!start || m_state.previewShown) return;
  if (overProgramme) {
    ZELTO_FATAL("Don't show preview in N30 (social TV or DisplayTV mode)");
  } else {
    ShowPreviewAt(place);
  }
}

void CZelhostCallManager::StartPreview() {
  ServiceHostLock lock("StartPreview");
  if (IsWidgetBesideProgramme()) {
    ZELTO_FATAL("Don't show preview in N30 social TV call");
  } else if (m_state.tvSourceMode) {
    ZELTO_FATAL("Don't show preview in N30 DisplayTV mode call");
  } else {
    const VideoRect& place = m_layout.normalPreview;
    ZELTO_DEBUG("StartPreview %d, %d, %d, %d\n", place.x, place.y, place.width, place.height);
    ShowPreviewAt(place);
  }
}

bool CZelhostCallManager::StartSendVideo() {
  ServiceHostLock lock("StartSendVideo");
  if (g_lpZelto == nullptr) ZELTO_FATAL("g_lpZelto is NULL");
  CCall* call = CallInList();
  if (call == nullptr) return false;
  ZELTO_FATAL("StartSendVideo");
  m_state.sendingVideo = true;
  if (m_state.type == kVoiceCall) m_state.type = kVideoCall;
  SetPreviewVideoRect(true);
  ZELTO_FATAL("Call StartSendingVideo for myself");
  if (MayStartSending()) {
    ZELTO_FATAL("Call StartVideoSendToMember for Zelto");
    call->StartVideoSendToMember(0);
    m_state.sendingStarted = true;
  } else {
    ZELTO_FATAL("Want to Send Video but wait video status becomes available");
  }
  ZELTO_FATAL("StartSendVideo done");
  return true;
}

bool CZelhostCallManager::StopSendVideo() {
  ServiceHostLock lock("StopSendVideo");
  CCall* call = CallInList();
  if (call == nullptr) return false;
  if (!m_state.receivingVideo && m_state.type == kVideoCall) m_state.type = kVoiceCall;
  m_state.sendingVideo = false;
  call->StopVideoSendToMember(0);
  ZELTO_FATAL("StopSendVideo done");
  if (m_state.previewShown) ZELTO_FATAL("Stop Preview !!!!!!!");
  StopPreviewIfShown();
  return true;
}

bool CZelhostCallManager::StartRecvVideo() {
  ServiceHostLock lock("StartRecvVideo");
  CCall* call = CallInList();
  if (call == nullptr) return false;
  ZELTO_FATAL("CZelhostCallManager::StartRecvVideo");
  m_state.receivingVideo = true;
  call->StartVideoRecvToMember(0);
  const int light = CZelhostLocalSetting::GetIntValue(kSettingCameraLightMode);
  Tell("SetCameraLightMode", zelhost::Decimal(light >= 1 && light <= kBrightestLight ? light : 0).Text());
  return true;
}

bool CZelhostCallManager::StopRecvVideo() {
  ServiceHostLock lock("StopRecvVideo");
  CCall* call = CallInList();
  if (call == nullptr) return false;
  ZELTO_FATAL("CZelhostCallManager::StopRecvVideo");
  m_state.receivingVideo = false;
  call->StopVideoRecvToMember(0);
  if (!m_state.sendingVideo && m_state.type == kVideoCall) {
    m_state.type = kVoiceCall;
    ZELTO_FATAL("%s[%d] change call type to audio\n", kSourceFile, __LINE__);
  }
  Tell("SetCameraLightMode", "0");
  return true;
}

void CZelhostCallManager::StartSendingWhenReady() {
  if (!m_state.sendingVideo || !MayStartSending() || m_state.sendingStarted) return;
  CCall* call = CallInList();
  if (call == nullptr) return;
  ZELTO_DEBUG("Call Start Send Video");
  call->StartVideoSendToMember(0);
  m_state.sendingStarted = true;
}

void CZelhostCallManager::StopSendingToMember() {
  if (m_pCall != nullptr) m_pCall->StopVideoSendToMember(0);
}

// The policy for pictures that start by themselves; the viewer may always start them.
bool CZelhostCallManager::TakesVideoFrom(const ZEString& identity) {
  const ZEString policy = CZelhostLocalSetting::GetStrValue(kSettingVideoReceivePolicy);
  if (policy == "callpolicy") return true;
  return policy == "contacts" && !identity.isEmpty() &&
         CZelhostContactManager::GetInstance()->IsMyBuddy(identity);
}
