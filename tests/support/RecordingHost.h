// A host that writes down what the engine tells it.
#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "Common/ZeltoManager.h"

namespace test {

// Creates the engine, registers itself with it and destroys it at the end.
// Threads: the engine's threads write down while the test reads.
class RecordingHost {
 public:
  struct Event {
    int type;
    std::string param;
    bool operator==(const Event& other) const { return type == other.type && param == other.param; }
  };

  RecordingHost() : m_engine(CZeltoManager::Create()) {
    m_engine->RegisterEventCallback(&RecordingHost::OnEvent, this);
    m_engine->RegisterCommonCtrlFunc(&RecordingHost::OnControl, this);
  }
  RecordingHost(const RecordingHost&) = delete;
  RecordingHost& operator=(const RecordingHost&) = delete;
  ~RecordingHost() { CZeltoManager::Destroy(m_engine); }

  // What a control answers from now on; others answer nothing.
  void Answers(const std::string& control, const std::string& answer) {
    const std::lock_guard lock(m_mutex);
    m_answers[control] = answer;
  }
  // Whether the event comes within the patience of a test; earlier ones count.
  bool WaitFor(int type, const std::string& param) {
    return Wait([&] { return std::count(m_events.begin(), m_events.end(), Event{type, param}) > 0; });
  }
  bool WaitFor(int type, std::ptrdiff_t times = 1) {
    return Wait([&] { return Count(type) >= times; });
  }
  bool WaitForControl(const std::string& control) {
    return Wait([&] { return std::count(m_controls.begin(), m_controls.end(), control) > 0; });
  }
  // Sends a mark through the event queue: what was sent before it has arrived, or never will, when it
  // answers.
  std::vector<Event> EventsUntilNow() {
    CZeltoManager::SendEvent(kMark, 0);
    const std::ptrdiff_t marks = ++m_marks;
    WaitFor(kMark, marks);
    const std::lock_guard lock(m_mutex);
    return m_events;
  }
  std::ptrdiff_t CountUntilNow(int type) {
    const std::vector<Event> events = EventsUntilNow();
    return std::count_if(events.begin(), events.end(),
                         [&](const Event& event) { return event.type == type; });
  }

 private:
  static constexpr int kMark = 150000;  // a type that nobody sends or handles

  std::ptrdiff_t Count(int type) const {
    return std::count_if(m_events.begin(), m_events.end(),
                         [&](const Event& event) { return event.type == type; });
  }
  template <class Condition>
  bool Wait(Condition condition) {
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::seconds(20), condition);
  }

  static bool OnEvent(const CEngineEvent* event, void* user) {
    auto* self = static_cast<RecordingHost*>(user);
    const std::lock_guard lock(self->m_mutex);
    self->m_events.push_back({event->type, event->param1 != nullptr ? event->param1 : ""});
    self->m_changed.notify_all();
    return true;
  }
  static const char* OnControl(const char* cmd, const char* p1, const char*, const char*, const char*,
                               void* user) {
    auto* self = static_cast<RecordingHost*>(user);
    const std::lock_guard lock(self->m_mutex);
    self->m_controls.push_back(std::string(cmd) + (p1 != nullptr ? " " + std::string(p1) : ""));
    self->m_changed.notify_all();
    const auto answer = self->m_answers.find(cmd);
    return answer != self->m_answers.end() ? answer->second.c_str() : nullptr;
  }

  CZeltoManager* m_engine;
  std::ptrdiff_t m_marks = 0;
  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::map<std::string, std::string> m_answers;
  std::vector<std::string> m_controls;
  std::vector<Event> m_events;
};

}  // namespace test
