// The console's word that has an installer service install a package.
#include "simulator/television/Installer.h"
#include "simulator/television/Session.h"
#include "simulator/television/Words.h"

namespace television {

namespace {

constexpr char kInstallerSocket[] = "/dtv/installer";

// On a terminal one line that is drawn anew, elsewhere a line at each tenth.
class BarOnScreen {
 public:
  explicit BarOnScreen(Screen& screen) : m_screen(screen) {}

  void Show(const InstallerProgress& progress) {
    if (m_screen.IsTerminal()) return m_screen.Progress(ProgressBar(progress));
    const bool same = m_step == progress.step && m_tenths == progress.Tenths();
    if (!same) m_screen.Line("  ... " + ProgressBar(progress));
    m_step = progress.step;
    m_tenths = progress.Tenths();
  }

 private:
  Screen& m_screen;
  std::string m_step;
  int m_tenths = 0;
};

}  // namespace

void Session::InstallPackage(const Words& words) {
  m_screen.Command(m_line);
  const std::string address = words.size() > 2 ? words[2] : kInstallerSocket;
  BarOnScreen bar(m_screen);
  Installer installer(address, [&](const InstallerProgress& progress) { bar.Show(progress); });
  const std::string failure = installer.Install(WordAt(words, 1));
  m_screen.EndProgress();
  m_answer = failure.empty() ? "installed" : Readable(failure);
  if (failure.empty()) return m_screen.Answer(m_answer);
  Hold(false, m_answer);
}

}  // namespace television
