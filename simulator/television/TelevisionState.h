#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace television {

struct ControlRow;

// What the modelled television is and does at the moment, as named texts ("speakerVolume" is "20"), and
// its answers to the engine's control commands, which read and change them.
// Threads: none of its own; the host serialises (Host.h).
class TelevisionState {
 public:
  TelevisionState();

  // Runs a control command of the engine and answers its text; a command that only acts answers "1",
  // an unknown one the empty text.
  std::string Control(std::string_view command, std::string_view p1, std::string_view p2, std::string_view p3,
                      std::string_view p4);
  // An event of the engine; most change nothing.
  void Event(int type);
  // Who writes the camera's picture on "MinimizeSnapShot" and answers whether there was one.
  void SetCapture(std::function<bool()> capture) { m_capture = std::move(capture); }
  // Whether the television knows the command.
  static bool Knows(std::string_view command);

  // A value; empty for an unknown name.
  std::string Get(const std::string& name) const;
  // Changes a value as the viewer's remote control would. False for an unknown name.
  bool Set(const std::string& name, const std::string& value);
  const std::map<std::string, std::string>& All() const { return m_values; }
  // The values that the engine has set since they were last forgotten.
  const std::set<std::string>& SetByEngine() const { return m_setByEngine; }
  void ForgetSetByEngine() { m_setByEngine.clear(); }

 private:
  std::string Apply(const ControlRow& row, std::string_view first, const std::string& all);

  std::map<std::string, std::string> m_values;
  std::set<std::string> m_setByEngine;
  std::function<bool()> m_capture;
};

}  // namespace television
