#include "simulator/runtime/media/SoundLine.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>

#include "Common/Platform.h"
#include "simulator/runtime/Log.h"
#include "simulator/runtime/media/PacketTypes.h"

namespace simulator {
namespace {

using zelto::kNanosecondsPerMillisecond;

// Five seconds: what the engine takes later than that nobody wants to hear.
constexpr std::size_t kMostEcho = 500;
// A tone is made when it is needed.
constexpr std::size_t kMostTone = 4;
constexpr std::size_t kMostOthers = 1000;

constexpr std::int64_t kPacketTime = 10 * kNanosecondsPerMillisecond;
constexpr std::int64_t kLevelLasts = 500 * kNanosecondsPerMillisecond;
constexpr int kHighestLevel = 10;
constexpr int kLoudest = 32767;

constexpr int kRate = 48000;
constexpr int kFrequency = 440;
constexpr double kAmplitude = 8000;  // loud enough, and pleasant
constexpr std::size_t kSamples = packet::kSoundSize / sizeof(std::int16_t);
// So many packets hold whole waves, and can be repeated.
constexpr int kTonePackets = 5;
static_assert(kTonePackets * static_cast<int>(kSamples) * kFrequency % kRate == 0);

using ToneTurn = std::array<std::int16_t, kTonePackets * kSamples>;

// A melody's notes. They hold whole waves in one packet, too.
constexpr int kNotes[] = {300, 400, 500, 600, 800, 900, 1000, 1200};
constexpr int kNoteCount = static_cast<int>(std::size(kNotes));
constexpr int kNotePackets = 20;
constexpr int kMelodyNotes = 8;
constexpr int kMelodyPackets = kMelodyNotes * kNotePackets;

using Note = std::array<std::int16_t, kSamples>;

template <std::size_t N>
void FillWave(std::array<std::int16_t, N>& samples, int frequency) {
  constexpr double kTurn = 6.283185307179586;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double phase = kTurn * frequency * static_cast<double>(i) / kRate;
    samples[i] = static_cast<std::int16_t>(std::lround(kAmplitude * std::sin(phase)));
  }
}

std::array<Note, kNoteCount> MakeNotes() {
  std::array<Note, kNoteCount> notes{};
  for (int note = 0; note < kNoteCount; ++note) FillWave(notes[static_cast<std::size_t>(note)], kNotes[note]);
  return notes;
}

// Begins with another note for each number, and goes on in steps of its own.
std::size_t NoteAt(unsigned recording, int position) {
  const unsigned step = 1 + recording % 7;
  return (recording + static_cast<unsigned>(position) * step) % kNoteCount;
}

ToneTurn MakeTone() {
  ToneTurn turn{};
  FillWave(turn, kFrequency);
  return turn;
}

int LevelOf(const unsigned char* payload, std::size_t size) {
  int peak = 0;
  for (std::size_t i = 0; i + sizeof(std::int16_t) <= size; i += sizeof(std::int16_t)) {
    std::int16_t sample;
    std::memcpy(&sample, payload + i, sizeof sample);
    peak = std::max(peak, std::abs(static_cast<int>(sample)));
  }
  return (std::min(peak, kLoudest) * kHighestLevel + kLoudest / 2) / kLoudest;
}

}  // namespace

SoundLine::SoundLine()
    : m_sender("sound to the engine", true),
      m_receiver("sound from the engine", true,
                 [this](std::uint32_t type, const unsigned char* payload, std::size_t size) {
                   return Receive(type, payload, size);
                 }),
      m_tone("tone", kPacketTime, [this] { PlayTone(); }) {}

void SoundLine::Start(SHMIPC_channel_t* toEngine, SHMIPC_channel_t* fromEngine) {
  m_sender.Start(toEngine);
  m_receiver.Start(fromEngine);
}

void SoundLine::Stop() {
  SwitchTo(FarSound::None);
  m_receiver.Stop();
  m_sender.Stop();
}

void SoundLine::Begin(FarSound sound) {
  Send(packet::kSoundBegins, nullptr, 0);
  if (m_recording) {
    SwitchTo(FarSound::None);
    m_recording.reset();
    m_tonePacket = 0;
  }
  SwitchTo(sound);
}

void SoundLine::Play(unsigned recording) {
  Send(packet::kSoundBegins, nullptr, 0);
  SwitchTo(FarSound::None);
  m_recording = recording;
  m_tonePacket = 0;
  SwitchTo(FarSound::Tone);
}

void SoundLine::End() {
  SwitchTo(FarSound::None);
  m_sender.Clear();
  Send(packet::kSoundEnds, nullptr, 0);
}

void SoundLine::SwitchTo(FarSound sound) {
  {
    const zelto::MutexLock lock(m_lock);
    m_sound = sound;
  }
  if (sound == FarSound::Tone) {
    m_tone.Start();
  } else {
    m_tone.Stop();
  }
}

void SoundLine::Send(std::uint32_t type, const void* payload, std::size_t size) {
  m_sender.Push(type, payload, size, kMostOthers);
}

int SoundLine::VoiceLevel() const {
  return zelto::System().Now() - m_heard < kLevelLasts ? m_level.load() : 0;
}

std::optional<Microphones> SoundLine::TheMicrophones() const {
  const zelto::MutexLock lock(m_lock);
  return m_microphones;
}

bool SoundLine::Receive(std::uint32_t type, const unsigned char* payload, std::size_t size) {
  if (type == packet::kMedia) return Hear(payload, size);
  if (type == packet::kMicConfiguration) return Configure(payload, size);
  return false;
}

bool SoundLine::Hear(const unsigned char* payload, std::size_t size) {
  if (size == 0 || size > packet::kSoundSize || size % sizeof(std::int16_t) != 0) return false;
  ++m_received;
  // Falls by one a packet, so that a short sound can be seen.
  m_level = std::max(LevelOf(payload, size), VoiceLevel() - 1);
  m_heard = zelto::System().Now();
  const zelto::MutexLock lock(m_lock);
  if (m_sound == FarSound::Echo) m_sender.Push(packet::kMedia, payload, size, kMostEcho);
  return true;
}

bool SoundLine::Configure(const unsigned char* payload, std::size_t size) {
  Microphones told;
  static_assert(sizeof told == 3 * sizeof(std::uint32_t), "the packet's words in their order");
  if (size < sizeof told) return false;
  std::memcpy(&told, payload, sizeof told);
  Log("microphones: beamformer " + std::to_string(told.beamformer) + ", distances " +
      std::to_string(told.distances[0]) + " and " + std::to_string(told.distances[1]) + " cm");
  const zelto::MutexLock lock(m_lock);
  m_microphones = told;
  return true;
}

void SoundLine::PlayMelody() {
  static const std::array<Note, kNoteCount> notes = MakeNotes();
  const Note& note = notes[NoteAt(*m_recording, m_tonePacket / kNotePackets)];
  m_sender.Push(packet::kMedia, note.data(), packet::kSoundSize, kMostTone);
  m_tonePacket = (m_tonePacket + 1) % kMelodyPackets;
}

void SoundLine::PlayTone() {
  if (m_recording) {
    PlayMelody();
    return;
  }
  static const ToneTurn turn = MakeTone();
  m_sender.Push(packet::kMedia, turn.data() + static_cast<std::size_t>(m_tonePacket) * kSamples,
                packet::kSoundSize, kMostTone);
  m_tonePacket = (m_tonePacket + 1) % kTonePackets;
}

}  // namespace simulator
