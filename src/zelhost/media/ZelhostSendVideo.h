#pragma once

#include <atomic>

#include "zelhost/media/MediaSender.h"

// Takes the camera's pictures from the host to the runtime, and asks the far end for key frames.
class CZelhostSendVideo final : public MediaSender {
 public:
  CZelhostSendVideo();

  // A picture from the host; copied, its first four bytes overwritten with the time stamp. Any thread, at any
  // time. False: not taken.
  bool PutData(unsigned char* data, unsigned size, unsigned long timestamp);
  // Asks for a key frame now, and twice more while the sender runs. Whether the thread runs or not.
  void SendKeyFrameRequest();

 protected:
  void Begin() override;
  void Round() override;

 private:
  bool t_DeliverVideoData() { return DeliverFrames(); }
  void SendFrame(const unsigned char* data, unsigned size) override;
  // Used by the thread and by whoever asks for a key frame.
  int Send(unsigned type, const unsigned char* data, unsigned size);
  void RepeatKeyFrameRequest();

  zelto::Mutex m_sendLock{zelto::LockRank::Leaf, "video out channel"};
  std::atomic<bool> m_keyFrameRequested{false};
  int m_roundsSinceRequest = 0;
};
