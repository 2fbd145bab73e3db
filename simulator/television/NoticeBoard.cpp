#include "simulator/television/NoticeBoard.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace television {

namespace {

constexpr int kHideNotice = 18;

// The button that was meant; as many as there are when there is no such one.
std::size_t IndexOf(const std::string& button, const Notice& notice) {
  if (button.empty()) return std::min(notice.focus, notice.buttons.size());
  std::size_t index = 0;
  for (const NoticeButton& candidate : notice.buttons) {
    if (button == candidate.label || button == candidate.command || button == std::to_string(index + 1))
      break;
    ++index;
  }
  return index;
}

}  // namespace

NoticeBoard::NoticeBoard(std::function<void(const std::string& lines)> print)
    : m_print(std::move(print)), m_closer([this] { CloseInTime(); }) {}

NoticeBoard::~NoticeBoard() {
  {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_ending = true;
  }
  m_changed.notify_all();
  m_closer.join();
}

void NoticeBoard::Take(const Report& report) {
  if (report.notice != nullptr) return Show(report.notice);
  const bool hides = report.kind == Report::Kind::Event && report.type == kHideNotice;
  if (hides && !report.parameters.empty())
    Hide(static_cast<int>(std::strtol(report.parameters.front().c_str(), nullptr, 10)));
}

void NoticeBoard::Clear() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_shown.clear();
}

std::shared_ptr<const Notice> NoticeBoard::Newest() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  return m_shown.empty() ? nullptr : m_shown.back().notice;
}

std::optional<NoticeButton> NoticeBoard::Press(const std::string& button) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (m_shown.empty()) return std::nullopt;
  const std::shared_ptr<const Notice> notice = m_shown.back().notice;
  const std::size_t index = IndexOf(button, *notice);
  const bool justCloses = button.empty() && notice->buttons.empty();
  if (index == notice->buttons.size() && !justCloses) return std::nullopt;
  m_shown.pop_back();
  return justCloses ? NoticeButton{} : notice->buttons[index];
}

void NoticeBoard::Show(std::shared_ptr<const Notice> notice) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  const bool stays = notice->duration.count() <= 0;
  const Shown shown{notice, stays ? Clock::time_point::max() : Clock::now() + notice->duration};
  const auto sameId = std::find_if(m_shown.rbegin(), m_shown.rend(),
                                   [&](const Shown& other) { return other.notice->id == notice->id; });
  if (notice->append || sameId == m_shown.rend()) {
    m_shown.push_back(shown);
  } else {
    *sameId = shown;
  }
  m_print(Drawn(*notice));
  m_changed.notify_all();
}

void NoticeBoard::Hide(int id) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  CloseIf([id](const Shown& shown) { return shown.notice->id == id; }, "is hidden by the engine");
}

void NoticeBoard::CloseInTime() {
  std::unique_lock<std::mutex> lock(m_mutex);
  while (!m_ending) {
    const auto first = std::min_element(m_shown.begin(), m_shown.end(),
                                        [](const Shown& a, const Shown& b) { return a.until < b.until; });
    if (first == m_shown.end() || first->until == Clock::time_point::max()) {
      m_changed.wait(lock);
    } else {
      m_changed.wait_until(lock, Clock::time_point(first->until));
    }
    CloseIf([now = Clock::now()](const Shown& shown) { return shown.until <= now; },
            "closes, its time is over");
  }
}

void NoticeBoard::CloseIf(const std::function<bool(const Shown&)>& condition, const char* why) {
  for (auto shown = m_shown.begin(); shown != m_shown.end();) {
    const bool closes = condition(*shown);
    if (closes) m_print("    --- \"" + shown->notice->description + "\" " + why);
    shown = closes ? m_shown.erase(shown) : shown + 1;
  }
}

}  // namespace television
