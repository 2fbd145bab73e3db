#include "zelhost/widget/WidgetTimers.h"

#include <cstddef>

#include "Common/DecimalText.h"
#include "Common/Log.h"
#include "Common/ZeltoManager.h"

namespace {

constexpr long long kMicrosecondsPerMillisecond = 1'000;

// An alarm that is late may still read its id after its timers have gone.
constexpr std::array<int, 10> kIds = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};

bool t_WidegtOSDTimerCallback(const void* data) {
  const int id = *static_cast<const int*>(data);
  ZELTO_FATAL("Zelto OSDTimer[%d] is expired\n", id);
  CZeltoManager::SendEvent(CZeltoManager::WIDGET_OSD_TIMER_EXPIRED + id, 0);
  return true;
}

}  // namespace

static_assert(kIds.size() == WidgetTimers::kTimers, "an id for each timer");

WidgetTimers::~WidgetTimers() {
  zelto::MutexLock guard(m_lock);
  for (const int id : kIds) {
    CZeltoAlarm& timer = m_timers[static_cast<std::size_t>(id)];
    if (!timer.m_flagCreate) continue;
    ZELTO_DEBUG("%d Zelto OSD timer is alive\n", id);
    timer.Destroy();
  }
}

bool WidgetTimers::Start(int milliseconds, int id) { return IsTimer(id) && !Arm(milliseconds, id); }

bool WidgetTimers::Restart(int milliseconds, int id) {
  if (!IsTimer(id)) return false;
  Arm(milliseconds, id);
  return true;
}

bool WidgetTimers::Stop(int id) {
  if (!IsTimer(id)) return false;
  zelto::MutexLock guard(m_lock);
  m_timers[static_cast<std::size_t>(id)].Destroy();
  return true;
}

bool WidgetTimers::Arm(int milliseconds, int id) {
  zelto::MutexLock guard(m_lock);
  CZeltoAlarm& timer = m_timers[static_cast<std::size_t>(id)];
  const bool ran = timer.m_flagCreate;
  timer.Destroy();
  timer.Create(zelto::NearestInt(milliseconds * kMicrosecondsPerMillisecond), &t_WidegtOSDTimerCallback,
               &kIds[static_cast<std::size_t>(id)], &timer);
  return ran;
}
