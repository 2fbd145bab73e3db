// Sound as microphone and speaker exchange it with the engine.
#pragma once

#include <cstddef>
#include <cstdint>

namespace television {

using Sample = std::int16_t;  // one channel

inline constexpr int kSamplesPerSecond = 48000;
inline constexpr int kPacketsPerSecond = 100;
inline constexpr std::size_t kPacketSamples = kSamplesPerSecond / kPacketsPerSecond;
inline constexpr std::size_t kPacketSize = kPacketSamples * sizeof(Sample);
inline constexpr std::size_t kBytesPerSecond = kSamplesPerSecond * sizeof(Sample);

}  // namespace television
