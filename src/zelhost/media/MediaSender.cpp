#include "zelhost/media/MediaSender.h"

#include <fcntl.h>

#include "Common/DevicePath.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "zelhost/media/MediaLimits.h"

MediaSender::~MediaSender() {
  t_StopDump();
  delete m_buffer.load();
}

void MediaSender::Initialize() {
  if (CZelhostBuffer* buffer = m_buffer.load()) {
    buffer->Flush();
  } else {
    m_buffer = new CZelhostBuffer(m_kind.slotSize, zelhost::kRingSlots);
  }
}

void MediaSender::Destroy() {
  MediaThread::Destroy();
  t_StopDump();
}

CZelhostBuffer* MediaSender::RingFor(const unsigned char* data, unsigned size) const {
  CZelhostBuffer* const buffer = m_buffer.load();
  if (buffer == nullptr) {
    ZELTO_FATAL("%s::PutData >> m_pBuffer is NULL ", m_kind.owner);
    return nullptr;
  }
  if (data == nullptr || size == 0) {
    ZELTO_FATAL("%s::PutData >> data is NULL ", m_kind.owner);
    return nullptr;
  }
  ZELTO_DEBUG("%s::PutData >>> size=%u \n", m_kind.owner, size);
  return buffer;
}

bool MediaSender::Put(CZelhostBuffer& ring, const unsigned char* data, unsigned size,
                      unsigned long timestamp) {
  zelto::MutexLock lock(m_putLock);
  return ring.Write(data, size, timestamp);
}

// A host that never pauses would keep the ring filled for ever, so a stop is looked for at each frame.
bool MediaSender::DeliverFrames() {
  CZelhostBuffer& buffer = *m_buffer.load();
  unsigned char* data = nullptr;
  unsigned size = 0;
  unsigned long timestamp = 0;
  if (!buffer.Read(&data, &size, &timestamp)) {
    ZELTO_DEBUG("[%s] m_pBuffer(%u) is not available!!!\n", m_kind.delivery, buffer.Count());
    zelto::SleepMilliseconds(zelhost::kEmptyRingPause);
    return true;
  }
  do {
    if (Channel() == nullptr) {
      ZELTO_FATAL("[Deliver%sData] %s Channel did not open!!!!", m_kind.medium, m_kind.medium);
      return false;
    }
    if (m_dumpEnabled && !Dump(data, size)) return false;
    SendFrame(data, size);
  } while (IsRunning() && buffer.Count() > 0 && buffer.Read(&data, &size, &timestamp));
  return true;
}

void MediaSender::t_StartDump() {
  if (!m_dumpEnabled) return;
  if (m_dump >= 0) {
    ZELTO_DEBUG("%s::StartDump >>  Already file was opened", m_kind.owner);
    return;
  }
  ZELTO_DEBUG("%s::t_StartDump", m_kind.owner);
  const std::string path = zelto::DevicePath(m_kind.dumpFile);
  m_dump = zelto::System().Open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
}

void MediaSender::t_StopDump() {
  if (m_dump < 0) return;
  ZELTO_DEBUG("%s::StopDump >> Close file", m_kind.owner);
  zelto::System().Close(m_dump);
  m_dump = -1;
}

// A dump is for finding faults: what a full disk does not take is lost, the call goes on.
bool MediaSender::Dump(const unsigned char* data, unsigned size) const {
  if (m_dump < 0) {
    ZELTO_FATAL("%s >> m_%sFile is null!!", m_kind.delivery, m_kind.medium);
    return false;
  }
  static_cast<void>(zelto::System().Write(m_dump, data, size));
  return true;
}
