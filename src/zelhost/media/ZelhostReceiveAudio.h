#pragma once

#include <atomic>

#include "Common/IMoIPEngine.h"
#include "zelhost/media/MediaThread.h"
#include "zelhost/media/ZelhostMicVolumeChangeThread.h"

// Takes the far end's sound from the runtime to the host.
class CZelhostReceiveAudio final : public MediaThread {
 public:
  CZelhostReceiveAudio() : MediaThread(zelhost::kAudioInChannel) {}

  void Initialize() override;
  bool Create(const char* name) override;
  void Destroy() override;

  // Whether the microphone's level follows the far end's wishes. Any thread.
  void SetAutoMic(bool automatic) { m_autoMic = automatic; }
  bool GetAutoMic() const { return m_autoMic; }

 protected:
  void Begin() override { SetHighPriorty(); }
  void Round() override;

 private:
  // What a packet leads to: the next packet, the end of this poll, or a pause after it.
  enum class Outcome { Next, Done, Pause };
  struct Row;
  static const Row kRows[];

  // One poll. False: nothing usable came, a pause is due.
  bool GetData();
  Outcome Handle(SHMIPC_packet_t* packet);

  Outcome PassOn(const Row& row, SHMIPC_packet_t* packet);
  Outcome BeginSound(const Row& row, SHMIPC_packet_t* packet);
  Outcome EndSound(const Row& row, SHMIPC_packet_t* packet);
  Outcome Play(const Row& row, SHMIPC_packet_t* packet);
  Outcome ChangeVolume(const Row& row, SHMIPC_packet_t* packet);

  // Answers how many bytes the host has not played yet.
  unsigned Deliver(int record, void* data, unsigned size);

  std::atomic<bool> m_autoMic{false};
  CZelhostMicVolumeChangeThread m_microphone;
  bool m_active = false;  // the far end's sound plays
  CAVData m_record{};
};
