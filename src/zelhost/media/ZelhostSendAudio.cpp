#include "zelhost/media/ZelhostSendAudio.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/Television.h"
#include "zelhost/media/MediaLimits.h"

namespace {

constexpr unsigned kAudioPacket = 4;
constexpr unsigned kMicrophonePacket = 8;

constexpr MediaSender::Kind kAudio = {"CZelhostSendAudio", "Audio", "DeliverAudioData",
                                      "/mtd_rwcommon/TX_Audio.pcm", zelhost::kAudioFrameSize};

// What the runtime's beamformer needs to know; distances in centimetres.
struct MicrophoneSetup {
  std::int32_t mode;
  std::int32_t distances[2];
};
static_assert(sizeof(MicrophoneSetup) == 12, "the packet's layout");

struct MicrophoneRow {
  int count;      // of microphones
  int questions;  // how many distances the host is asked for; the others are as below
  MicrophoneSetup setup;
  const char* text;
};

// The last row is for every other count.
// clang-format off
constexpr MicrophoneRow kMicrophoneRows[] = {
    {2, 1, {2, { 0, 0}}, "\n Zelto BeamFormer 2Mic distance=%d cm\n\n"},
    {4, 2, {1, { 0, 0}}, "\n Zelto BeamFormer 4Mic distance1=%d cm, distance2=%d cm\n\n"},
    {0, 0, {2, {45, 0}}, "\n Mic Num. is unknown. Zelto BeamFormer 2Mic distance1=%d cm\n\n"},
};
constexpr const char* kDistanceNames[] = {"0", "1"};
// clang-format on

MicrophoneSetup AskMicrophoneSetup() {
  if (CZeltoManager::CallCommonControl("IsCameraBeamFormerEnabled") != "0") {
    zelto::Print("\n Camera BeamFormer\n");
    return {};
  }
  const int count = zelhost::AskNumber("GetCameraNumOfMic");
  const auto* row =
      std::find_if(std::begin(kMicrophoneRows), std::end(kMicrophoneRows) - 1,
                   [count](const MicrophoneRow& candidate) { return candidate.count == count; });
  MicrophoneSetup setup = row->setup;
  for (int i = 0; i < row->questions; ++i) {
    setup.distances[i] = zelhost::AskNumber("GetCameraMicDistance", kDistanceNames[i]);
  }
  zelto::Print(row->text, setup.distances[0], setup.distances[1]);
  return setup;
}

}  // namespace

CZelhostSendAudio::CZelhostSendAudio() : MediaSender(zelhost::kAudioOutChannel, kAudio) {}

bool CZelhostSendAudio::PutData(const unsigned char* data, unsigned size) {
  CZelhostBuffer* const ring = RingFor(data, size);
  return ring != nullptr && Put(*ring, data, size, 0);
}

void CZelhostSendAudio::Begin() {
  SetHighPriorty();
  t_StartDump();
  const MicrophoneSetup setup = AskMicrophoneSetup();
  SendWhileRunning(kMicrophonePacket, &setup, sizeof setup);
}

void CZelhostSendAudio::SendFrame(const unsigned char* data, unsigned size) {
  while (size > 0) {
    const SHMIPC_packet_t head{kAudioPacket, std::min<unsigned>(size, zelhost::kAudioFrameSize)};
    if (SHMIPC_send_packet(Channel(), &head, data, zelhost::kAudioSendWait) != 0) {
      ZELTO_FATAL("Audioserver: buffer overrun");
      return;
    }
    data += head.length;
    size -= head.length;
  }
}

void CZelhostSendAudio::Destroy() {
  MediaSender::Destroy();
  ZELTO_DEBUG("CZelhostSendAudio::Destroy End");
}
