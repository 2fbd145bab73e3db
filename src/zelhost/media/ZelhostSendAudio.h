#pragma once

#include "zelhost/media/MediaSender.h"

// Takes the microphone's sound from the host to the runtime.
class CZelhostSendAudio final : public MediaSender {
 public:
  CZelhostSendAudio();

  // A frame of sound from the host; copied. Any thread, at any time. False: not taken.
  bool PutData(const unsigned char* data, unsigned size);
  void Destroy() override;

 protected:
  // Tells the runtime about the microphones first.
  void Begin() override;
  void Round() override { DeliverAudioData(); }

 private:
  bool DeliverAudioData() { return DeliverFrames(); }
  // In packets; what does not get away in time is dropped with the rest of its frame.
  void SendFrame(const unsigned char* data, unsigned size) override;
};
