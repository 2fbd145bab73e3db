#include "simulator/television/Screen.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>

#include "simulator/television/Catalogue.h"
#include "simulator/television/Words.h"

namespace television {

namespace {

constexpr char kPlain[] = "\033[0m";
constexpr char kBold[] = "\033[1m";
constexpr char kGreen[] = "\033[32m";
constexpr char kRed[] = "\033[31m";
constexpr char kCyan[] = "\033[36m";
constexpr char kGrey[] = "\033[90m";

// Without a terminal a line is enough once in a second; a little less, so that none is left out.
constexpr std::chrono::milliseconds kQuietProgress{900};

constexpr std::size_t kUsualWidth = 80;
constexpr std::size_t kMargin = 8;

std::size_t Width(std::FILE* terminal) {
  winsize size{};
  const bool known = ioctl(fileno(terminal), TIOCGWINSZ, &size) == 0 && size.ws_col > 2 * kMargin;
  return known ? size.ws_col : kUsualWidth;
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += ' ' + (text.empty() ? "\"\"" : Readable(text));
  return joined;
}

}  // namespace

Screen::Screen()
    : m_out(fdopen(dup(STDOUT_FILENO), "w"), &std::fclose), m_terminal(isatty(fileno(m_out.get())) != 0) {}

void Screen::Heading(const std::string& text) { Print(kBold, "\n== " + text); }
void Screen::Command(const std::string& text) { Print(kPlain, "> " + text); }
void Screen::Answer(const std::string& text) { Print(kGreen, "  = " + Readable(text)); }
void Screen::Problem(const std::string& text) { Print(kRed, "  ! " + text); }
void Screen::Line(const std::string& text) { Print(kPlain, text); }

void Screen::Show(const Report& report) {
  {
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_reports) return;
  }
  if (report.kind == Report::Kind::Event) {
    Print(kCyan, "  * event " + std::to_string(report.type) + ' ' + EventName(report.type) +
                     Joined(report.parameters));
  } else {
    Print(kGrey, "  < " + report.command + Joined(report.parameters) + " -> " + Readable(report.answer));
  }
}

void Screen::ShowReports(bool shown) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_reports = shown;
}

void Screen::Progress(const std::string& text) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  const auto now = std::chrono::steady_clock::now();
  if (m_terminal) {
    // One screen line: a longer one could not be drawn over.
    std::fprintf(m_out.get(), "\r  ... %s\033[K", text.substr(0, Width(m_out.get()) - kMargin).c_str());
    m_inProgress = true;
  } else if (now - m_lastProgress >= kQuietProgress) {
    std::fprintf(m_out.get(), "  ... %s\n", text.c_str());
    m_lastProgress = now;
  }
  std::fflush(m_out.get());
}

void Screen::EndProgress() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (m_inProgress) std::fprintf(m_out.get(), "\r\033[K");
  m_inProgress = false;
  std::fflush(m_out.get());
}

void Screen::Print(const char* colour, const std::string& text) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (m_inProgress) std::fprintf(m_out.get(), "\r\033[K");
  m_inProgress = false;
  if (m_terminal) {
    std::fprintf(m_out.get(), "%s%s%s\n", colour, text.c_str(), kPlain);
  } else {
    std::fprintf(m_out.get(), "%s\n", text.c_str());
  }
  std::fflush(m_out.get());
}

}  // namespace television
