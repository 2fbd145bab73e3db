// The engine's ends of the four channels, as the engine makes them.
#pragma once

#include <gtest/gtest.h>
#include <sys/shm.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "shmipc/segment.h"
#include "shmipc/shmipc.h"

namespace test {

struct Packet {
  std::uint32_t type = 0;
  std::string payload;
};

inline std::string Words(const std::vector<std::uint32_t>& words) {
  return {reinterpret_cast<const char*>(words.data()), words.size() * sizeof(std::uint32_t)};
}

class EngineSide {
 public:
  struct Close {
    // The segment goes when the last one has let go.
    void operator()(SHMIPC_channel_t* channel) const {
      shmctl(channel->segment_id, IPC_RMID, nullptr);
      SHMIPC_close_channel(channel);
    }
  };
  using Channel = std::unique_ptr<SHMIPC_channel_t, Close>;

  EngineSide() {
    PutAudioConfig(soundIn.get(), 48000, 1);
    PutAudioConfig(soundOut.get(), 24000, 2);
    const std::string video = Words({2000, 3, 3});
    EXPECT_EQ(0, SHMIPC_put_config(picturesOut.get(), video.data(), 12));
    EXPECT_EQ(0, SHMIPC_initialize_receiver(soundIn.get()));
    EXPECT_EQ(0, SHMIPC_initialize_sender(soundOut.get()));
    EXPECT_EQ(0, SHMIPC_initialize_receiver(picturesIn.get()));
    EXPECT_EQ(0, SHMIPC_initialize_sender(picturesOut.get()));
  }

  static int Send(const Channel& channel, std::uint32_t type, const std::string& payload,
                  int timeout = 2000) {
    const SHMIPC_packet_t head{type, static_cast<std::uint32_t>(payload.size())};
    return SHMIPC_send_packet(channel.get(), &head, payload.data(), timeout);
  }
  // A type that no packet has when none comes in time.
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;
  static Packet Receive(const Channel& channel, int timeout = 2000) {
    int error = 0;
    const SHMIPC_packet_t* packet = SHMIPC_recv_packet(channel.get(), timeout, &error);
    if (packet == nullptr) return {kNone, {}};
    return {packet->type, {reinterpret_cast<const char*>(packet + 1), packet->length}};
  }

  Channel soundIn{SHMIPC_open_audio_in_channel(1)};
  Channel soundOut{SHMIPC_open_audio_out_channel(1)};
  Channel picturesIn{SHMIPC_open_video_in_channel(1)};
  Channel picturesOut{SHMIPC_open_video_out_channel(1)};

 private:
  static void PutAudioConfig(SHMIPC_channel_t* channel, unsigned rate, unsigned factor) {
    unsigned size = 0;
    void* blob = AS_resize_channel_conf(rate, factor, &size);
    EXPECT_EQ(0, SHMIPC_put_config(channel, blob, size));
    std::free(blob);
  }
};

}  // namespace test
