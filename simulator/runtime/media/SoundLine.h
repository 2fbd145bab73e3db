// The sound of a call, both ways.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <optional>

#include "Common/Locks.h"
#include "simulator/runtime/media/MediaPort.h"
#include "simulator/runtime/media/Pacer.h"
#include "simulator/runtime/media/PacketReceiver.h"
#include "simulator/runtime/media/PacketSender.h"

namespace simulator {

// What the engine told of its microphones.
struct Microphones {
  std::uint32_t beamformer = 0;
  std::uint32_t distances[2] = {};  // centimetres
};

// Threads: a receiver's, a sender's and a pacer's of its own; the operations belong to one other.
class SoundLine {
 public:
  SoundLine();
  SoundLine(const SoundLine&) = delete;
  SoundLine& operator=(const SoundLine&) = delete;
  ~SoundLine() { Stop(); }

  // The channels may be null, and must live until Stop().
  void Start(SHMIPC_channel_t* toEngine, SHMIPC_channel_t* fromEngine);
  void Stop();

  void Begin(FarSound sound);
  // A recording's melody.
  void Play(unsigned recording);
  void End();
  // Also what nobody but a test sends.
  void Send(std::uint32_t type, const void* payload, std::size_t size);
  void Stall(bool stalled) { m_receiver.Stall(stalled); }

  int VoiceLevel() const;
  std::optional<Microphones> TheMicrophones() const;
  std::uint64_t Received() const { return m_received; }
  std::uint64_t Sent() const { return m_sender.Sent(); }
  std::uint64_t Dropped() const { return m_sender.Dropped(); }

 private:
  bool Receive(std::uint32_t type, const unsigned char* payload, std::size_t size);
  bool Hear(const unsigned char* payload, std::size_t size);
  bool Configure(const unsigned char* payload, std::size_t size);
  void PlayTone();
  void PlayMelody();
  void SwitchTo(FarSound sound);

  std::atomic<std::uint64_t> m_received{0};
  std::atomic<int> m_level{0};
  std::atomic<std::int64_t> m_heard{0};  // when, on the platform's clock
  // The pacer's while it runs.
  int m_tonePacket = 0;                 // the next one of a tone's full turn, or of the melody
  std::optional<unsigned> m_recording;  // played in place of the tone

  // Also held while an echo is queued, so that none comes behind the end.
  mutable zelto::Mutex m_lock{zelto::LockRank::Queue, "far sound"};
  FarSound m_sound ZELTO_GUARDED_BY(m_lock) = FarSound::None;
  std::optional<Microphones> m_microphones ZELTO_GUARDED_BY(m_lock);

  PacketSender m_sender;
  PacketReceiver m_receiver;
  Pacer m_tone;
};

}  // namespace simulator
