#include "zelhost/media/ZelhostMicVolumeChangeThread.h"

#include <utility>

#include "Common/Log.h"
#include "Common/ZeltoManager.h"

void CZelhostMicVolumeChangeThread::AddCmd(CAVData* record) {
  ZELTO_DEBUG("add volume command to the queue");
  Command command(record);
  zelto::MutexLock lock(m_lock);
  m_pending.swap(command);
  m_changed.NotifyAll();
}

bool CZelhostMicVolumeChangeThread::Create(const char* name) {
  {
    zelto::MutexLock lock(m_lock);
    m_running = true;
  }
  return CZeltoThread::Create(name);
}

void CZelhostMicVolumeChangeThread::Destroy() {
  {
    zelto::MutexLock lock(m_lock);
    m_running = false;
    m_changed.NotifyAll();
  }
  if (IsCreated()) CZeltoThread::Destroy();
  {
    zelto::MutexLock lock(m_lock);
    m_pending.reset();
  }
  ZELTO_DEBUG("ZelhostMicVolumeThread destroyed");
}

CZelhostMicVolumeChangeThread::Command CZelhostMicVolumeChangeThread::Next() {
  zelto::MutexLock lock(m_lock);
  while (m_running && m_pending == nullptr) m_changed.Wait(m_lock);
  return m_running ? std::move(m_pending) : nullptr;
}

void CZelhostMicVolumeChangeThread::t_Main() {
  while (const Command command = Next()) {
    ZELTO_DEBUG("send volume command to engine manager");
    CZeltoManager::SendAVData(command.get(), nullptr);
  }
  ZELTO_DEBUG("ZelhostMicVolumeThread ends");
}
