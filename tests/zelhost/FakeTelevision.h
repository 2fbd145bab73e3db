// Stands in for the television behind an engine of the test's own.
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

// Creates the engine, registers itself with it and destroys it at the end. Notes every host control as
// StartPIGMode(0, 0, 1920, 1080) and every event's number.
// Threads: the engine's threads note while the test reads.
class FakeTelevision {
 public:
  FakeTelevision() : m_engine(CZeltoManager::Create()) {
    m_engine->RegisterEventCallback(&FakeTelevision::OnEvent, this);
    m_engine->RegisterCommonCtrlFunc(&FakeTelevision::OnControl, this);
  }
  FakeTelevision(const FakeTelevision&) = delete;
  FakeTelevision& operator=(const FakeTelevision&) = delete;
  ~FakeTelevision() { CZeltoManager::Destroy(m_engine); }

  // What a control answers from now on; others answer nothing.
  void Answers(const std::string& control, const std::string& answer) {
    const std::lock_guard lock(m_mutex);
    m_answers[control] = answer;
  }

  std::string Execute(const std::string& command, const char* p1 = nullptr, const char* p2 = nullptr,
                      const char* p3 = nullptr, const char* p4 = nullptr) {
    return m_engine->Execute(command.c_str(), p1, p2, p3, p4);
  }
  IMoIPEngine* Engine() { return m_engine; }

  // The controls since the last call.
  std::vector<std::string> TakeControls() {
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_controls, {});
  }
  // Whether the event arrives within the patience of a test.
  bool WaitForEvent(int type) {
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::seconds(20), [&] { return HasSeen(type); });
  }
  // Whether it has arrived so far.
  bool HasReceived(int type) {
    const std::lock_guard lock(m_mutex);
    return HasSeen(type);
  }

 private:
  bool HasSeen(int type) const { return std::find(m_events.begin(), m_events.end(), type) != m_events.end(); }

  static bool OnEvent(const CEngineEvent* event, void* user) {
    auto* self = static_cast<FakeTelevision*>(user);
    const std::lock_guard lock(self->m_mutex);
    self->m_events.push_back(event->type);
    self->m_changed.notify_all();
    return true;
  }

  static const char* OnControl(const char* cmd, const char* p1, const char* p2, const char* p3,
                               const char* p4, void* user) {
    auto* self = static_cast<FakeTelevision*>(user);
    const std::lock_guard lock(self->m_mutex);
    std::string parameters;
    for (const char* parameter : {p1, p2, p3, p4}) {
      if (parameter != nullptr) parameters += (parameters.empty() ? "" : ", ") + std::string(parameter);
    }
    self->m_controls.push_back(std::string(cmd) + "(" + parameters + ")");
    const auto answer = self->m_answers.find(cmd);
    return answer != self->m_answers.end() ? answer->second.c_str() : nullptr;
  }

  CZeltoManager* m_engine;
  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::map<std::string, std::string> m_answers;
  std::vector<std::string> m_controls;
  std::vector<int> m_events;
};
