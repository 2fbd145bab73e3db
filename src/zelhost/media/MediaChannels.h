// The four channels between the engine and its runtime: how each is opened, what the runtime finds in it, and
// what the log says.
#pragma once

#include <cstdint>

#include "shmipc/shmipc.h"

namespace zelhost {

struct MediaChannel {
  const char* owner;  // the class whose thread uses it
  SHMIPC_channel_t* (*open)(int create);
  bool sends;          // the engine's side: sender or receiver
  unsigned audioRate;  // 0 for video
  unsigned audioFactor;
  const void* blob;  // left for the runtime when it is no audio channel; null for none
  unsigned blobSize;
  const char* configured;
  const char* opened;  // said too when it is configured; null for nothing
  const char* notConfigured;
  const char* notOpened;  // the system's error text follows in brackets
};

inline constexpr std::int32_t kVideoOutBlob[] = {2000, 3, 3};

// clang-format off
inline constexpr MediaChannel kVideoInChannel = {
    "CZelhostReceiveVideo", SHMIPC_open_video_in_channel,  false, 0,     0, nullptr, 0,
    "[CZelhostReceiveVideo] Video input channel configured properly", nullptr,
    "[CZelhostReceiveVideo] Failure to initialize video input channel",
    "[CZelhostReceiveVideo::OpenChannel] Error: fail to open video in channel"};
inline constexpr MediaChannel kAudioInChannel = {
    "CZelhostReceiveAudio", SHMIPC_open_audio_in_channel,  false, 48000, 1, nullptr, 0,
    "Audio out channel configured properly", nullptr,
    "Failure to initialize audio out channel",
    "[CZelhostReceiveAudio::OpenChannel]  Error: fail to open audio out channel"};
inline constexpr MediaChannel kVideoOutChannel = {
    "CZelhostSendVideo",    SHMIPC_open_video_out_channel, true,  0,     0, kVideoOutBlob, sizeof kVideoOutBlob,
    "[CZelhostSendVideo::OpenChannel]  Video output channel configured properly", nullptr,
    "[CZelhostSendVideo::OpenChannel]  Failure to initialize video output channel",
    "[CZelhostSendVideo::OpenChannel] Error: fail to open video in channel"};
inline constexpr MediaChannel kAudioOutChannel = {
    "CZelhostSendAudio",    SHMIPC_open_audio_out_channel, true,  24000, 2, nullptr, 0,
    "Audio input channel configured properly", "[CZelhostSendAudio::OpenChannel] Success open",
    "Failure to initialize audio input channel",
    "[CZelhostSendAudio::OpenChannel] Error: fail to open audio in channel"};
// clang-format on

// Creates the channel, leaves its configuration and takes the engine's side, without locking. Null, logged,
// when one of these fails; the caller closes what it gets.
SHMIPC_channel_t* OpenMediaChannel(const MediaChannel& channel);

}  // namespace zelhost
