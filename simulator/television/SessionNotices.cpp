// The console's words about notices and the language that they come in.
#include "simulator/television/Languages.h"
#include "simulator/television/Session.h"
#include "simulator/television/Words.h"

namespace television {

void Session::TellNotice(const Words&) {
  const auto notice = m_board.Newest();
  m_answer = notice == nullptr ? "none" : Written(*notice);
  m_screen.Answer(m_answer);
}

void Session::PressButton(const Words& words) {
  m_screen.Command(m_line);
  const auto button = m_board.Press(WordAt(words, 1));
  if (!button) return Hold(false, "no notice with that button is on top");
  if (!button->command.empty()) Perform({button->command}, button->command);
}

void Session::SwitchLanguage(const Words& words) {
  m_screen.Command(m_line);
  const Language* language = FindLanguage(WordAt(words, 1));
  if (language == nullptr) {
    for (const Language& known : Languages())
      m_screen.Line("  " + Column(known.number, 4) + Column(known.code, 8) + Column(known.tag, 12) +
                    known.name);
    if (words.size() > 1) Hold(false, "no such language");
    return;
  }
  m_host.WithState([&](TelevisionState& state) { state.Set("language", language->number); });
  m_answer = language->name;
  m_screen.Answer(m_answer);
}

}  // namespace television
