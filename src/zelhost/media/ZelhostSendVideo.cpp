#include "zelhost/media/ZelhostSendVideo.h"

#include <cstdint>
#include <cstring>

#include "Common/Log.h"
#include "zelhost/media/MediaLimits.h"

namespace {

constexpr unsigned kVideoPacket = 4;
constexpr unsigned kKeyFramePacket = 9;

constexpr MediaSender::Kind kVideo = {"CZelhostSendVideo", "Video", "t_DeliverVideoData",
                                      "/mtd_rwcommon/TX_VIDEO.h264", zelhost::kVideoFrameSize};

}  // namespace

CZelhostSendVideo::CZelhostSendVideo() : MediaSender(zelhost::kVideoOutChannel, kVideo) {}

bool CZelhostSendVideo::PutData(unsigned char* data, unsigned size, unsigned long timestamp) {
  CZelhostBuffer* const ring = RingFor(data, size);
  if (ring == nullptr) return false;
  const auto stamp = static_cast<std::uint32_t>(timestamp);
  if (size < sizeof stamp) {
    ZELTO_FATAL("CZelhostSendVideo::PutData >> no room for the time stamp in %u bytes\n", size);
    return false;
  }
  std::memcpy(data, &stamp, sizeof stamp);
  return Put(*ring, data, size, timestamp);
}

void CZelhostSendVideo::Begin() {
  t_StartDump();
  m_roundsSinceRequest = 0;
}

void CZelhostSendVideo::Round() {
  if (m_keyFrameRequested) RepeatKeyFrameRequest();
  t_DeliverVideoData();
}

void CZelhostSendVideo::RepeatKeyFrameRequest() {
  ++m_roundsSinceRequest;
  if (m_roundsSinceRequest == zelhost::kSecondKeyFrameRound) {
    ZELTO_DEBUG("Send key frame one more !!!");
    SendKeyFrameRequest();
  }
  if (m_roundsSinceRequest < zelhost::kThirdKeyFrameRound) return;
  ZELTO_DEBUG("Send key frame third request !!!");
  SendKeyFrameRequest();
  m_keyFrameRequested = false;
  m_roundsSinceRequest = 0;
}

// Commands ask while they hold the service host, which a runtime that never reads must not keep for ever: so
// the request waits no longer than a picture. One that is lost is repeated, and a full channel holds pictures
// that nobody looks at.
void CZelhostSendVideo::SendKeyFrameRequest() {
  if (Channel() == nullptr) {
    ZELTO_FATAL("\n\n\n!!! m_Channel is not initialized: can't send Key Frame Request to the Remote !!!\n\n");
    return;
  }
  ZELTO_DEBUG("\n\n!!!Send Key Frame Request to the Remote !!!\n\n");
  if (Send(kKeyFramePacket, nullptr, 0) != 0) ZELTO_WARNING("the key frame request found no room\n");
  m_keyFrameRequested = true;
}

void CZelhostSendVideo::SendFrame(const unsigned char* data, unsigned size) {
  if (Send(kVideoPacket, data, size) != 0) ZELTO_WARNING("a picture of %u bytes found no room\n", size);
}

int CZelhostSendVideo::Send(unsigned type, const unsigned char* data, unsigned size) {
  const SHMIPC_packet_t head{type, size};
  zelto::MutexLock lock(m_sendLock);
  return SHMIPC_send_packet(Channel(), &head, data, zelhost::kVideoSendWait);
}
