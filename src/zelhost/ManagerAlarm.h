// A one-shot alarm whose callback can tell whether it still counts.
#pragma once

#include <cstdint>

#include "Common/DecimalText.h"
#include "Common/ZeltoAlarm.h"

namespace zelhost {

// A callback that has begun is not stopped by Stop or Start: it waits for the service-host mutex while
// somebody decides that it must not happen any more. So every start has a number, unique in the process,
// which the callback is given, and which it compares once it holds the mutex.
// Threads: the caller holds the service-host mutex.
class ManagerAlarm {
 public:
  // Replaces a running alarm. A delay beyond what an alarm can count becomes the longest one (35 minutes).
  void Start(std::int64_t microseconds, ZeltoAlarmCallback callback) {
    Stop();
    m_number = ++s_lastNumber;
    m_alarm.Create(zelto::NearestInt(microseconds), callback, reinterpret_cast<const void*>(m_number),
                   &m_alarm);
  }
  // Whether there was one to stop, expired or not.
  bool Stop() {
    m_number = kNone;
    if (!m_alarm.m_flagCreate) return false;
    m_alarm.Destroy();
    return true;
  }
  // Whether what the callback was given is the latest start's, and nobody has stopped that one.
  bool IsCurrent(const void* data) const {
    return m_number != kNone && reinterpret_cast<std::uintptr_t>(data) == m_number;
  }

 private:
  static constexpr std::uintptr_t kNone = 0;
  static inline std::uintptr_t s_lastNumber = kNone;

  std::uintptr_t m_number = kNone;
  CZeltoAlarm m_alarm;
};

}  // namespace zelhost
