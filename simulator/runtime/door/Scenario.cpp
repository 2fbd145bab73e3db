#include "simulator/runtime/door/Scenario.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

#include "simulator/runtime/Log.h"

namespace simulator {
namespace {

// Checked when the file is read: a mistyped step must not show only after minutes.
void CheckStep(const nlohmann::json& order) {
  const std::string name = order["order"];
  if (name == "wait" && !order.value("milliseconds", nlohmann::json()).is_number()) {
    throw std::invalid_argument("wait takes milliseconds");
  }
  if (name == "expect" && !order.value("method", nlohmann::json()).is_string()) {
    throw std::invalid_argument("expect takes CLASS.METHOD");
  }
}

}  // namespace

void Scenario::Read(std::string_view text) {
  std::istringstream lines{std::string(text)};
  std::string line;
  for (std::size_t number = 1; std::getline(lines, line); ++number) {
    const auto begin = line.find_first_not_of(" \t\r");
    if (begin == std::string::npos || line[begin] == '#') continue;
    try {
      Step step{number, Orders::FromWords(line)};
      CheckStep(step.order);
      m_steps.push_back(std::move(step));
    } catch (const std::invalid_argument& failure) {
      throw std::invalid_argument("line " + std::to_string(number) + ": " + failure.what());
    }
  }
}

void Scenario::ReadFile(const std::string& path) {
  std::ifstream file(path);
  std::ostringstream text;
  text << file.rdbuf();
  if (!file) throw std::invalid_argument(path + " cannot be read");
  try {
    Read(text.str());
  } catch (const std::invalid_argument& failure) {
    throw std::invalid_argument(path + ", " + failure.what());
  }
}

void Scenario::Advance() {
  m_waiting = false;
  while (m_next < m_steps.size()) {
    if (!Run(m_steps[m_next++])) {
      m_waiting = true;
      return;
    }
  }
}

bool Scenario::Run(const Step& step) {
  const std::string name = step.order["order"];
  if (name == "wait") {
    m_scheduler.After(step.order["milliseconds"].get<std::int64_t>(), [this] { Advance(); });
    return false;
  }
  if (name == "expect") {
    m_expected = step.order["method"];
    return false;
  }
  if (name == "connected") {
    m_awaitsEngine = !m_connected;
    return m_connected;
  }
  const nlohmann::json answer = m_orders.Execute(step.order);
  if (!answer["ok"].get<bool>()) {
    Log("scenario line " + std::to_string(step.line) + ": " + answer["error"].get<std::string>());
  }
  return true;
}

void Scenario::RequestArrived(const std::string& name) {
  if (m_expected.empty() || name != m_expected) return;
  m_expected.clear();
  Advance();
}

void Scenario::EngineConnected() {
  m_connected = true;
  if (!m_awaitsEngine) return;
  m_awaitsEngine = false;
  Advance();
}

}  // namespace simulator
