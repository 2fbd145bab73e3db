// What calls and voicemails ask of the sound and pictures.
#pragma once

#include <cstdint>

namespace simulator {

// What the far end lets the television hear and see.
enum class FarSound { None, Echo, Tone };
enum class FarPicture { None, Echo, TestPicture };

struct MediaCounts {
  std::uint64_t soundIn = 0;  // packets from the engine
  std::uint64_t soundOut = 0;
  std::uint64_t picturesIn = 0;
  std::uint64_t picturesOut = 0;
  std::uint64_t picturesDropped = 0;  // the engine took too long
  std::uint64_t keyFrameRequests = 0;
};

// The far end's side of a call's media. Operations return at once; what they change takes effect within one
// packet.
// Threads: called by the event loop's only thread.
class MediaPort {
 public:
  virtual ~MediaPort() = default;

  // Sound flows from now on: announces the beginning to the engine, then plays what is asked for.
  virtual void BeginSound(FarSound sound) = 0;
  // The same for a recording: each number has a melody of its own, which goes on until another sound begins
  // or the sound ends.
  virtual void PlayRecording(unsigned number) = 0;
  virtual void EndSound() = 0;
  // The far end's picture begins, with the record of the frames' shape, or changes; None ends it.
  virtual void ShowPicture(FarPicture picture) = 0;
  // From 0 to 10: how loud the engine's microphone has been lately.
  virtual int VoiceLevel() const = 0;
  virtual MediaCounts Counts() const = 0;
};

}  // namespace simulator
