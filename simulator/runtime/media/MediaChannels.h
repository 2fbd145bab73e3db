// The runtime's ends of the four shared-memory channels.
#pragma once

#include <array>
#include <memory>
#include <string>

struct SHMIPC_channel_t;

namespace simulator {

// The names tell the direction as the engine sees it: the runtime sends on the first of each pair.
enum class MediaChannel { AudioIn, AudioOut, VideoIn, VideoOut };
constexpr std::size_t kMediaChannels = 4;

struct MediaChannelName {
  const char* name;
  MediaChannel channel;
};
constexpr MediaChannelName kMediaChannelNames[kMediaChannels] = {
    {"audio-in", MediaChannel::AudioIn},
    {"audio-out", MediaChannel::AudioOut},
    {"video-in", MediaChannel::VideoIn},
    {"video-out", MediaChannel::VideoOut},
};

// Attaches in the roles opposite to the engine's. A channel that is not there is logged and done without.
// Threads: none of its own; each channel is for one thread at a time.
class MediaChannels {
 public:
  MediaChannels();
  ~MediaChannels();
  MediaChannels(const MediaChannels&) = delete;
  MediaChannels& operator=(const MediaChannels&) = delete;

  // Attaches to what the engine has created and logs what it left there; does nothing while attached.
  void Attach();
  // Nobody may use a channel any more.
  void Detach();

  // Whether it has been tried; each channel may be missing all the same.
  bool IsAttached() const { return m_attached; }
  // Null when it is not there. Valid until Detach().
  SHMIPC_channel_t* Get(MediaChannel channel) const;

 private:
  struct Close {
    void operator()(SHMIPC_channel_t* channel) const;
  };

  bool m_attached = false;
  std::array<std::unique_ptr<SHMIPC_channel_t, Close>, kMediaChannels> m_channels;
};

}  // namespace simulator
