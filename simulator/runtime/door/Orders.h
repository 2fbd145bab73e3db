// What the test door and scenario files can order.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace simulator {

class Faults;
class Media;
class Wire;
struct Session;

// What orders act on. The session is null while no engine is connected, media where there is none.
struct Controls {
  Wire& wire;
  Faults& faults;
  Session* session = nullptr;
  Media* media = nullptr;
};

// An order is an object {"order": NAME, ...}; the answer holds "ok", and "error" in words when that is
// false. No order fails in another way, unless it is to end the process.
// Threads: none of its own.
class Orders {
 public:
  explicit Orders(Controls& controls) : m_controls(controls) {}

  nlohmann::json Execute(const nlohmann::json& order);
  // One line of JSON in, one line out, without their ends.
  std::string ExecuteLine(std::string_view line);

  // Reads an order in words: its name, then key=value words, values with blanks in quotes. A word without
  // "=" is the order's main argument. Throws std::invalid_argument with the reason.
  static nlohmann::json FromWords(std::string_view line);

 private:
  Controls& m_controls;
};

}  // namespace simulator
