// A course of orders, from a file.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/runtime/door/Orders.h"
#include "simulator/runtime/world/Scheduler.h"

namespace simulator {

// One step a line: an order in words, or "wait MILLISECONDS", "expect CLASS.METHOD" (goes on when that
// request arrives, before it is served) or "connected" (goes on when an engine connects). Empty lines and
// what follows "#" at the beginning of a line do not count. A step that fails is logged, and the next
// follows. Threads: none of its own; the scheduler drives the waits.
class Scenario {
 public:
  Scenario(Orders& orders, Scheduler& scheduler) : m_orders(orders), m_scheduler(scheduler) {}

  // Throws std::invalid_argument with line and reason when a line makes no step.
  void Read(std::string_view text);
  // The same from a file; a file that cannot be read is such a reason too.
  void ReadFile(const std::string& path);

  // Runs the steps up to the first that has to wait.
  void Start() { Advance(); }
  void RequestArrived(const std::string& name);  // "Account.Login"
  void EngineConnected();
  bool IsOver() const { return m_next == m_steps.size() && !m_waiting; }

 private:
  struct Step {
    std::size_t line;
    nlohmann::json order;
  };

  void Advance();
  // False when the step has to be waited for.
  bool Run(const Step& step);

  Orders& m_orders;
  Scheduler& m_scheduler;
  std::vector<Step> m_steps;
  std::size_t m_next = 0;
  bool m_waiting = false;
  bool m_connected = false;
  bool m_awaitsEngine = false;
  std::string m_expected;
};

}  // namespace simulator
