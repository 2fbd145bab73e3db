#include "simulator/runtime/media/Media.h"

#include "shmipc/segment.h"
#include "simulator/runtime/media/PacketTypes.h"

namespace simulator {

void Media::Attach() {
  if (m_channels.IsAttached()) return;
  m_channels.Attach();
  m_sound.Start(m_channels.Get(MediaChannel::AudioIn), m_channels.Get(MediaChannel::AudioOut));
  m_pictures.Start(m_channels.Get(MediaChannel::VideoIn), m_channels.Get(MediaChannel::VideoOut));
}

void Media::Detach() {
  m_sound.Stop();
  m_pictures.Stop();
  m_channels.Detach();
}

MediaCounts Media::Counts() const {
  MediaCounts counts;
  counts.soundIn = m_sound.Received();
  counts.soundOut = m_sound.Sent();
  counts.picturesIn = m_pictures.Received();
  counts.picturesOut = m_pictures.Sent();
  counts.picturesDropped = m_pictures.Dropped();
  counts.keyFrameRequests = m_pictures.KeyFrameRequests();
  return counts;
}

void Media::SetMicVolume(std::uint32_t selector, std::uint32_t volume) {
  const std::uint32_t words[] = {selector, volume};
  m_sound.Send(packet::kMicVolume, words, sizeof words);
}

bool Media::SendPacket(MediaChannel channel, std::uint32_t type, const std::string& payload) {
  if (!IsAttached(channel)) return false;
  if (channel == MediaChannel::AudioIn) {
    m_sound.Send(type, payload.data(), payload.size());
  } else if (channel == MediaChannel::VideoIn) {
    m_pictures.Send(type, payload.data(), payload.size());
  } else {
    return false;
  }
  return true;
}

void Media::Stall(bool stalled) {
  m_sound.Stall(stalled);
  m_pictures.Stall(stalled);
}

bool Media::SetHeaderWord(MediaChannel channel, std::size_t word, std::uint32_t value) {
  SHMIPC_channel_t* const handle = m_channels.Get(channel);
  if (handle == nullptr || word >= shmipc::kHeaderSize / sizeof value) return false;
  shmipc::PublishWord(static_cast<std::uint32_t*>(handle->segment)[word], value);
  return true;
}

}  // namespace simulator
