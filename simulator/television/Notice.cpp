#include "simulator/television/Notice.h"

#include <algorithm>

#include "simulator/television/Utf16.h"

namespace television {

namespace {

constexpr int kMostButtons = 3;
constexpr char kBetween[] = " | ";

std::string OrEmpty(const char* text) { return text == nullptr ? "" : text; }

std::string TimeOnScreen(const Notice& notice, const std::string& withoutEnd) {
  const auto milliseconds = notice.duration.count();
  return milliseconds > 0 ? std::to_string(milliseconds) + " ms" : withoutEnd;
}

std::string DrawnButton(const Notice& notice, std::size_t index) {
  const std::string& label = notice.buttons[index].label;
  return index == notice.focus ? '>' + label + '<' : '[' + label + ']';
}

}  // namespace

Notice CopyNotice(const CEngineGlobalNoticeInfo& record) {
  Notice notice;
  notice.id = record.id;
  notice.append = record.append;
  notice.duration = std::chrono::milliseconds(record.duration);
  notice.title = ToUtf8(record.title);
  notice.description = ToUtf8(record.description);
  notice.icon = OrEmpty(record.iconPath);
  for (int i = 0; i < std::min(record.buttonCount, kMostButtons); ++i)
    notice.buttons.push_back({ToUtf8(record.buttonTexts[i]), OrEmpty(record.buttonCallbacks[i])});
  notice.focus = static_cast<std::size_t>(record.defaultFocus);
  return notice;
}

std::string Drawn(const Notice& notice) {
  std::string lines = "    +-- " + notice.title + "\n    |   " + notice.description;
  for (std::size_t i = 0; i < notice.buttons.size(); ++i)
    lines += (i == 0 ? "\n    |   " : "  ") + DrawnButton(notice, i);
  return lines + "\n    +-- " + TimeOnScreen(notice, "until it is hidden");
}

std::string Written(const Notice& notice) {
  std::string line = std::to_string(notice.id) + kBetween + (notice.append ? "append" : "replace") +
                     kBetween + TimeOnScreen(notice, "until hidden") + kBetween + notice.title + kBetween +
                     notice.description + kBetween + notice.icon;
  for (std::size_t i = 0; i < notice.buttons.size(); ++i) {
    const NoticeButton& button = notice.buttons[i];
    line += kBetween + button.label + (i == notice.focus ? "*" : "");
    if (!button.command.empty()) line += " -> " + button.command;
  }
  return line;
}

}  // namespace television
