#include "simulator/runtime/media/MediaChannels.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>

#include "shmipc/segment.h"
#include "shmipc/shmipc.h"
#include "simulator/runtime/Log.h"

namespace simulator {
namespace {

struct Row {
  SHMIPC_channel_t* (*open)(int create);
  int (*initialize)(SHMIPC_channel_t* channel);
  std::size_t words;  // 32-bit values at the beginning of the engine's blob
  std::size_t text;   // the longest text behind them
};

// In the order of the channels' numbers.
// clang-format off
constexpr Row kRows[kMediaChannels] = {
    {SHMIPC_open_audio_in_channel,  SHMIPC_initialize_sender,   2, 255},
    {SHMIPC_open_audio_out_channel, SHMIPC_initialize_receiver, 2, 255},
    {SHMIPC_open_video_in_channel,  SHMIPC_initialize_sender,   0,   0},
    {SHMIPC_open_video_out_channel, SHMIPC_initialize_receiver, 3,   0},
};
// clang-format on

// A copy, since the engine may write there at any time.
std::string BlobOf(SHMIPC_channel_t* channel, std::size_t most) {
  const auto* blob = static_cast<const char*>(SHMIPC_get_config(channel));
  if (blob == nullptr) return {};
  const char* end = reinterpret_cast<const char*>(shmipc::DataOf(channel)) + channel->capacity;
  return {blob, std::min(most, static_cast<std::size_t>(end - blob))};
}

std::string InWords(const Row& row, const std::string& blob) {
  std::string words;
  std::size_t at = 0;
  for (std::size_t i = 0; i < row.words && at + sizeof(std::uint32_t) <= blob.size(); ++i) {
    std::uint32_t word;
    std::memcpy(&word, blob.data() + at, sizeof word);
    words += " " + std::to_string(word);
    at += sizeof word;
  }
  if (at < blob.size() && row.text > 0) words += " ";
  for (; at < blob.size() && row.text > 0 && blob[at] != '\0'; ++at) {
    words += blob[at] >= ' ' && blob[at] <= '~' ? blob[at] : '?';
  }
  return words;
}

}  // namespace

MediaChannels::MediaChannels() = default;
MediaChannels::~MediaChannels() = default;

void MediaChannels::Close::operator()(SHMIPC_channel_t* channel) const { SHMIPC_close_channel(channel); }

void MediaChannels::Attach() {
  if (m_attached) return;
  m_attached = true;
  for (std::size_t i = 0; i < kMediaChannels; ++i) {
    const Row& row = kRows[i];
    const std::string name = std::string("channel ") + kMediaChannelNames[i].name;
    std::unique_ptr<SHMIPC_channel_t, Close> channel(row.open(0));
    if (channel == nullptr) {
      Log(name + ": " + std::strerror(errno));
      continue;
    }
    Log(name + InWords(row, BlobOf(channel.get(), row.words * sizeof(std::uint32_t) + row.text)));
    SHMIPC_disable_locking(channel.get());
    if (row.initialize(channel.get()) != 0) {
      Log(name + " refuses its role");
      continue;
    }
    m_channels[i] = std::move(channel);
  }
}

void MediaChannels::Detach() {
  for (auto& channel : m_channels) channel.reset();
  m_attached = false;
}

SHMIPC_channel_t* MediaChannels::Get(MediaChannel channel) const {
  return m_channels[static_cast<std::size_t>(channel)].get();
}

}  // namespace simulator
