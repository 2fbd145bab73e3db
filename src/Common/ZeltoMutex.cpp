#include "Common/ZeltoMutex.h"

#include "Common/Log.h"
#include "Common/Platform.h"

namespace zelto {

namespace {

bool SayNotCreated() {
  Print("CZeltoMutex Lock: mutex is not created");
  return false;
}

}  // namespace

CZeltoMutex::CZeltoMutex(LockRank rank, const char* name) : m_lock(rank, name) {}

bool CZeltoMutex::Create() {
  m_created.store(true);
  return true;
}

void CZeltoMutex::Destroy() { m_created.store(false); }

bool CZeltoMutex::IsOwner() const { return m_created.load(std::memory_order_relaxed) && IsHolder(); }

bool CZeltoMutex::TakeAgain() {
  ++m_count;
  return true;
}

// The lock may have been destroyed while the caller waited for it.
bool CZeltoMutex::BecomeOwner() {
  if (!m_created.load()) {
    m_lock.Unlock();
    return SayNotCreated();
  }
  m_owner.store(pthread_self(), std::memory_order_relaxed);
  m_count = 1;
  return true;
}

void CZeltoMutex::Release() {
  m_owner.store(0, std::memory_order_relaxed);
  m_lock.Unlock();
}

bool CZeltoMutex::Lock() {
  if (!m_created.load()) return SayNotCreated();
  if (IsHolder()) return TakeAgain();
  m_lock.Lock();
  return BecomeOwner();
}

bool CZeltoMutex::TryLock() {
  if (!m_created.load()) return SayNotCreated();
  if (IsHolder()) return TakeAgain();
  return m_lock.TryLock() && BecomeOwner();
}

bool CZeltoMutex::LockWithin(int milliseconds) {
  if (!m_created.load()) return SayNotCreated();
  if (IsHolder()) return TakeAgain();
  return m_lock.LockWithin(milliseconds * kNanosecondsPerMillisecond) && BecomeOwner();
}

bool CZeltoMutex::Unlock() {
  if (!m_created.load()) {
    if (IsHolder()) Release();
    return SayNotCreated();
  }
  if (!IsHolder()) return false;
  if (--m_count <= 0) Release();
  return true;
}

}  // namespace zelto
