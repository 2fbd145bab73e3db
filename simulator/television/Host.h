#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "Common/IMoIPEngine.h"
#include "simulator/television/Notice.h"
#include "simulator/television/TelevisionState.h"

namespace television {

// What the engine told the television, copied in its callback.
struct Report {
  enum class Kind { Event, Control };
  Kind kind;
  int type = 0;                                    // of an event
  std::string command;                             // of a control call
  std::vector<std::string> parameters;             // texts that were given; trailing absent ones left out
  std::string answer;                              // what the television answered to a control call
  std::shared_ptr<const Notice> notice = nullptr;  // to be shown
};

// The television's side of the host interface: the three functions that the engine calls. They only copy
// and queue; whoever wants to react does so later, on a thread of its own, where calling the engine again
// is safe.
// Threads: the callbacks run on the engine's threads, everything else may be called from any thread.
class Host {
 public:
  // Registers the event callback and the control function. Attach again after the engine was replaced.
  void Attach(IMoIPEngine& engine);
  // Registers the data callback, with which the engine loads the service.
  void StartService(IMoIPEngine& engine);

  // Called on the engine's thread for each report, before it can be waited for; must only print or signal.
  void SetObserver(std::function<void(const Report&)> observer);

  // Who takes the engine's sound and pictures: called on the engine's media threads, must only copy and
  // queue. `waiting` is null for pictures; for sound it takes how many bytes the speaker still has to play.
  // Set it before the service is started.
  void SetMediaSink(std::function<void(const CAVData& record, unsigned int* waiting)> sink);

  // Waits for a report that fulfils the condition among those that arrived since the last mark, and sets
  // the mark behind it. False when none came in time.
  bool WaitFor(const std::function<bool(const Report&)>& condition, std::chrono::milliseconds limit);
  // Sets the mark behind everything that has arrived.
  void Mark();

  // Runs with the television's state, which no engine thread changes meanwhile.
  void WithState(const std::function<void(TelevisionState&)>& action);

 private:
  static bool OnEvent(const CEngineEvent* event, void* user);
  static bool OnData(const CAVData* data, void* user, void* extra);
  static const char* OnControl(const char* command, const char* p1, const char* p2, const char* p3,
                               const char* p4, void* user);
  void Add(Report report);

  std::mutex m_mutex;
  std::condition_variable m_arrived;
  std::deque<Report> m_reports;  // those after the mark
  std::function<void(const Report&)> m_observer;
  TelevisionState m_state;
  std::string m_answer;  // lives until the next control call, which the engine makes one at a time
  std::function<void(const CAVData& record, unsigned int* waiting)> m_mediaSink;
};

}  // namespace television
