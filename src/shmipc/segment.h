// The shared segment: its header, its units, and how its words are read and written.
#pragma once

#include <cstddef>
#include <cstdint>

#include "shmipc/shmipc.h"

namespace shmipc {

// What stands at the segment's start, followed by the data area of `capacity` bytes: the packet ring, then
// the configuration blob. Both processes may write every word at any time; each word has one rightful
// writer.
struct SegmentHeader {
  std::uint32_t capacity;          // by the creator, once
  std::uint32_t readOffset;        // by the receiver: the next unread byte of the ring
  std::uint32_t writeOffset;       // by the sender: where the next packet goes
  std::uint32_t configSize;        // by the creator
  std::uint32_t senderAttached;    // 1 once the sending side has initialised
  std::uint32_t receiverAttached;  // 1 once the receiving side has initialised
  std::uint32_t reserved[2];
};
constexpr std::uint32_t kHeaderSize = 32;
static_assert(sizeof(SegmentHeader) == kHeaderSize);
static_assert(sizeof(SHMIPC_packet_t) == 8);

// Segments, rings, blobs and packets are measured in these units, so a packet's header never straddles
// the ring's end.
constexpr std::uint32_t kUnit = 16;

constexpr std::uint64_t RoundUp(std::uint64_t size) { return (size + kUnit - 1) / kUnit * kUnit; }

// The room that a packet takes in the ring.
constexpr std::uint64_t Footprint(std::uint32_t length) {
  return RoundUp(std::uint64_t{length} + sizeof(SHMIPC_packet_t));
}

// Every use of a word starts with one reading of it; the copy is what is checked and used. What is behind a
// word is read after it.
inline std::uint32_t ReadWord(const std::uint32_t& word) { return __atomic_load_n(&word, __ATOMIC_ACQUIRE); }

// Everything read and written before is finished before the other side can see the word: a full barrier in
// front of the store on the television's processor, and nothing on one that keeps that order anyway.
inline void PublishWord(std::uint32_t& word, std::uint32_t value) {
  __atomic_store_n(&word, value, __ATOMIC_RELEASE);
}

inline SegmentHeader& HeaderOf(SHMIPC_channel_t* channel) {
  return *static_cast<SegmentHeader*>(channel->segment);
}

inline unsigned char* DataOf(SHMIPC_channel_t* channel) {
  return static_cast<unsigned char*>(channel->segment) + kHeaderSize;
}

// The blob's size by the header; false when the word is no multiple of the unit or above the capacity.
inline bool ReadConfigSize(SHMIPC_channel_t* channel, std::uint32_t* size) {
  *size = ReadWord(HeaderOf(channel).configSize);
  return *size % kUnit == 0 && *size <= channel->capacity;
}

}  // namespace shmipc
