// A host that notes what the engine hands it and answers from memory.
#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "Common/ZeltoManager.h"

namespace test {

using Log = std::vector<std::string>;

// Threads: any. Must outlive the engine that it starts.
class TestHost {
 public:
  // The engine, its event callback and control function registered; null when it can't be made.
  IMoIPEngine* StartEngine() {
    IMoIPEngine* engine = CZeltoManager::Create();
    if (engine == nullptr) return nullptr;
    engine->RegisterEventCallback(&TestHost::OnEvent, this);
    engine->RegisterCommonCtrlFunc(&TestHost::OnControl, this);
    return engine;
  }

  // The calls since the last time, in order: "307(65, null)" is an event, "17(notice)" one that carries a
  // notice, "GetLocalTime[0]" a control call without those of its parameters that are null at the end.
  Log TakeLog() {
    const std::lock_guard lock(m_lock);
    return std::exchange(m_log, {});
  }
  // False when that call does not come within five seconds.
  bool WaitFor(const std::string& call) {
    std::unique_lock lock(m_lock);
    return m_noted.wait_for(lock, std::chrono::seconds(5),
                            [&] { return std::find(m_log.begin(), m_log.end(), call) != m_log.end(); });
  }

  // Answers of the control function; set while no other thread calls it.
  std::map<std::string, std::string> answers;
  // Runs inside the event callback, after the event has been noted.
  std::function<void(const CEngineEvent&)> onEvent;

 private:
  static std::string Written(const char* text) { return text != nullptr ? text : "null"; }

  static bool OnEvent(const CEngineEvent* event, void* user) {
    auto* host = static_cast<TestHost*>(user);
    const bool isNotice = event->type == CZeltoManager::PUBLIC_SHOW_NOTICE;
    host->Note(std::to_string(event->type) + "(" +
               (isNotice ? "notice" : Written(event->param1) + ", " + Written(event->param2)) + ")");
    if (host->onEvent) host->onEvent(*event);
    return true;
  }

  static const char* OnControl(const char* cmd, const char* p1, const char* p2, const char* p3,
                               const char* p4, void* user) {
    auto* host = static_cast<TestHost*>(user);
    std::vector<const char*> given{p1, p2, p3, p4};
    while (!given.empty() && given.back() == nullptr) given.pop_back();
    std::string list;
    for (const char* text : given) list += (list.empty() ? "" : ", ") + Written(text);
    host->Note(Written(cmd) + "[" + list + "]");
    const auto answer = host->answers.find(Written(cmd));
    return answer != host->answers.end() ? answer->second.c_str() : nullptr;
  }

  void Note(const std::string& call) {
    const std::lock_guard lock(m_lock);
    m_log.push_back(call);
    m_noted.notify_all();
  }

  std::mutex m_lock;
  std::condition_variable m_noted;
  Log m_log;
};

}  // namespace test
