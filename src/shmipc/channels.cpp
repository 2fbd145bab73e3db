#include "shmipc/channels.h"

#include "shmipc/shmipc.h"

namespace {

SHMIPC_channel_t* Open(const shmipc::Channel& channel, int create) {
  return SHMIPC_open_channel(shmipc::kKeyFile, channel.size, channel.project, create);
}

}  // namespace

SHMIPC_channel_t* SHMIPC_open_audio_in_channel(int create) { return Open(shmipc::kAudioIn, create); }

SHMIPC_channel_t* SHMIPC_open_audio_out_channel(int create) { return Open(shmipc::kAudioOut, create); }

SHMIPC_channel_t* SHMIPC_open_video_in_channel(int create) { return Open(shmipc::kVideoIn, create); }

SHMIPC_channel_t* SHMIPC_open_video_out_channel(int create) { return Open(shmipc::kVideoOut, create); }
