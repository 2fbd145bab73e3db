// The runtime's ends of the four shared-memory channels.
#pragma once

#include <memory>
#include <vector>

struct SHMIPC_channel_t;

namespace simulator {

// Attaches in the roles opposite to the engine's. A channel that is not there is logged and done without.
// Threads: none of its own.
class MediaChannels {
 public:
  MediaChannels();
  ~MediaChannels();
  MediaChannels(const MediaChannels&) = delete;
  MediaChannels& operator=(const MediaChannels&) = delete;

  // Attaches to what the engine has created and logs what it left there; a second call does nothing.
  void Attach();

 private:
  struct Close {
    void operator()(SHMIPC_channel_t* channel) const;
  };

  bool m_attached = false;
  std::vector<std::unique_ptr<SHMIPC_channel_t, Close>> m_channels;
};

}  // namespace simulator
