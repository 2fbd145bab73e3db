#include "simulator/television/Screen.h"

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

// Without a terminal a waiting line is enough once in so many seconds.
constexpr int kQuietProgressSeconds = 2;

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += ' ' + (text.empty() ? "\"\"" : Readable(text));
  return joined;
}

}  // namespace

Screen::Screen() : m_terminal(isatty(STDOUT_FILENO) != 0) {}

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

void Screen::Progress(const std::string& text, int seconds) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (m_terminal) {
    std::printf("\r  ... %s, %d s\033[K", text.c_str(), seconds);
    m_inProgress = true;
  } else if (seconds % kQuietProgressSeconds == 0) {
    std::printf("  ... %s, %d s\n", text.c_str(), seconds);
  }
  std::fflush(stdout);
}

void Screen::EndProgress() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (m_inProgress) std::printf("\r\033[K");
  m_inProgress = false;
  std::fflush(stdout);
}

void Screen::Print(const char* colour, const std::string& text) {
  const std::lock_guard<std::mutex> lock(m_mutex);
  if (m_inProgress) std::printf("\r\033[K");
  m_inProgress = false;
  if (m_terminal) {
    std::printf("%s%s%s\n", colour, text.c_str(), kPlain);
  } else {
    std::printf("%s\n", text.c_str());
  }
  std::fflush(stdout);
}

}  // namespace television
