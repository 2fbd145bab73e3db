#include "zelhost/media/ZelhostIPCInfo.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>

#include "Common/Assert.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "zelhost/media/MediaLimits.h"

namespace {

constexpr std::int64_t kReadWait = zelhost::kRingWait * zelto::kNanosecondsPerMillisecond;

// A slot's word: the turn of the frame, its block, and whether it is filled.
constexpr unsigned kFilled = 1;
constexpr unsigned kTurnShift = 16;
constexpr unsigned kMostSlots = 1u << 14;

constexpr std::uint64_t Filled(std::uint64_t turn, unsigned block) {
  return turn << kTurnShift | block << 1 | kFilled;
}
constexpr std::uint64_t Empty(unsigned block) { return block << 1; }
constexpr bool IsFilled(std::uint64_t word) { return (word & kFilled) != 0; }
constexpr unsigned BlockOf(std::uint64_t word) {
  return static_cast<unsigned>(word >> 1 & (kMostSlots * 2 - 1));
}
constexpr std::uint64_t TurnOf(std::uint64_t word) { return word >> kTurnShift; }

unsigned Slots(int number) { return number > 0 ? std::min(static_cast<unsigned>(number), kMostSlots) : 0; }

std::unique_ptr<unsigned char[]> NewBlock(unsigned size) {
  std::unique_ptr<unsigned char[]> block(new (std::nothrow) unsigned char[size]);
  if (block == nullptr) ZELTO_FATAL("Zelto malloc error: %s", std::strerror(errno));
  ZELTO_ASSERT(block != nullptr);
  return block;
}

}  // namespace

CZelhostBuffer::CZelhostBuffer(int slotSize, int slotCount)
    : m_slotCount(Slots(slotCount)),
      m_slotSize(slotSize > 0 ? static_cast<unsigned>(slotSize) : 0),
      m_blocks(new (std::nothrow) CZelhostBufferData[m_slotCount + 2]),
      m_slots(new (std::nothrow) std::atomic<Word>[m_slotCount]),
      m_writersBlock(m_slotCount),
      m_readersBlock(m_slotCount + 1) {
  const bool allocated = m_blocks != nullptr && m_slots != nullptr;
  if (!allocated) ZELTO_FATAL("Zelto RingBuffer malloc error: %s", std::strerror(errno));
  ZELTO_ASSERT(allocated);
  for (unsigned i = 0; i < m_slotCount + 2; ++i) m_blocks[i].data = NewBlock(m_slotSize);
  for (unsigned i = 0; i < m_slotCount; ++i) m_slots[i] = Empty(i);
}

bool CZelhostBuffer::Write(const unsigned char* data, unsigned size, unsigned long timestamp) {
  if (data == nullptr || size == 0 || size > m_slotSize) {
    ZELTO_FATAL("Invalid data[%p:%u] for RingBuffer[%p]\n", static_cast<const void*>(data), size,
                static_cast<void*>(this));
    return false;
  }
  if (m_slotCount == 0) {
    ZELTO_FATAL("RingBuffer[%p] has no buffer\n", static_cast<void*>(this));
    return false;
  }
  CZelhostBufferData& block = m_blocks[m_writersBlock];
  std::memcpy(block.data.get(), data, size);
  block.size = size;
  block.timestamp = timestamp;
  const std::uint64_t turn = m_written.load(std::memory_order_relaxed);
  const Word before = m_slots[m_writersSlot].exchange(Filled(turn, m_writersBlock));
  m_writersBlock = BlockOf(before);
  m_writersSlot = Next(m_writersSlot);
  m_written.store(turn + 1, std::memory_order_release);
  if (IsFilled(before)) {
    ZELTO_WARNING("RingBuffer[%p] read thread is too slow\n", static_cast<void*>(this));
    m_overruns.fetch_add(1, std::memory_order_relaxed);
  }
  // The reader says that it waits before it looks for the last time, so one of the two sees the other.
  if (m_waiting) {
    zelto::MutexLock lock(m_mutex);
    m_filled.NotifyAll();
  }
  return true;
}

CZelhostBufferData* CZelhostBuffer::Take() {
  if (m_slotCount == 0) return nullptr;
  std::uint64_t turn = m_read.load(std::memory_order_relaxed);
  while (true) {
    std::atomic<Word>& slot = m_slots[m_readersSlot];
    Word word = slot.load();
    if (!IsFilled(word)) break;
    if (TurnOf(word) != turn) {
      // The writer has lapped: the oldest frame of those left is in the next slot.
      turn = TurnOf(word) - m_slotCount + 1;
      m_readersSlot = Next(m_readersSlot);
    } else if (slot.compare_exchange_strong(word, Empty(m_readersBlock))) {
      m_readersBlock = BlockOf(word);
      m_readersSlot = Next(m_readersSlot);
      m_read.store(turn + 1, std::memory_order_relaxed);
      return &m_blocks[m_readersBlock];
    }
  }
  m_read.store(turn, std::memory_order_relaxed);
  return nullptr;
}

CZelhostBufferData* CZelhostBuffer::TakeWithin30ms() {
  if (CZelhostBufferData* block = Take()) return block;
  zelto::MutexLock lock(m_mutex);
  m_waiting = true;
  CZelhostBufferData* block = Take();
  if (block == nullptr) m_filled.WaitByWallClock(m_mutex, kReadWait);
  m_waiting = false;
  return block != nullptr ? block : Take();
}

bool CZelhostBuffer::Read(unsigned char* data, unsigned* size, unsigned long* timestamp) {
  const CZelhostBufferData* const block = TakeWithin30ms();
  if (block == nullptr) return false;
  std::memcpy(data, block->data.get(), block->size);
  *size = block->size;
  *timestamp = block->timestamp;
  return true;
}

bool CZelhostBuffer::Read(unsigned char** data, unsigned* size, unsigned long* timestamp) {
  const CZelhostBufferData* const block = TakeWithin30ms();
  if (block == nullptr) return false;
  *data = block->data.get();
  *size = block->size;
  *timestamp = block->timestamp;
  return true;
}

void CZelhostBuffer::Flush() {
  ZELTO_DEBUG("Flush Ringbuffer[%p]\n", static_cast<void*>(this));
  const std::uint64_t end = m_written.load(std::memory_order_acquire);
  while (m_read.load(std::memory_order_relaxed) < end && Take() != nullptr) {
  }
}

unsigned CZelhostBuffer::Count() const {
  const std::uint64_t read = m_read.load(std::memory_order_relaxed);
  const std::uint64_t written = m_written.load(std::memory_order_acquire);
  return static_cast<unsigned>(std::min<std::uint64_t>(written > read ? written - read : 0, m_slotCount));
}
