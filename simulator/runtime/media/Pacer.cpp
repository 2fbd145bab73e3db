#include "simulator/runtime/media/Pacer.h"

#include <utility>

#include "Common/Platform.h"

namespace simulator {
namespace {

// So much is made up for; after a longer hold-up the pace begins anew.
constexpr std::int64_t kMostBehind = 200 * zelto::kNanosecondsPerMillisecond;

}  // namespace

Pacer::Pacer(const char* name, std::int64_t period, std::function<void()> step)
    : m_name(name), m_period(period), m_step(std::move(step)) {}

Pacer::~Pacer() { Stop(); }

void Pacer::Start() {
  {
    const zelto::MutexLock lock(m_lock);
    m_running = true;
  }
  m_thread.Start(m_name, false, [this] { Run(); });
}

void Pacer::Stop() {
  {
    const zelto::MutexLock lock(m_lock);
    m_running = false;
    m_changed.NotifyAll();
  }
  m_thread.End();
}

void Pacer::Run() {
  std::int64_t due = zelto::System().Now();
  while (WaitUntil(due)) {
    m_step();
    due += m_period;
    const std::int64_t now = zelto::System().Now();
    if (due + kMostBehind < now) due = now;
  }
}

bool Pacer::WaitUntil(std::int64_t due) {
  const zelto::MutexLock lock(m_lock);
  while (m_running) {
    const std::int64_t left = due - zelto::System().Now();
    if (left <= 0) return true;
    m_changed.WaitFor(m_lock, left);
  }
  return false;
}

}  // namespace simulator
