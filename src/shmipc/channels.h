// The four channels between the engine and its runtime.
#pragma once

namespace shmipc {

// The television's path of the file whose identity all four keys are made of.
inline constexpr char kKeyFile[] = "/tmp/shmipc2_conn";

struct Channel {
  int project;
  unsigned size;
};

// Video rings hold a few compressed pictures, audio rings some hundred milliseconds before their blob
// takes most of the room.
// clang-format off
inline constexpr Channel kAudioIn  = {1,  32768};
inline constexpr Channel kAudioOut = {2,  32768};
inline constexpr Channel kVideoIn  = {3, 524288};
inline constexpr Channel kVideoOut = {4, 524288};
// clang-format on

inline constexpr Channel kChannels[] = {kAudioIn, kAudioOut, kVideoIn, kVideoOut};

}  // namespace shmipc
