#include "zelhost/ZelhostCallManager.h"

#include "Common/CallManager.h"
#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/apiwrapper/client/CZelto.h"

namespace {

// clang-format off
constexpr CZeltoManager::EVENT_TYPE kHandledEvents[] = {
    CZeltoManager::CALLMEMBER_CALL_FAILED,        CZeltoManager::CALLMEMBER_INPROGRESS,
    CZeltoManager::CALLMEMBER_STATUS_9,           CZeltoManager::CALLMEMBER_STATUS_10,
    CZeltoManager::CONFERENCE_CALL_ENDED,         CZeltoManager::CALL_ENDED,
    CZeltoManager::CALL_ENDED_OTHER,              CZeltoManager::CALL_ACTIVE_MEMBERS_ONE,
    CZeltoManager::CALL_DURATION,                 CZeltoManager::VIDEO_STATUS_1,
    CZeltoManager::VIDEO_STATUS_2,                CZeltoManager::VIDEO_STATUS_3,
    CZeltoManager::VIDEO_STATUS_4,                CZeltoManager::VIDEO_STATUS_5,
    CZeltoManager::VIDEO_STATUS_6,                CZeltoManager::VIDEO_STATUS_7,
    CZeltoManager::INCOMING_CALL,                 CZeltoManager::INCOMING_CONFERENCE_CALL,
    CZeltoManager::CALLMEMBER_STATUS_6,           CZeltoManager::CALLMEMBER_MYVIDEO_AVAILABLE,
    CZeltoManager::CALLMEMBER_VIDEO_PROPERTY,     CZeltoManager::CALLMEMBER_PROPERTY15,
    CZeltoManager::CALLMEMBER_STATUS_12,          CZeltoManager::CALLMEMBER_REFUSE_RECEIVE_VIDEO,
    CZeltoManager::VOICEMAIL_STATUS_4,            CZeltoManager::CALLMEMBER_PROPERTY37,
    CZeltoManager::VOICEMAIL_STATUS_5,            CZeltoManager::VOICEMAIL_STATUS_6,
    CZeltoManager::VOICEMAIL_STATUS_3,            CZeltoManager::VOICEMAIL_STATUS_13,
    CZeltoManager::VOICEMAIL_STATUS_7,            CZeltoManager::CALLMEMBER_STATUS_17,
    CZeltoManager::CALLMEMBER_STATUS_18,          CZeltoManager::CALLMEMBER_STATUS_20,
    CZeltoManager::CALLMEMBER_STATUS_21,          CZeltoManager::CALLMEMBER_STATUS_22,
};
// clang-format on
static_assert(sizeof kHandledEvents / sizeof kHandledEvents[0] == 36, "the call facade reacts to 36 events");

}  // namespace

CCall* CZelhostCallManager::m_pCall = nullptr;

CZelhostCallManager::~CZelhostCallManager() { m_instance.Forget(); }

void CZelhostCallManager::Init() {
  for (const auto type : kHandledEvents) {
    CZeltoManager::SetEventHandler(type, CCallManager::GetInstance());
  }
}
bool CZelhostCallManager::OnEvent(const CZeltoEvent*) { return true; }
bool CZelhostCallManager::AfterEvent(const CZeltoEvent*) { return true; }

void CZelhostCallManager::SetCallMembers(CCall* call) {
  zelhost::ServiceHostLock lock("SetCallMembers");
  m_pCall = call;
}

bool CZelhostCallManager::BlockIncomingCall() {
  zelhost::ServiceHostLock lock("BlockIncomingCall");
  if (g_lpZelto == nullptr) return false;
  m_blockingIncomingCall = true;
  return true;
}

bool CZelhostCallManager::UnblockIncomingCall(bool keep) {
  zelhost::ServiceHostLock lock("UnblockIncomingCall");
  if (g_lpZelto == nullptr) return false;
  if (!keep) m_blockingIncomingCall = false;
  return true;
}

void CZelhostCallManager::Place(const char* operation, VideoRect VideoLayout::*rect, const VideoRect& place) {
  zelhost::ServiceHostLock lock("Place");
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
  zelhost::ServiceHostLock lock("GetTvViewRect");
  x = m_layout.tvView.x;
  y = m_layout.tvView.y;
  width = m_layout.tvView.width;
  height = m_layout.tvView.height;
}
void CZelhostCallManager::ChangeSourceMode(const char*) {}
void CZelhostCallManager::StartPreview() {}

// Without a call there is nothing to do and nothing to tell.
bool CZelhostCallManager::CreateCall(const char*, int) { return false; }
bool CZelhostCallManager::CallEnd(bool) { return false; }
const char* CZelhostCallManager::GetCallInfo() { return nullptr; }
bool CZelhostCallManager::IsCallInProgress() { return false; }
int CZelhostCallManager::GetNumOfCallMembers() { return 0; }
const char* CZelhostCallManager::GetCallMemberInfo(int, int) { return nullptr; }
const char* CZelhostCallManager::GetCallMemberInfo(const char*, int) { return nullptr; }
bool CZelhostCallManager::SendDTMF(int) { return false; }

bool CZelhostCallManager::StartSendVideo() { return false; }
bool CZelhostCallManager::StopSendVideo() { return false; }
bool CZelhostCallManager::StartRecvVideo() { return false; }
bool CZelhostCallManager::StopRecvVideo() { return false; }

bool CZelhostCallManager::Hold() { return false; }
bool CZelhostCallManager::Resume() { return false; }
bool CZelhostCallManager::Answer(int) { return false; }
bool CZelhostCallManager::AnswerWithVideo() { return false; }
bool CZelhostCallManager::AnswerWithVoice() { return false; }
bool CZelhostCallManager::Reject() { return false; }
bool CZelhostCallManager::Forward() { return false; }
bool CZelhostCallManager::RedirectVoiceMail() { return false; }
bool CZelhostCallManager::IsConference() { return false; }

const char* CZelhostCallManager::GetCallMemberIdentity(int) { return nullptr; }
const char* CZelhostCallManager::GetCallMemberDisplayName(int) { return nullptr; }
const char* CZelhostCallManager::GetCallMemberAvatarPath(int) { return nullptr; }
const char* CZelhostCallManager::GetCallMemberStatus(int) { return nullptr; }
const char* CZelhostCallManager::GetCallMemberOnlineState(int) { return nullptr; }
const char* CZelhostCallManager::GetCallMemberName(int) { return nullptr; }

bool CZelhostCallManager::IsPSTNCall() { return false; }
int CZelhostCallManager::GetCallType() { return -1; }
bool CZelhostCallManager::Mute(bool) { return false; }
const char* CZelhostCallManager::NormalizeIdentity(const char*) { return nullptr; }
bool CZelhostCallManager::IsEmergencyCall(const char*) { return false; }
bool CZelhostCallManager::IsSendingVideo() { return false; }
bool CZelhostCallManager::IsReceivingVideo() { return false; }
bool CZelhostCallManager::LeaveVoicemail(const char*) { return false; }
bool CZelhostCallManager::CancelVoicemail() { return false; }
bool CZelhostCallManager::IsInCall() { return false; }
bool CZelhostCallManager::IsInCalling() { return false; }
bool CZelhostCallManager::IsCallMemberVideoAvailable() { return false; }
// Ringing is the television's work; it hears of it as public events.
bool CZelhostCallManager::SetRingVolume(unsigned char) { return true; }
bool CZelhostCallManager::StopRingPlayer() { return true; }

void CZelhostCallManager::UpdateSpeakingCallMember(void*, int) {}
void CZelhostCallManager::UpdateCallMemberProperty(void*, int, const ZEString&) {}

bool CZelhostCallManager::IsInHold() { return false; }
bool CZelhostCallManager::IsMissed() { return false; }
void CZelhostCallManager::SetMissed(bool) {}
void CZelhostCallManager::AddToMissedCallList() {}
