// Packets through the ring.
#include <algorithm>
#include <cstring>

#include "shmipc/lock.h"
#include "shmipc/segment.h"
#include "shmipc/wait.h"

namespace shmipc {

namespace {

// Both offsets as they were read once; the ring is what lies between them.
struct Offsets {
  std::uint32_t read;
  std::uint32_t write;
};

bool IsInRing(const SHMIPC_channel_t* channel, std::uint32_t offset) {
  return offset < channel->ring_size && offset % kUnit == 0;
}

// False when the other side, or anybody, has put something there that is no place in this ring.
bool ReadOffsets(SHMIPC_channel_t* channel, Offsets* offsets) {
  const SegmentHeader& header = HeaderOf(channel);
  offsets->read = ReadWord(header.readOffset);
  offsets->write = ReadWord(header.writeOffset);
  return IsInRing(channel, offsets->read) && IsInRing(channel, offsets->write);
}

std::uint32_t UnreadSize(const SHMIPC_channel_t* channel, const Offsets& offsets) {
  return offsets.write >= offsets.read ? offsets.write - offsets.read
                                       : channel->ring_size - offsets.read + offsets.write;
}

std::uint32_t Advance(const SHMIPC_channel_t* channel, std::uint32_t offset, std::uint64_t size) {
  const std::uint64_t next = offset + size;
  return static_cast<std::uint32_t>(next >= channel->ring_size ? next - channel->ring_size : next);
}

// What passes the ring's end goes on at its start. `size` is at most the ring's.
void CopyIn(SHMIPC_channel_t* channel, std::uint32_t offset, const void* from, std::uint32_t size) {
  unsigned char* const ring = DataOf(channel);
  const std::uint32_t first = std::min(size, channel->ring_size - offset);
  std::memcpy(ring + offset, from, first);
  if (size > first) std::memcpy(ring, static_cast<const unsigned char*>(from) + first, size - first);
}

void CopyOut(SHMIPC_channel_t* channel, std::uint32_t offset, unsigned char* to, std::uint32_t size) {
  const unsigned char* const ring = DataOf(channel);
  const std::uint32_t first = std::min(size, channel->ring_size - offset);
  std::memcpy(to, ring + offset, first);
  if (size > first) std::memcpy(to + first, ring, size - first);
}

// Waits until the footprint fits; 0 with the offsets at which it does.
int WaitForRoom(SHMIPC_channel_t* channel, ChannelLock& lock, std::uint64_t footprint, int timeout,
                Offsets* offsets) {
  Wait wait(timeout);
  for (;;) {
    if (!ReadOffsets(channel, offsets)) return -1;
    // The ring is never filled to the last unit: equal offsets mean that it is empty.
    if (footprint < channel->ring_size - UnreadSize(channel, *offsets)) return 0;
    const int result = lock.Outside([&] { return wait.Step(); });
    if (result != 0) return result;
  }
}

bool HasBatch(const SHMIPC_channel_t* channel) { return channel->batch_offset != channel->batch_count; }

// Takes everything unread into the batch, so that the sender has all the room again at once.
void FillBatch(SHMIPC_channel_t* channel, const Offsets& offsets) {
  const std::uint32_t size = UnreadSize(channel, offsets);
  CopyOut(channel, offsets.read, channel->batch, size);
  channel->batch_offset = 0;
  channel->batch_count = size;
  PublishWord(HeaderOf(channel).readOffset, offsets.write);
}

// Waits until there is a batch, which another thread may fill while this one waits without the lock.
int WaitForBatch(SHMIPC_channel_t* channel, ChannelLock& lock, int timeout) {
  Wait wait(timeout);
  while (!HasBatch(channel)) {
    Offsets offsets{};
    if (!ReadOffsets(channel, &offsets)) return -1;
    if (offsets.read != offsets.write) {
      FillBatch(channel, offsets);
      continue;
    }
    const int result = lock.Outside([&] { return wait.Step(); });
    if (result != 0) return result;
  }
  return 0;
}

// The batch is this process's own memory, but its content is the other side's: behind a length that goes
// beyond it nothing can be told apart any more, so the rest of the batch is dropped.
SHMIPC_packet_t* NextInBatch(SHMIPC_channel_t* channel) {
  const std::uint32_t left = channel->batch_count - channel->batch_offset;
  auto* const packet = reinterpret_cast<SHMIPC_packet_t*>(channel->batch + channel->batch_offset);
  const std::uint64_t footprint = Footprint(packet->length);
  if (footprint > left) {
    channel->batch_offset = channel->batch_count;
    return nullptr;
  }
  channel->batch_offset += static_cast<std::uint32_t>(footprint);
  return packet;
}

SHMIPC_packet_t* Receive(SHMIPC_channel_t* channel, int timeout, int* error) {
  ChannelLock lock(channel);
  *error = WaitForBatch(channel, lock, timeout);
  if (*error != 0) return nullptr;
  SHMIPC_packet_t* const packet = NextInBatch(channel);
  if (packet == nullptr) *error = -1;
  return packet;
}

}  // namespace

}  // namespace shmipc

int SHMIPC_send_packet(SHMIPC_channel_t* channel, const SHMIPC_packet_t* packet, const void* payload,
                       int timeout) {
  if (channel == nullptr || packet == nullptr) return -1;
  if (channel->sender_initialized == 0) return -2;
  const SHMIPC_packet_t head = *packet;
  const std::uint64_t footprint = shmipc::Footprint(head.length);
  if (footprint >= channel->ring_size) return -1;
  shmipc::ChannelLock lock(channel);
  shmipc::Offsets offsets{};
  const int result = shmipc::WaitForRoom(channel, lock, footprint, timeout, &offsets);
  if (result != 0) return result;
  if (payload == nullptr) payload = packet + 1;
  shmipc::CopyIn(channel, offsets.write, &head, sizeof head);
  const std::uint32_t behind = shmipc::Advance(channel, offsets.write, sizeof head);
  if (head.length > 0) shmipc::CopyIn(channel, behind, payload, head.length);
  shmipc::PublishWord(shmipc::HeaderOf(channel).writeOffset,
                      shmipc::Advance(channel, offsets.write, footprint));
  return 0;
}

SHMIPC_packet_t* SHMIPC_recv_packet(SHMIPC_channel_t* channel, int timeout, int* error) {
  int ignored = 0;
  int& result = error != nullptr ? *error : ignored;
  if (channel == nullptr) {
    result = -1;
    return nullptr;
  }
  if (channel->receiver_initialized == 0) {
    result = -2;
    return nullptr;
  }
  return shmipc::Receive(channel, timeout, &result);
}
