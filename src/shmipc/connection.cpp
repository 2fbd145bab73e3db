// What a channel is before packets flow: its blob, its two sides, and how they find each other.
#include <cstdlib>
#include <cstring>

#include "shmipc/lock.h"
#include "shmipc/segment.h"
#include "shmipc/wait.h"

namespace shmipc {

namespace {

constexpr std::uint32_t kSmallestRing = 32;
constexpr std::int64_t kConnectionStep = 250'000'000;  // nanoseconds; a process needs a while to come up

bool IsInitialized(const SHMIPC_channel_t* channel) {
  return channel->sender_initialized != 0 || channel->receiver_initialized != 0;
}

// The ring's size is fixed here; a blob size that comes later changes nothing on this handle.
bool MeasureRing(SHMIPC_channel_t* channel) {
  std::uint32_t configSize = 0;
  if (!ReadConfigSize(channel, &configSize)) return false;
  channel->ring_size = channel->capacity - configSize;
  return true;
}

}  // namespace

}  // namespace shmipc

int SHMIPC_initialize_sender(SHMIPC_channel_t* channel) {
  if (channel == nullptr) return -1;
  const shmipc::ChannelLock lock(channel);
  if (shmipc::IsInitialized(channel) || !shmipc::MeasureRing(channel)) return -1;
  shmipc::PublishWord(shmipc::HeaderOf(channel).senderAttached, 1);
  channel->sender_initialized = 1;
  return 0;
}

int SHMIPC_initialize_receiver(SHMIPC_channel_t* channel) {
  if (channel == nullptr) return -1;
  const shmipc::ChannelLock lock(channel);
  if (shmipc::IsInitialized(channel) || !shmipc::MeasureRing(channel)) return -1;
  channel->batch = static_cast<unsigned char*>(std::malloc(channel->capacity));
  if (channel->batch == nullptr) return -5;
  channel->batch_offset = 0;
  channel->batch_count = 0;
  shmipc::PublishWord(shmipc::HeaderOf(channel).receiverAttached, 1);
  channel->receiver_initialized = 1;
  return 0;
}

int SHMIPC_put_config(SHMIPC_channel_t* channel, const void* blob, unsigned size) {
  if (channel == nullptr || blob == nullptr) return -1;
  const shmipc::ChannelLock lock(channel);
  if (channel->creator == 0 || shmipc::IsInitialized(channel)) return -1;
  const std::uint64_t rounded = shmipc::RoundUp(size);
  if (channel->capacity < rounded + shmipc::kSmallestRing) return -1;
  std::memcpy(shmipc::DataOf(channel) + (channel->capacity - rounded), blob, size);
  shmipc::PublishWord(shmipc::HeaderOf(channel).configSize, static_cast<std::uint32_t>(rounded));
  return 0;
}

void* SHMIPC_get_config(SHMIPC_channel_t* channel) {
  if (channel == nullptr) return nullptr;
  const shmipc::ChannelLock lock(channel);
  std::uint32_t size = 0;
  if (!shmipc::ReadConfigSize(channel, &size) || size == 0) return nullptr;
  return shmipc::DataOf(channel) + (channel->capacity - size);
}

int SHMIPC_wait_for_connection(SHMIPC_channel_t* channel, int timeout) {
  if (channel == nullptr) return -1;
  shmipc::ChannelLock lock(channel);
  if (!shmipc::IsInitialized(channel)) return -2;
  const shmipc::SegmentHeader& header = shmipc::HeaderOf(channel);
  const std::uint32_t& other =
      channel->sender_initialized != 0 ? header.receiverAttached : header.senderAttached;
  shmipc::Wait wait(timeout, shmipc::kConnectionStep);
  while (shmipc::ReadWord(other) == 0) {
    const int result = lock.Outside([&] { return wait.Step(); });
    if (result != 0) return result;
  }
  return 0;
}

void SHMIPC_disable_locking(SHMIPC_channel_t* channel) {
  if (channel == nullptr) return;
  const shmipc::ChannelLock lock(channel);
  channel->locking_disabled = 1;
}
