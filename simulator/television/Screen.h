#pragma once

#include <mutex>
#include <string>

#include "simulator/television/Host.h"

namespace television {

// Everything the program prints, one whole line at a time, with colours on a terminal.
// Threads: any.
class Screen {
 public:
  Screen();

  void Heading(const std::string& text);
  void Command(const std::string& text);
  void Answer(const std::string& text);
  void Problem(const std::string& text);
  void Line(const std::string& text);
  // An event or a control call of the engine; nothing while muted.
  void Show(const Report& report);
  void ShowReports(bool shown);
  // A wait that goes on; on a terminal the line is drawn anew each time.
  void Progress(const std::string& text, int seconds);
  void EndProgress();

 private:
  void Print(const char* colour, const std::string& text);

  const bool m_terminal;
  std::mutex m_mutex;
  bool m_reports = true;
  bool m_inProgress = false;
};

}  // namespace television
