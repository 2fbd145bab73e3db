#pragma once

#include <chrono>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "Common/IMoIPEngine.h"
#include "simulator/television/Host.h"
#include "simulator/television/media/Worker.h"

namespace television {

// What the television and its widget call the engine for by themselves: the widget is started when the
// engine asks for it, tells its state, places the call it was started for and takes the connecting screen
// away when a call is on the screen; and the engine is called back after the source has changed. Done on a
// thread of its own, since nobody may call the engine inside one of its callbacks.
// Threads: any.
class Errands {
 public:
  // `done` is told each command and its answer, on the own thread.
  explicit Errands(std::function<void(const std::string& line, const std::string& answer)> done);

  void Attach(IMoIPEngine& engine);
  // Before the engine is ended: waits for a command that is under way and drops those that wait.
  void Detach();

  // A report of the engine, on the engine's thread; only queues.
  void Take(const Report& report);

 private:
  struct Errand {
    std::chrono::milliseconds after;
    std::vector<std::string> command;
  };

  void StartWidget(const std::string& parameter);
  void Run(const Errand& errand);

  const std::function<void(const std::string& line, const std::string& answer)> m_done;
  std::mutex m_engineMutex;  // held while a command runs
  IMoIPEngine* m_engine = nullptr;
  std::mutex m_mutex;
  std::string m_afterSourceChange;  // command
  Worker<Errand> m_worker;          // last: ends before what it uses
};

}  // namespace television
