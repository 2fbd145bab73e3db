#include "Common/ZeltoAlarm.h"

#include <pthread.h>

#include <cstdint>
#include <utility>

#include "Common/Assert.h"
#include "Common/Log.h"
#include "Common/Platform.h"

namespace {

// Delays count in whole steps: owners are used to alarms that are late by up to one, never early.
constexpr std::int64_t kStepMicroseconds = 20'000;
constexpr std::int64_t kNanosecondsPerMicrosecond = 1'000;

std::int64_t StepsToNanoseconds(std::int64_t microseconds) {
  if (microseconds <= 0) return 0;
  const std::int64_t steps = (microseconds + kStepMicroseconds - 1) / kStepMicroseconds;
  return steps * kStepMicroseconds * kNanosecondsPerMicrosecond;
}

}  // namespace

bool CZeltoAlarm::Run::Expire() {
  const std::int64_t deadline = zelto::System().Now() + StepsToNanoseconds(m_sec);
  zelto::MutexLock guard(lock);
  while (running) {
    const std::int64_t left = deadline - zelto::System().Now();
    if (left <= 0) return true;
    cancelled.WaitFor(lock, left);
  }
  return false;
}

void CZeltoAlarm::Create(int microseconds, ZeltoAlarmCallback callback, const void* data, void* /*alarm*/) {
  ZELTO_DEBUG("**Start Create Zelto Alarm ");
  ZELTO_DEBUG("CZeltoAlarm::%s[%d] sec : %d\n", __func__, __LINE__, microseconds);
  zelto::MutexLock guard(m_createLock);
  ZELTO_ASSERT(m_flagCreate == false);
  m_flagCreate = true;
  m_run = std::make_shared<Run>(microseconds, callback, data);
  auto* share = new std::shared_ptr<Run>(m_run);
  pthread_t thread{};
  if (zelto::System().CreateThread(&thread, &CZeltoAlarm::t_main, share) == 0) {
    pthread_detach(thread);
  } else {
    delete share;
    ZELTO_FATAL("CZeltoAlarm: no thread for an alarm of %d us\n", microseconds);
  }
  ZELTO_DEBUG("**Stop Create Zelto Alarm ");
}

void* CZeltoAlarm::t_main(void* share) {
  std::shared_ptr<Run> run(std::move(*static_cast<std::shared_ptr<Run>*>(share)));
  delete static_cast<std::shared_ptr<Run>*>(share);
  ZELTO_DEBUG("CZeltoAlarm::%s[%d] m_sec : %d\n", __func__, __LINE__, run->m_sec);
  ZELTO_DEBUG("**Start Zelto Alarm ");
  if (!run->Expire()) {
    ZELTO_DEBUG("**Cancel Zelto Alarm ");
  } else if (run->callback != nullptr) {
    ZELTO_DEBUG("**Expire Zelto Alarm ");
    ZELTO_DEBUG("**Callback Zelto Alarm ");
    run->callback(run->data);
  }
  ZELTO_DEBUG("**Stop Zelto Alarm ");
  return nullptr;
}

void CZeltoAlarm::LockMutex(Run& run) {
  run.lock.Lock();
  ZELTO_DEBUG("ZeltoAlarm : Thread Lock");
}

void CZeltoAlarm::UnlockMutex(Run& run) {
  ZELTO_DEBUG("ZeltoAlarm : Thread UnLock");
  run.lock.Unlock();
}

void CZeltoAlarm::Destroy() {
  if (!m_flagCreate) return;
  zelto::MutexLock guard(m_createLock);
  if (!m_flagCreate) return;
  ZELTO_DEBUG("**Start Destroy Zelto Alarm ");
  ZELTO_DEBUG("**Wait exit Zelto Alarm ");
  LockMutex(*m_run);
  m_run->running = false;
  m_run->cancelled.NotifyAll();
  m_flagCreate = false;
  UnlockMutex(*m_run);
  m_run.reset();
  ZELTO_DEBUG("**Complte exit Zelto Alarm ");
  ZELTO_DEBUG("**Stop Destroy Zelto Alarm ");
}
