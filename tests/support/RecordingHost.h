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
  RecordingHost() {
    m_engine->RegisterEventCallback(&RecordingHost::OnEvent, this);
    m_engine->RegisterCommonCtrlFunc(&RecordingHost::OnControl, this);
  }
  RecordingHost(const RecordingHost&) = delete;
  RecordingHost& operator=(const RecordingHost&) = delete;
  ~RecordingHost() { CZeltoManager::Destroy(m_engine); }

  IMoIPEngine* Engine() { return m_engine; }
  std::string Execute(const std::string& command, const char* p1 = nullptr, const char* p2 = nullptr,
                      const char* p3 = nullptr, const char* p4 = nullptr) {
    return m_engine->Execute(command.c_str(), p1, p2, p3, p4);
  }

  // What a control answers from now on; others answer nothing.
  void Answers(const std::string& control, const std::string& answer) {
    const std::lock_guard lock(m_mutex);
    m_answers[control] = answer;
  }
  // The controls since the last call, each as StartPIGMode(0, 0, 1920, 1080).
  std::vector<std::string> TakeControls() {
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_controls, {});
  }
  // Whether the control or event comes within the patience of a test; earlier ones count.
  bool WaitForControl(const std::string& control) {
    return Wait([&] { return std::count(m_controls.begin(), m_controls.end(), control) > 0; });
  }
  bool WaitFor(int type, const std::string& param) {
    return Wait([&] { return std::count(m_events.begin(), m_events.end(), Event(type, param)) > 0; });
  }
  bool WaitFor(int type, std::ptrdiff_t times = 1) {
    return Wait([&] { return Count(type) >= times; });
  }
  // Sends a mark through the event queue: what was sent before it has arrived, or never will, when it
  // answers. Marks count as events too.
  std::ptrdiff_t CountUntilNow(int type = kEveryType) {
    CZeltoManager::SendEvent(kMark, 0);
    WaitFor(kMark, ++m_marks);
    const std::lock_guard lock(m_mutex);
    return Count(type);
  }

 private:
  using Event = std::pair<int, std::string>;
  static constexpr int kMark = 150000;  // a type that nobody sends or handles
  static constexpr int kEveryType = -1;

  std::ptrdiff_t Count(int type) const {
    return std::count_if(m_events.begin(), m_events.end(),
                         [&](const Event& event) { return type == kEveryType || event.first == type; });
  }
  template <class Condition>
  bool Wait(Condition condition) {
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::seconds(20), condition);
  }

  static bool OnEvent(const CEngineEvent* event, void* user) {
    auto* self = static_cast<RecordingHost*>(user);
    const std::lock_guard lock(self->m_mutex);
    const bool hasText = event->param1 != nullptr && event->type != CZeltoManager::PUBLIC_SHOW_NOTICE;
    self->m_events.emplace_back(event->type, hasText ? event->param1 : "");
    self->m_changed.notify_all();
    return true;
  }
  static const char* OnControl(const char* cmd, const char* p1, const char* p2, const char* p3,
                               const char* p4, void* user) {
    std::string parameters;
    for (const char* parameter : {p1, p2, p3, p4}) {
      if (parameter != nullptr) parameters += (parameters.empty() ? "" : ", ") + std::string(parameter);
    }
    auto* self = static_cast<RecordingHost*>(user);
    const std::lock_guard lock(self->m_mutex);
    self->m_controls.push_back(std::string(cmd) + "(" + parameters + ")");
    self->m_changed.notify_all();
    const auto answer = self->m_answers.find(cmd);
    return answer != self->m_answers.end() ? answer->second.c_str() : nullptr;
  }

  CZeltoManager* const m_engine = CZeltoManager::Create();
  std::ptrdiff_t m_marks = 0;
  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::map<std::string, std::string> m_answers;
  std::vector<std::string> m_controls;
  std::vector<Event> m_events;
};

}  // namespace test
