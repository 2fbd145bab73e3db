#pragma once

#include <memory>
#include <string>

#include "Common/IMoIPEngine.h"
#include "Common/ZeltoResourceManager.h"

namespace zelto {

// The popups that the host shows while the viewer watches television, in the television's language.
// Which event shows or hides which notice stands in EventReactionTable.h, what a notice says in
// NoticeTable.h. Threads: the event thread. Lives as long as the process.
class Notices {
 public:
  static Notices& Get() {
    static Notices* const notices = new Notices;
    return *notices;
  }

  // Builds the notice and hands it to the host, which copies what it keeps. `param` is the event's: the
  // seconds of a call's duration. Nothing is shown for an unknown number, or when the notice has nobody to
  // name.
  void Show(int id, int param);
  void Hide(int id);
  void HideAll();
  // Frees the notice that is being built or delivered, if there is one.
  void Discard();
  // As before the first notice: for a new engine.
  void Reset();

 private:
  Notices() = default;
  bool Fill(int id, int param);

  CZeltoResourceManager m_texts;
  std::unique_ptr<CEngineGlobalNoticeInfo> m_notice;  // being built or delivered
  bool m_durationShown = false;  // the notice of the present call's duration is on the screen
};

}  // namespace zelto
