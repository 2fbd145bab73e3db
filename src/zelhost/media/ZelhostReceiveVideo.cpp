#include "zelhost/media/ZelhostReceiveVideo.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "Common/Log.h"
#include "Common/Platform.h"
#include "Common/ZeltoManager.h"
#include "zelhost/media/MediaLimits.h"

namespace {

constexpr int kNoRecord = 256;
constexpr int kFrameRecord = 16;
constexpr int kShapeRecord = 17;
constexpr int kRateRecord = 22;

constexpr unsigned kStampSize = sizeof(std::uint32_t);
constexpr unsigned kTicksPerFrame = 1800;
constexpr unsigned kTicksPerMillisecond = 90;
constexpr std::uint32_t kHighestRate = 250'000;

// By packet type: the host's record and the shortest payload.
struct Row {
  int record;
  unsigned shortest;
};
// clang-format off
constexpr Row kRows[] = {
    {kShapeRecord, 8}, {18, 0}, {19, 0}, {20, 0}, {kFrameRecord, kStampSize},
    {21, 0}, {kRateRecord, 4}, {23, 0}, {24, 0},
};

// Shapes as the television knows them: width by height.
struct Aspect { std::uint64_t width, height; int kind; };
constexpr Aspect kAspects[] = {{16, 9, 1}, {4, 3, 2}, {9, 16, 3}};

// A level needs more bits a window than its place says.
constexpr std::uint64_t kQualityLevels[] = {99'999, 299'999, 499'999, 999'999};
// clang-format on

int KindOfAspect(const void* words) {
  std::uint32_t shape[2];
  std::memcpy(shape, words, sizeof shape);
  for (const Aspect& aspect : kAspects) {
    if (aspect.height * shape[0] == aspect.width * shape[1]) return aspect.kind;
  }
  return 0;
}

void LimitRate(void* payload) {
  std::uint32_t rate = 0;
  std::memcpy(&rate, payload, sizeof rate);
  rate = std::min(rate, kHighestRate);
  std::memcpy(payload, &rate, sizeof rate);
}

}  // namespace

void CZelhostReceiveVideo::Initialize() {
  m_rate = 0;
  m_windowBytes = 0;
  m_windowStart = 0;
  m_decodingTicks = 0;
}

void CZelhostReceiveVideo::Destroy() {
  ZELTO_DEBUG("CZelhostReceiveVideo::Destroy ");
  MediaThread::Destroy();
  ZELTO_DEBUG("CZelhostReceiveVideo::Destroy End ");
}

void CZelhostReceiveVideo::Round() {
  if (!t_GetData()) zelto::SleepMilliseconds(zelhost::kVideoPause);
}

bool CZelhostReceiveVideo::t_GetData() {
  if (Channel() == nullptr) {
    ZELTO_FATAL("Video Channel did not open!!!!");
    return false;
  }
  SHMIPC_packet_t* const packet = Receive(zelhost::kVideoPoll);
  if (packet == nullptr) {
    ZELTO_DEBUG("[CZelhostReceiveVideo::GetData]Can not recv Packet from Zelto Engine ");
    return false;
  }
  const int record = t_CmdConverter(packet);
  if (record == kNoRecord) return false;
  auto* const payload = reinterpret_cast<unsigned char*>(packet + 1);
  if (record == kFrameRecord) {
    const unsigned size = packet->length - kStampSize;
    m_record = {record, static_cast<int>(t_GetDTS()), size, payload + kStampSize};
    t_CheckCallQuality(size);
  } else {
    m_record = {record, 0, packet->length, payload};
  }
  CZeltoManager::SendAVData(&m_record, nullptr);
  return true;
}

int CZelhostReceiveVideo::t_CmdConverter(SHMIPC_packet_t* packet) {
  if (packet->type >= std::size(kRows)) {
    ZELTO_WARNING("No Command type!!");
    return kNoRecord;
  }
  const Row& row = kRows[packet->type];
  if (packet->length < row.shortest) {
    ZELTO_WARNING("[CZelhostReceiveVideo::GetData] %u bytes are too few for type(%u)\n", packet->length,
                  packet->type);
    return kNoRecord;
  }
  if (row.record == kShapeRecord) {
    CZeltoManager::SendEvent(CZeltoManager::REMOTE_VIDEO_ASPECT, KindOfAspect(packet + 1));
  }
  if (row.record == kRateRecord) LimitRate(packet + 1);
  return row.record;
}

unsigned CZelhostReceiveVideo::t_GetDTS() {
  m_decodingTicks += kTicksPerFrame;
  return static_cast<unsigned>(m_decodingTicks / kTicksPerMillisecond);
}

void CZelhostReceiveVideo::t_CheckCallQuality(unsigned size) {
  m_windowBytes += size;
  const std::uint32_t now = t_GetTickCount();
  const bool isOpen = m_windowStart != 0 && now >= m_windowStart;
  if (isOpen && now - m_windowStart <= zelhost::kQualityWindow) return;
  if (isOpen) {
    const int before = t_GetCallQuality();
    m_rate = m_windowBytes * 8;
    const int quality = t_GetCallQuality();
    if (quality != before) {
      ZELTO_DEBUG("=====================================");
      ZELTO_DEBUG("Video Quality = %d\n", quality);
      CZeltoManager::SendEvent(CZeltoManager::CALL_QUALITY_0 + quality, 0);
    }
  }
  m_windowStart = now;
  m_windowBytes = 0;
}

int CZelhostReceiveVideo::t_GetCallQuality() const {
  const auto* const level = std::lower_bound(std::begin(kQualityLevels), std::end(kQualityLevels), m_rate);
  return static_cast<int>(level - std::begin(kQualityLevels));
}

std::uint32_t CZelhostReceiveVideo::t_GetTickCount() {
  return static_cast<std::uint32_t>(zelto::System().WallClock());
}
