#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "simulator/television/Host.h"
#include "simulator/television/Notice.h"

namespace television {

// The notices that lie over the programme: one on top of the other, each until its time is over, the engine
// hides it or a button of it is pressed.
// Threads: any; a thread of its own closes what has been shown long enough.
class NoticeBoard {
 public:
  // `print` is given what a viewer sees happen, whole lines; it must not call the board.
  explicit NoticeBoard(std::function<void(const std::string& lines)> print);
  ~NoticeBoard();
  NoticeBoard(const NoticeBoard&) = delete;
  NoticeBoard& operator=(const NoticeBoard&) = delete;

  // A report of the engine, on the engine's thread.
  void Take(const Report& report);
  // Takes all notices away without a word, as when the television is switched off.
  void Clear();

  // The notice on top; null when none is shown.
  std::shared_ptr<const Notice> Newest();
  // Presses a button of the notice on top, which closes it: by its number from 1, its label or its command;
  // empty is the focused one, or just closes a notice without buttons. Nothing when there is no such button;
  // the notice stays then. The caller executes the button's command.
  std::optional<NoticeButton> Press(const std::string& button);

 private:
  using Clock = std::chrono::steady_clock;
  struct Shown {
    std::shared_ptr<const Notice> notice;
    Clock::time_point until;
  };

  void Show(std::shared_ptr<const Notice> notice);
  void Hide(int id);
  void CloseInTime();
  // Closes those for which it holds and says why. With the mutex held.
  void CloseIf(const std::function<bool(const Shown&)>& condition, const char* why);

  const std::function<void(const std::string& lines)> m_print;
  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::vector<Shown> m_shown;  // the last one is on top
  bool m_ending = false;
  std::thread m_closer;  // last: uses the others
};

}  // namespace television
