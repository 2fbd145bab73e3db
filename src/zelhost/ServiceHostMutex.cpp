#include "zelhost/ServiceHostMutex.h"

#include "Common/Log.h"

namespace zelhost {

ServiceHostMutex& ServiceHostMutex::Get() {
  static ServiceHostMutex& mutex = *new ServiceHostMutex;
  return mutex;
}

ServiceHostMutex::ServiceHostMutex() { m_mutex.Create(); }

// Only the outermost level names the holder: that is the operation which others wait for.
bool ServiceHostMutex::Take(const char* who, int milliseconds) {
  const bool outermost = !m_mutex.IsOwner();
  if (!m_mutex.TryLock() && !m_mutex.LockWithin(milliseconds)) return false;
  if (outermost) m_holder.store(who, std::memory_order_relaxed);
  return true;
}

void ServiceHostMutex::Lock(const char* who) ZELTO_NO_THREAD_SAFETY_ANALYSIS {
  for (int waited = kReportEvery; !Take(who, kReportEvery); waited += kReportEvery) ReportWait(who, waited);
}

void ServiceHostMutex::ReportWait(const char* who, int milliseconds) const {
  zelto::Print("%s has been waiting for the service host for %d s, which is busy with %s", who,
               milliseconds / 1000, m_holder.load(std::memory_order_relaxed));
}

bool ServiceHostMutex::LockWithin(const char* who, int milliseconds) ZELTO_NO_THREAD_SAFETY_ANALYSIS {
  return Take(who, milliseconds);
}

void ServiceHostMutex::Unlock() ZELTO_NO_THREAD_SAFETY_ANALYSIS { m_mutex.Unlock(); }

}  // namespace zelhost
