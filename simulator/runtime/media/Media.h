// The media side of the runtime: the shared-memory channels and what flows through them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "simulator/runtime/media/MediaChannels.h"
#include "simulator/runtime/media/MediaPort.h"
#include "simulator/runtime/media/PictureLine.h"
#include "simulator/runtime/media/SoundLine.h"

namespace simulator {

// Without an engine, and on channels that are not there, everything is accepted and nothing flows.
// Threads: four of its own between Attach and Detach, one for each channel, and one more for each of tone
// and test picture. The operations belong to the event loop's thread.
class Media : public MediaPort {
 public:
  // Attaches to the engine's channels and begins to read; does nothing while attached.
  void Attach();
  // Ends sound and pictures, waits for the threads (a few tens of milliseconds), and leaves the channels.
  void Detach();

  void BeginSound(FarSound sound) override { m_sound.Begin(sound); }
  void PlayRecording(unsigned number) override { m_sound.Play(number); }
  void EndSound() override { m_sound.End(); }
  void ShowPicture(FarPicture picture) override { m_pictures.Show(picture); }
  int VoiceLevel() const override { return m_sound.VoiceLevel(); }
  MediaCounts Counts() const override;

  // For orders. Whether the channel is there:
  bool IsAttached(MediaChannel channel) const { return m_channels.Get(channel) != nullptr; }
  std::uint64_t SoundDropped() const { return m_sound.Dropped(); }
  std::optional<Microphones> TheMicrophones() const { return m_sound.TheMicrophones(); }
  // Asks the engine to change the volume, 0 to 65535, of its microphone (selector 0).
  void SetMicVolume(std::uint32_t selector, std::uint32_t volume);
  // Any packet at all. False for a channel on which the engine sends, or which is not there.
  bool SendPacket(MediaChannel channel, std::uint32_t type, const std::string& payload);
  // Stops reading what the engine sends.
  void Stall(bool stalled);
  // Puts a value into one of the channel's eight header words. False when there is no such channel or word.
  bool SetHeaderWord(MediaChannel channel, std::size_t word, std::uint32_t value);

 private:
  MediaChannels m_channels;  // outlives the lines
  SoundLine m_sound;
  PictureLine m_pictures;
};

}  // namespace simulator
