#include "simulator/runtime/MediaChannels.h"

#include <cerrno>
#include <cstdint>
#include <cstring>

#include "shmipc/shmipc.h"
#include "simulator/runtime/Log.h"

namespace simulator {
namespace {

struct Row {
  const char* name;
  SHMIPC_channel_t* (*open)(int create);
  int (*initialize)(SHMIPC_channel_t* channel);
  int words;  // 32-bit values at the beginning of the engine's blob
};

// The names tell the direction as the engine sees it, the roles are the other ones.
// clang-format off
constexpr Row kRows[] = {
    {"audio in",  SHMIPC_open_audio_in_channel,  SHMIPC_initialize_sender,   2},
    {"audio out", SHMIPC_open_audio_out_channel, SHMIPC_initialize_receiver, 2},
    {"video in",  SHMIPC_open_video_in_channel,  SHMIPC_initialize_sender,   0},
    {"video out", SHMIPC_open_video_out_channel, SHMIPC_initialize_receiver, 3},
};
// clang-format on

void LogConfig(const Row& row, SHMIPC_channel_t* channel) {
  std::string line = std::string("channel ") + row.name;
  const void* blob = SHMIPC_get_config(channel);
  for (int i = 0; blob != nullptr && i < row.words; ++i) {
    std::uint32_t word;
    std::memcpy(&word, static_cast<const unsigned char*>(blob) + sizeof word * static_cast<unsigned>(i),
                sizeof word);
    line += " " + std::to_string(word);
  }
  Log(line);
}

}  // namespace

MediaChannels::MediaChannels() = default;
MediaChannels::~MediaChannels() = default;

void MediaChannels::Close::operator()(SHMIPC_channel_t* channel) const { SHMIPC_close_channel(channel); }

void MediaChannels::Attach() {
  if (m_attached) return;
  m_attached = true;
  for (const Row& row : kRows) {
    std::unique_ptr<SHMIPC_channel_t, Close> channel(row.open(0));
    if (channel == nullptr) {
      Log(std::string("channel ") + row.name + ": " + std::strerror(errno));
      continue;
    }
    LogConfig(row, channel.get());
    if (row.initialize(channel.get()) != 0) {
      Log(std::string("channel ") + row.name + " refuses its role");
      continue;
    }
    m_channels.push_back(std::move(channel));
  }
}

}  // namespace simulator
