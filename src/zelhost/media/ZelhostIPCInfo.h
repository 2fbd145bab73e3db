#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

#include "Common/Locks.h"

// One frame of a ring.
struct CZelhostBufferData {
  std::unique_ptr<unsigned char[]> data;
  unsigned size = 0;
  unsigned long timestamp = 0;
};

// A bounded ring of frames between the host's data thread and a sender: a full ring loses its oldest frame,
// never the new one. All memory is allocated at construction and touched only as frames need it.
//
// Neither side waits for the other's copying: each owns one block beside the ring's and trades it for the one
// in a slot with a single exchange of the slot's word, which says whose turn, which block, and whether it is
// filled. A frame that is lost leaves its block to the writer.
// Threads: one writes at a time, one reads; Count and Overruns from any.
class CZelhostBuffer {
 public:
  // Ends the process when memory is short: the engine can't carry a call without it.
  CZelhostBuffer(int slotSize, int slotCount);
  CZelhostBuffer(const CZelhostBuffer&) = delete;
  CZelhostBuffer& operator=(const CZelhostBuffer&) = delete;

  // Copies the frame. False for null data, a size of 0 or above the slots', and a ring without slots.
  bool Write(const unsigned char* data, unsigned size, unsigned long timestamp);

  // The oldest frame; waits up to 30 ms for one, then answers false.
  // Copied to the caller, who has room for a slot.
  bool Read(unsigned char* data, unsigned* size, unsigned long* timestamp);
  // Handed out in place. Stays untouched until the next Read, whatever is written meanwhile.
  bool Read(unsigned char** data, unsigned* size, unsigned long* timestamp);

  // Forgets the frames written so far. For the reading side.
  void Flush();

  unsigned Count() const;
  // How many frames have been lost since construction.
  unsigned Overruns() const { return m_overruns.load(std::memory_order_relaxed); }

 private:
  using Word = std::uint64_t;

  // The oldest frame, now the reader's block; null when there is none.
  CZelhostBufferData* Take();
  CZelhostBufferData* TakeWithin30ms();
  unsigned Next(unsigned slot) const { return slot + 1 == m_slotCount ? 0 : slot + 1; }

  const unsigned m_slotCount;
  const unsigned m_slotSize;
  std::unique_ptr<CZelhostBufferData[]> m_blocks;  // the slots', the writer's and the reader's
  std::unique_ptr<std::atomic<Word>[]> m_slots;
  unsigned m_writersBlock;
  unsigned m_readersBlock;
  unsigned m_writersSlot = 0;  // of the turns below
  unsigned m_readersSlot = 0;
  std::atomic<std::uint64_t> m_written{0};  // turns
  std::atomic<std::uint64_t> m_read{0};     // the next turn to read; behind the oldest frame after a loss
  std::atomic<unsigned> m_overruns{0};

  zelto::Mutex m_mutex{zelto::LockRank::Leaf, "media ring"};  // for the wait only
  zelto::Condition m_filled;
  std::atomic<bool> m_waiting{false};  // the reader, for a frame
};
