// The packets that travel on the four channels. The names tell the direction as the engine sees it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace simulator::packet {

// On every channel: sound, or a frame (four bytes of time stamp, then the picture).
constexpr std::uint32_t kMedia = 4;

constexpr std::uint32_t kSoundBegins = 2;       // audio in
constexpr std::uint32_t kSoundEnds = 3;         // audio in
constexpr std::uint32_t kMicVolume = 5;         // audio in: selector, volume 0..65535
constexpr std::uint32_t kMicConfiguration = 8;  // audio out: beamformer mode, two distances in centimetres
constexpr std::uint32_t kShape = 0;             // video in: width and height
constexpr std::uint32_t kKeyFrameRequest = 9;   // video out

// Ten milliseconds: 48 kHz, one channel, 16 bit. The engine sends no larger ones.
constexpr std::size_t kSoundSize = 960;
constexpr std::size_t kTimeStampSize = 4;

}  // namespace simulator::packet
