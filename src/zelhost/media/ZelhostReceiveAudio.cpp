#include "zelhost/media/ZelhostReceiveAudio.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>

#include "Common/Log.h"
#include "Common/Platform.h"
#include "Common/ZeltoManager.h"
#include "zelhost/media/MediaLimits.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

namespace {

constexpr int kFormatRecord = 3;
constexpr std::uint32_t kPlaybackFormat[] = {48000, 1, 16};  // samples a second, channels, bits a sample

// What a volume command says.
struct VolumeWords {
  std::uint32_t selector;  // 0: the microphone
  std::uint32_t value;     // up to kLoudest
};
constexpr std::uint64_t kLoudest = 65535;
constexpr std::uint64_t kPercent = 100;

CZelhostMicVolumeChangeThread::Command VolumeCommand(int record, std::uint32_t volume) {
  const VolumeWords words{0, volume};
  CZelhostMicVolumeChangeThread::Command command(new CAVData{record, 0, sizeof words, nullptr});
  command->data = new unsigned char[sizeof words];
  std::memcpy(command->data, &words, sizeof words);
  return command;
}

}  // namespace

// By packet type: the host's record, the shortest payload, and what is done.
struct CZelhostReceiveAudio::Row {
  int record;
  unsigned shortest;
  Outcome (CZelhostReceiveAudio::*handle)(const Row& row, SHMIPC_packet_t* packet);
};

// clang-format off
const CZelhostReceiveAudio::Row CZelhostReceiveAudio::kRows[] = {
    {1,             0,                   &CZelhostReceiveAudio::PassOn},
    {2,             0,                   &CZelhostReceiveAudio::PassOn},
    {kFormatRecord, 0,                   &CZelhostReceiveAudio::BeginSound},
    {1,             0,                   &CZelhostReceiveAudio::EndSound},
    {0,             0,                   &CZelhostReceiveAudio::Play},
    {5,             sizeof(VolumeWords), &CZelhostReceiveAudio::ChangeVolume},
    {6,             0,                   &CZelhostReceiveAudio::PassOn},
};
// clang-format on

void CZelhostReceiveAudio::Initialize() {
  m_active = false;
  m_autoMic = CZelhostLocalSetting::GetIntValue(kSettingAutoMic) != 0;
}

bool CZelhostReceiveAudio::Create(const char* name) {
  m_microphone.Create("ZelhostMicVolumeThread");
  if (MediaThread::Create(name)) return true;
  m_microphone.Destroy();
  return false;
}

void CZelhostReceiveAudio::Destroy() {
  ZELTO_DEBUG("CZelhostReceiveAudio::Destroy ");
  MediaThread::Destroy();
  m_microphone.Destroy();
  ZELTO_DEBUG("CZelhostReceiveAudio::Destroy End");
}

void CZelhostReceiveAudio::Round() {
  if (!GetData()) zelto::SleepMilliseconds(zelhost::kAudioPause);
}

bool CZelhostReceiveAudio::GetData() {
  if (Channel() == nullptr) {
    ZELTO_FATAL("[CZelhostReceiveAudio] Audio Channel did not open!!!!");
    return false;
  }
  int wait = m_active ? zelhost::kActiveAudioPoll : zelhost::kAudioPoll;
  bool usable = true;
  while (IsRunning()) {
    SHMIPC_packet_t* const packet = Receive(wait, &usable);
    if (packet == nullptr) return usable;
    const Outcome outcome = Handle(packet);
    if (outcome != Outcome::Next) return outcome == Outcome::Done;
    wait = 0;
  }
  return true;
}

CZelhostReceiveAudio::Outcome CZelhostReceiveAudio::Handle(SHMIPC_packet_t* packet) {
  if (packet->type >= std::size(kRows)) {
    ZELTO_WARNING("CZelhostReceiveAudio::GetData  >> No Command type(%d)!!\n",
                  static_cast<int>(packet->type));
    return Outcome::Pause;
  }
  const Row& row = kRows[packet->type];
  if (packet->length < row.shortest) {
    ZELTO_WARNING("CZelhostReceiveAudio::GetData  >> %u bytes are too few for type(%u)\n", packet->length,
                  packet->type);
    return Outcome::Pause;
  }
  return (this->*row.handle)(row, packet);
}

unsigned CZelhostReceiveAudio::Deliver(int record, void* data, unsigned size) {
  unsigned queued = 0;
  m_record = {record, 0, size, static_cast<unsigned char*>(data)};
  CZeltoManager::SendAVData(&m_record, &queued);
  return queued;
}

CZelhostReceiveAudio::Outcome CZelhostReceiveAudio::PassOn(const Row& row, SHMIPC_packet_t* packet) {
  Deliver(row.record, packet + 1, packet->length);
  return Outcome::Next;
}

CZelhostReceiveAudio::Outcome CZelhostReceiveAudio::BeginSound(const Row& row, SHMIPC_packet_t*) {
  m_active = true;
  // The host may write into a record, so it gets a copy.
  std::uint32_t format[std::size(kPlaybackFormat)];
  std::copy(std::begin(kPlaybackFormat), std::end(kPlaybackFormat), format);
  Deliver(row.record, format, sizeof format);
  return Outcome::Next;
}

CZelhostReceiveAudio::Outcome CZelhostReceiveAudio::EndSound(const Row& row, SHMIPC_packet_t* packet) {
  m_active = false;
  return PassOn(row, packet);
}

// One packet a poll, so that the host is asked again before it gets more than it can play in time.
CZelhostReceiveAudio::Outcome CZelhostReceiveAudio::Play(const Row& row, SHMIPC_packet_t* packet) {
  const unsigned queued = Deliver(row.record, packet + 1, packet->length);
  if (queued > zelhost::kQueuedSoundLimit) {
    ZELTO_DEBUG("%u bytes remains in audio buffer\n", queued);
    ZELTO_DEBUG("\t >> sleep 10ms");
    zelto::SleepMilliseconds(zelhost::kHoldBack);
  }
  return Outcome::Done;
}

CZelhostReceiveAudio::Outcome CZelhostReceiveAudio::ChangeVolume(const Row& row, SHMIPC_packet_t* packet) {
  VolumeWords words{};
  std::memcpy(&words, packet + 1, sizeof words);
  if (words.selector != 0) {
    ZELTO_DEBUG("Do not change speaker setting by volume command!!");
    return Outcome::Pause;
  }
  if (!m_autoMic) {
    ZELTO_DEBUG("Not AUTOMATIC_MIC_SETTING... CAN NOT CONTROL MIC VOLUME");
    return Outcome::Pause;
  }
  const auto volume =
      static_cast<std::uint32_t>(std::min<std::uint64_t>(words.value, kLoudest) * kPercent / kLoudest);
  ZELTO_DEBUG("CZelhostReceiveAudio::GetData >>> volume=%u", volume);
  m_microphone.AddCmd(VolumeCommand(row.record, volume).release());
  return Outcome::Next;
}
