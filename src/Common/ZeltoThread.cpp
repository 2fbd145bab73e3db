#include "Common/ZeltoThread.h"

#include "Common/Log.h"
#include "Common/Platform.h"

namespace zelto {

namespace {

void* Address(CZeltoThread* thread) { return thread; }

}  // namespace

bool CZeltoThread::Create(const char* name) {
  // Asked once without the lock, so that a thread that is being stopped is reported at once.
  if (!m_created.load()) {
    MutexLock lock(m_createLock);
    if (!m_created.load()) return StartBody(name != nullptr ? name : "Unkown");
  }
  Print("\n\nThread(%p) is already started\n\n\n", Address(this));
  return false;
}

bool CZeltoThread::StartBody(const char* name) {
  m_created.store(true);
  SetRunning(true);
  if (System().CreateThread(&m_thread, &CZeltoThread::Enter, this) != 0) {
    SetRunning(false);
    m_created.store(false);
    Print("%s thread(%p) creation failed\n", name, Address(this));
    return false;
  }
  pthread_detach(m_thread);
  Print("%s thread(%p) is created\n", name, Address(this));
  return true;
}

void CZeltoThread::SetRunning(bool running) {
  MutexLock lock(m_runLock);
  m_running = running;
  // Under the lock: who sees the body ended may free the object.
  m_ended.NotifyAll();
}

void* CZeltoThread::Enter(void* thread) {
  static_cast<CZeltoThread*>(thread)->Start();
  return nullptr;
}

void CZeltoThread::Start() {
  m_bodyThread.store(pthread_self());
  t_Main();
  m_bodyThread.store(0);
  SetRunning(false);
}

void CZeltoThread::Destroy() {
  if (m_bodyThread.load() == pthread_self()) {
    Print("CZeltoThread Destroy: called by the thread itself");
    return;
  }
  MutexLock lock(m_createLock);
  if (!m_created.load()) {
    Print("CZeltoThread Destroy: thread is not created");
    return;
  }
  End();
  m_created.store(false);
  Print("CZeltoThread Destroy: end");
}

void CZeltoThread::End() {
  Print("CZeltoThread Destroy: wait thread start");
  Print("CZeltoThread Destroy: wait thread end");
  MutexLock lock(m_runLock);
  while (m_running) m_ended.Wait(m_runLock);
}

void CZeltoThread::SetHighPriorty() {
  Print("********************* ZELTO NICE = %d *******************\n", System().RaiseThreadPriority());
}

}  // namespace zelto
