#include "zelhost/ZelhostIPCInfo.h"

#include <cerrno>
#include <cstring>
#include <new>
#include <utility>

#include "Common/Assert.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "zelhost/MediaLimits.h"

namespace {

constexpr std::int64_t kReadWait = zelhost::kRingWait * zelto::kNanosecondsPerMillisecond;

unsigned NotNegative(int number) { return number > 0 ? static_cast<unsigned>(number) : 0; }

std::unique_ptr<unsigned char[]> NewBlock(unsigned size) {
  std::unique_ptr<unsigned char[]> block(new (std::nothrow) unsigned char[size]);
  if (block == nullptr) ZELTO_FATAL("Zelto malloc error: %s", std::strerror(errno));
  ZELTO_ASSERT(block != nullptr);
  return block;
}

}  // namespace

CZelhostBuffer::CZelhostBuffer(int slotSize, int slotCount)
    : m_slotCount(NotNegative(slotCount)),
      m_slotSize(NotNegative(slotSize)),
      m_slots(new (std::nothrow) CZelhostBufferData[m_slotCount]),
      m_spare(NewBlock(m_slotSize)) {
  if (m_slots == nullptr) ZELTO_FATAL("Zelto RingBuffer malloc error: %s", std::strerror(errno));
  ZELTO_ASSERT(m_slots != nullptr);
  for (unsigned i = 0; i < m_slotCount; ++i) m_slots[i].data = NewBlock(m_slotSize);
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
  bool wanted = false;
  {
    zelto::MutexLock lock(m_mutex);
    CZelhostBufferData& slot = m_slots[m_writeIndex];
    std::memcpy(slot.data.get(), data, size);
    slot.size = size;
    slot.timestamp = timestamp;
    m_writeIndex = Next(m_writeIndex);
    if (m_count < m_slotCount) {
      ++m_count;
    } else {
      ZELTO_WARNING("RingBuffer[%p] read thread is too slow\n", static_cast<void*>(this));
      ++m_overruns;
      m_readIndex = Next(m_readIndex);
    }
    wanted = m_waiting;
  }
  if (wanted) m_filled.NotifyAll();
  return true;
}

CZelhostBufferData* CZelhostBuffer::TakeOldest() {
  if (m_count == 0) {
    m_waiting = true;
    m_filled.WaitByWallClock(m_mutex, kReadWait);
    m_waiting = false;
    if (m_count == 0) return nullptr;
  }
  CZelhostBufferData* const slot = &m_slots[m_readIndex];
  --m_count;
  m_readIndex = Next(m_readIndex);
  return slot;
}

bool CZelhostBuffer::Read(unsigned char* data, unsigned* size, unsigned long* timestamp) {
  zelto::MutexLock lock(m_mutex);
  const CZelhostBufferData* const slot = TakeOldest();
  if (slot == nullptr) return false;
  std::memcpy(data, slot->data.get(), slot->size);
  *size = slot->size;
  *timestamp = slot->timestamp;
  return true;
}

bool CZelhostBuffer::Read(unsigned char** data, unsigned* size, unsigned long* timestamp) {
  zelto::MutexLock lock(m_mutex);
  CZelhostBufferData* const slot = TakeOldest();
  if (slot == nullptr) return false;
  std::swap(slot->data, m_spare);
  *data = m_spare.get();
  *size = slot->size;
  *timestamp = slot->timestamp;
  return true;
}

void CZelhostBuffer::Flush() {
  ZELTO_DEBUG("Flush Ringbuffer[%p]\n", static_cast<void*>(this));
  zelto::MutexLock lock(m_mutex);
  m_readIndex = 0;
  m_writeIndex = 0;
  m_count = 0;
}

unsigned CZelhostBuffer::Count() const {
  zelto::MutexLock lock(m_mutex);
  return m_count;
}

unsigned CZelhostBuffer::Overruns() const {
  zelto::MutexLock lock(m_mutex);
  return m_overruns;
}
