#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "Common/IMoIPEngine.h"

namespace television {

struct NoticeButton {
  std::string label;
  std::string command;  // the engine's, to be executed; empty: the button only closes the notice
};

// A popup of the engine, copied, in UTF-8.
struct Notice {
  int id = 0;
  bool append = true;                     // false: in the place of the one of this id that is shown
  std::chrono::milliseconds duration{0};  // on the screen; 0 until it is hidden
  std::string title;
  std::string description;
  std::string icon;
  std::vector<NoticeButton> buttons;
  std::size_t focus = 0;  // index of the button that has it
};

// Nothing of the record is used afterwards.
Notice CopyNotice(const CEngineGlobalNoticeInfo& record);

// The notice as it lies over the programme, a few lines.
std::string Drawn(const Notice& notice);

// All fields as one line, for comparing; the focused button has an asterisk.
std::string Written(const Notice& notice);

}  // namespace television
