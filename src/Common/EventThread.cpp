#include "Common/EventThread.h"

#include "Common/Assert.h"
#include "Common/EventHandlers.h"
#include "Common/EventQueue.h"
#include "Common/EventTypes.h"
#include "Common/Guard.h"
#include "Common/Log.h"
#include "Common/Platform.h"
#include "Common/ZeltoManager.h"

namespace zelto {
namespace {

constexpr std::size_t kEventsAtOnce = 64;  // taken off the queue under one lock

// What the last pass may take when the engine ends: events that keep raising events must not hold it up.
constexpr std::int64_t kLastPassNanoseconds = 1000 * kNanosecondsPerMillisecond;

}  // namespace

bool EventThread::Start() {
  m_started = System().CreateThread(&m_thread, &EventThread::Body, this) == 0;
  return m_started;
}

void EventThread::RequestStop() {
  m_deadline = System().Now() + kLastPassNanoseconds;
  m_running = false;
}

void EventThread::Stop() {
  if (!m_started) return;
  ZELTO_ASSERT(!pthread_equal(m_thread, pthread_self()));
  if (m_running) RequestStop();
  pthread_join(m_thread, nullptr);
  m_started = false;
}

void* EventThread::Body(void* self) {
  auto* const thread = static_cast<EventThread*>(self);
  thread->MainThread();
  thread->m_ended = true;
  return nullptr;
}

void EventThread::MainThread() {
  ZELTO_DEBUG("Start to run ZeltoManager event thread!!!");
  OnEvent();
  while (m_running) {
    SleepMilliseconds(EventQueue::kTickMilliseconds);
    OnEvent();
  }
  ZELTO_DEBUG("Stop ZeltoManager event thread!!!");
}

void EventThread::OnEvent() {
  EventQueue& queue = EventQueue::Get();
  queue.Tick();
  CZeltoEvent events[kEventsAtOnce];
  while (const std::size_t taken = queue.Take(events, kEventsAtOnce)) {
    for (std::size_t event = 0; event < taken; ++event) {
      Guard("an event", [&] { Process(events[event]); });
      if (IsOverdue()) return;
    }
  }
}

void EventThread::Process(const CZeltoEvent& event) {
  if (!IsEngineEvent(event.type)) {
    ZELTO_WARNING("event->type=%d, unknown event\n", event.type);
    return;
  }
  ZELTO_DEBUG("CZeltoManager::%s,  event type = %d\n", "OnEvent", event.type);
  CZeltoEventHandler* handler = EventHandlers::Find(event.type);
  if (handler == nullptr) {
    CZeltoManager::NotifyEngineEvent(&event);
  } else if (handler->OnEvent(&event)) {
    CZeltoManager::NotifyEngineEvent(&event);
    handler->AfterEvent(&event);
  }
  ReactToEvent(event, m_reactions);
}

bool EventThread::IsOverdue() const { return !m_running && System().Now() > m_deadline; }

}  // namespace zelto
