#pragma once

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
// Threads: any may write; one reads.
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
  // Handed out in place. Stays untouched until the next Read of this form, whatever is written meanwhile.
  bool Read(unsigned char** data, unsigned* size, unsigned long* timestamp);

  // Forgets all frames.
  void Flush();

  unsigned Count() const;
  // How many frames have been lost since construction.
  unsigned Overruns() const;

 private:
  // The oldest slot, taken out of the ring; null when there is none within the wait.
  CZelhostBufferData* TakeOldest() ZELTO_REQUIRES(m_mutex);
  unsigned Next(unsigned index) const { return index + 1 == m_slotCount ? 0 : index + 1; }

  mutable zelto::Mutex m_mutex{zelto::LockRank::Ring, "media ring"};
  zelto::Condition m_filled;
  unsigned m_readIndex ZELTO_GUARDED_BY(m_mutex) = 0;
  unsigned m_writeIndex ZELTO_GUARDED_BY(m_mutex) = 0;
  unsigned m_count ZELTO_GUARDED_BY(m_mutex) = 0;
  unsigned m_overruns ZELTO_GUARDED_BY(m_mutex) = 0;
  bool m_waiting ZELTO_GUARDED_BY(m_mutex) = false;  // the reader, for a frame
  const unsigned m_slotCount;
  const unsigned m_slotSize;
  std::unique_ptr<CZelhostBufferData[]> m_slots ZELTO_GUARDED_BY(m_mutex);
  std::unique_ptr<unsigned char[]> m_spare ZELTO_GUARDED_BY(m_mutex);  // what the reader was handed last
};
