#include "zelhost/apiwrapper/client/CZeltoVideo.h"

#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/apiwrapper/client/CCall.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/calls/ZelhostCallManager.h"

using E = CZeltoManager;

namespace {

constexpr int kSendAvailable = 2;
constexpr int kSendRefused = 4;
// A far end that takes pictures after all, or a viewer who stops sending, is quicker than this.
constexpr int kRefusalDelay = 3000;  // milliseconds

constexpr int kRecvStatusEvents = E::VIDEO_STATUS_1 - 1;  // plus the status
constexpr int kLastRecvStatus = E::VIDEO_STATUS_7 - kRecvStatusEvents;

}  // namespace

void CZeltoVideo::OnChange(int property, const ZEString& value) {
  client::TraceChange(*this, kTraceVideo, property, value);
  const CZelto* root = client::RootOf(*this);
  CCall* call = root != nullptr && property == P_STATUS ? root->m_calls.At(0) : nullptr;
  if (call == nullptr) return;
  const Video* sent = call->GetSendVideoObject(0);
  if (sent == this) {
    OnSendStatus(value.toInt());
  } else if (sent != nullptr) {
    OnRecvStatus(value.toInt());
  }
}

void CZeltoVideo::OnSendStatus(int status) {
  if (status == kSendAvailable) {
    client::Trace(*this, kTraceVideo, "SendVideo is Available");
    E::SendEvent(E::CALLMEMBER_MYVIDEO_AVAILABLE, status);
  } else if (status == kSendRefused) {
    zelto::Print("The callmember refused to receive my video [%d], Don't send video\n", status);
    const bool sending = CZelhostCallManager::GetInstance()->IsSendingVideo();
    zelto::Print("%s CZeltoManager::CALLMEMBER_REFUSE_RECEIVE_VIDEO", sending ? "send" : "don't send");
    if (sending) E::LazySendEvent(kRefusalDelay, E::CALLMEMBER_REFUSE_RECEIVE_VIDEO, status);
  }
}

void CZeltoVideo::OnRecvStatus(int status) {
  client::Trace(*this, kTraceVideo, "RecvVideo Status %d\n", status);
  if (status >= 1 && status <= kLastRecvStatus) E::SendEvent(kRecvStatusEvents + status, status);
}
