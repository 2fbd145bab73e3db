#pragma once

#include <cstdint>

#include "Common/IMoIPEngine.h"
#include "zelhost/media/MediaThread.h"

// Takes the far end's pictures from the runtime to the host, and tells how good they are.
class CZelhostReceiveVideo final : public MediaThread {
 public:
  CZelhostReceiveVideo() : MediaThread(zelhost::kVideoInChannel) {}

  void Initialize() override;
  void Destroy() override;

 protected:
  void Round() override;

 private:
  // One poll. False: nothing usable came, a pause is due.
  bool t_GetData();
  // The host's record for a packet, which may be changed for it; kNoRecord for none.
  int t_CmdConverter(SHMIPC_packet_t* packet);
  // The decoding time of the next picture in milliseconds: 20 after the one before, whatever its own says.
  unsigned t_GetDTS();
  // Counts a picture's bytes; once a second tells the engine when the quality has changed.
  void t_CheckCallQuality(unsigned size);
  int t_GetCallQuality() const;
  // Microseconds that pass through 0 every 71 minutes.
  static std::uint32_t t_GetTickCount();

  std::uint64_t m_rate = 0;  // bits in the last window
  std::uint64_t m_windowBytes = 0;
  std::uint32_t m_windowStart = 0;  // 0: no window is open
  unsigned long m_decodingTicks = 0;
  CAVData m_record{};
};
