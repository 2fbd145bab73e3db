// The numbers that the call's sound and pictures live by. Waits in milliseconds.
#pragma once

namespace zelhost {

// Rings from the host: four frames of sound are 40 ms, and no picture of a camera comes near a MiB.
inline constexpr int kAudioFrameSize = 960;  // 10 ms of 48 kHz, mono, 16 bit; also the largest packet sent
inline constexpr int kVideoFrameSize = 1'048'576;
inline constexpr int kRingSlots = 4;
inline constexpr int kRingWait = 30;  // a sender notices a stop without a frame

// Receivers: how long a poll lasts, and the pause after one that brought nothing usable.
inline constexpr int kAudioPoll = 200;
inline constexpr int kActiveAudioPoll = 100;  // while the far end's sound plays
inline constexpr int kVideoPoll = 250;
inline constexpr int kAudioPause = 5;
inline constexpr int kVideoPause = 20;

// Sound that the host has not yet played: above 40 ms the receiver holds back.
inline constexpr unsigned kQueuedSoundLimit = 3840;
inline constexpr int kHoldBack = 10;

// Senders. Late sound is worthless; a picture may wait a little for a runtime that is busy.
inline constexpr int kEmptyRingPause = 20;
inline constexpr int kAudioSendWait = 5;
inline constexpr int kVideoSendWait = 250;
// Packets that must arrive are tried again and again for so long, so that a stop is noticed in between.
inline constexpr int kLastingSendWait = 100;

// Between two looks at a body that has been asked to stop.
inline constexpr int kStopStep = 20;

// A key frame is asked for again after so many rounds of the sender, in case the request was lost.
inline constexpr int kSecondKeyFrameRound = 50;
inline constexpr int kThirdKeyFrameRound = 150;

// Microseconds in which the received bits are counted.
inline constexpr unsigned kQualityWindow = 1'000'000;

}  // namespace zelhost
