#pragma once

#include <chrono>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>

#include "simulator/television/Host.h"

namespace television {

// Everything the program prints, one whole line at a time, with colours on a terminal. It goes where the
// standard output went when this object was made.
// Threads: any.
class Screen {
 public:
  Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  void Heading(const std::string& text);
  void Command(const std::string& text);
  void Answer(const std::string& text);
  void Problem(const std::string& text);
  void Line(const std::string& text);
  // An event or a control call of the engine; nothing while muted.
  void Show(const Report& report);
  void ShowReports(bool shown);
  // Something that goes on: on a terminal the line is drawn anew each time, otherwise there is one a second
  // at most.
  void Progress(const std::string& text);
  void EndProgress();
  bool IsTerminal() const { return m_terminal; }
  // For a prompt.
  std::FILE* Stream() { return m_out.get(); }

 private:
  void Print(const char* colour, const std::string& text);

  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_out;
  const bool m_terminal;
  std::mutex m_mutex;
  bool m_reports = true;
  bool m_inProgress = false;
  std::chrono::steady_clock::time_point m_lastProgress{};
};

}  // namespace television
