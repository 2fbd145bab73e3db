#include "simulator/television/media/Metronome.h"

#include <utility>

namespace television {

Metronome::Metronome(Pace::Clock::duration period, std::function<void()> begin, std::function<void()> beat)
    : m_period(period), m_begin(std::move(begin)), m_beat(std::move(beat)), m_thread([this] { Run(); }) {}

Metronome::~Metronome() {
  {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_ending = true;
  }
  m_changed.notify_all();
  m_thread.join();
}

void Metronome::Switch(bool on) {
  {
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_on == on) return;
    m_on = on;
    if (on) ++m_round;
  }
  m_changed.notify_all();
}

void Metronome::Run() {
  std::unique_lock<std::mutex> lock(m_mutex);
  Pace pace(m_period);
  unsigned round = 0;
  while (true) {
    m_changed.wait(lock, [this] { return m_on || m_ending; });
    if (m_ending) return;
    const bool first = round != m_round;
    round = m_round;
    lock.unlock();
    if (first) {
      m_begin();
      pace.Begin(Pace::Clock::now());
    }
    m_beat();
    const Pace::Clock::time_point next = pace.Next(Pace::Clock::now());
    lock.lock();
    m_changed.wait_until(lock, next, [&] { return m_ending || !m_on || round != m_round; });
  }
}

}  // namespace television
