// A host that notes what the engine hands it and answers from memory.
#pragma once

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "Common/IMoIPEngine.h"

namespace test {

// Threads: any. Must outlive the engine that it is registered with.
class TestHost {
 public:
  // An engine of its own; null when it can't be made. Registers event callback and control function.
  IMoIPEngine* StartEngine();
  void Register(IMoIPEngine* engine);

  // All calls so far, in order: "307(65, null)" is an event, "GetLocalTime[0]" a control call without
  // those of its parameters that are null at the end.
  std::vector<std::string> Log() const;
  std::vector<std::string> TakeLog();
  // False when that call does not come within five seconds.
  bool WaitFor(const std::string& call) const;

  void SetAnswer(const std::string& command, const std::string& answer);

  // Runs inside the event callback, after the event has been noted.
  std::function<void(const CEngineEvent&)> onEvent;

 private:
  static bool OnEvent(const CEngineEvent* event, void* user);
  static const char* OnControl(const char* cmd, const char* p1, const char* p2, const char* p3,
                               const char* p4, void* user);
  void Note(const std::string& call);

  mutable std::mutex m_lock;
  mutable std::condition_variable m_noted;
  std::vector<std::string> m_log;
  std::map<std::string, std::string> m_answers;
};

}  // namespace test
