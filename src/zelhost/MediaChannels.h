// The four channels between the engine and its runtime: how each is opened, what the runtime finds in it, and
// what the log says.
#pragma once

#include <cstdint>

#include "shmipc/shmipc.h"

namespace zelhost {

struct MediaChannel {
  SHMIPC_channel_t* (*open)(int create);
  bool sends;          // the engine's side: sender or receiver
  unsigned audioRate;  // 0 for video
  unsigned audioFactor;
  const void* blob;  // left for the runtime when it is no audio channel; null for none
  unsigned blobSize;
  const char* configured;
  const char* notConfigured;
  const char* notOpened;  // the system's error text follows in brackets
};

inline constexpr std::int32_t kVideoOutBlob[] = {2000, 3, 3};

// In the order of opening and closing.
// clang-format off
inline constexpr MediaChannel kMediaChannels[] = {
    {SHMIPC_open_video_in_channel,  false, 0,     0, nullptr, 0,
     "[CZelhostReceiveVideo] Video input channel configured properly",
     "[CZelhostReceiveVideo] Failure to initialize video input channel",
     "[CZelhostReceiveVideo::OpenChannel] Error: fail to open video in channel"},
    {SHMIPC_open_audio_in_channel,  false, 48000, 1, nullptr, 0,
     "Audio out channel configured properly",
     "Failure to initialize audio out channel",
     "[CZelhostReceiveAudio::OpenChannel]  Error: fail to open audio out channel"},
    {SHMIPC_open_video_out_channel, true,  0,     0, kVideoOutBlob, sizeof kVideoOutBlob,
     "[CZelhostSendVideo::OpenChannel]  Video output channel configured properly",
     "[CZelhostSendVideo::OpenChannel]  Failure to initialize video output channel",
     "[CZelhostSendVideo::OpenChannel] Error: fail to open video in channel"},
    {SHMIPC_open_audio_out_channel, true,  24000, 2, nullptr, 0,
     "Audio input channel configured properly",
     "Failure to initialize audio input channel",
     "[CZelhostSendAudio::OpenChannel] Error: fail to open audio in channel"},
};
// clang-format on

inline constexpr int kMediaChannelCount = sizeof kMediaChannels / sizeof kMediaChannels[0];
static_assert(kMediaChannelCount == 4, "sound and picture, both ways");

}  // namespace zelhost
