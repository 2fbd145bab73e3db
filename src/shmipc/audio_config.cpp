// The blob of the audio channels.
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "shmipc/shmipc.h"

namespace {

struct AudioConfig {
  std::uint32_t rate;
  std::uint32_t factor;
  char version[256];  // ended by a zero byte
};
constexpr unsigned kSmallestBlob = 264;
static_assert(sizeof(AudioConfig) == kSmallestBlob);

constexpr char kVersion[] = "v1.0 loopback";

// A data area of 32768 bytes less the blob leaves the ring. Its size grows with five blocks of sound: more
// room would only let sound grow old.
constexpr unsigned kLargestBlob = 32728;
constexpr unsigned kBlocks = 5;

unsigned BlobSize(unsigned rate, unsigned factor) {
  const std::uint64_t ring = std::uint64_t{rate * 10 * factor / 1000} * kBlocks;
  return ring > kLargestBlob - kSmallestBlob ? kSmallestBlob : static_cast<unsigned>(kLargestBlob - ring);
}

}  // namespace

void* AS_resize_channel_conf(unsigned rate, unsigned factor, unsigned* size) {
  const unsigned blobSize = BlobSize(rate, factor);
  void* const blob = std::calloc(1, blobSize);
  if (blob == nullptr) return nullptr;
  AudioConfig config{rate, factor, {}};
  std::memcpy(config.version, kVersion, sizeof kVersion);
  std::memcpy(blob, &config, sizeof config);
  if (size != nullptr) *size = blobSize;
  return blob;
}
