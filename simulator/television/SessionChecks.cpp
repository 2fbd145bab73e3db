// What a script expects: answers, events, control calls.
#include <chrono>
#include <cstdlib>
#include <regex>

#include "simulator/television/Catalogue.h"
#include "simulator/television/Session.h"
#include "simulator/television/Words.h"

namespace television {

namespace {

constexpr int kDefaultWaitSeconds = 10;

int Seconds(const std::vector<std::string>& words, std::size_t index) {
  return index < words.size() ? static_cast<int>(std::strtol(words[index].c_str(), nullptr, 10))
                              : kDefaultWaitSeconds;
}

}  // namespace

void Session::Hold(bool held, const std::string& expectation) {
  ++(held ? m_held : m_failed);
  if (!held) m_screen.Problem(expectation);
}

void Session::Expect(const Words& words) {
  const std::string expected = WordAt(words, 1);
  Hold(m_answer == expected,
       "expected \"" + Readable(expected) + "\", the answer is \"" + Readable(m_answer) + "\"");
}

void Session::ExpectLike(const Words&) {
  const std::string expression = AfterFirstWord(m_line);
  try {
    Hold(std::regex_search(Readable(m_answer), std::regex(expression)),
         "expected something like " + expression + ", the answer is \"" + Readable(m_answer) + "\"");
  } catch (const std::regex_error& error) {
    Hold(false, "no regular expression: " + expression + " (" + error.what() + ")");
  }
}

bool Session::Wait(const std::string& what, int seconds,
                   const std::function<bool(const Report&)>& condition) {
  bool found = false;
  for (int second = 0; !found && second < seconds; ++second) {
    if (second > 0) m_screen.Progress("waiting for " + what + ", " + std::to_string(second) + " s");
    found = m_host.WaitFor(condition, std::chrono::seconds(1));
  }
  m_screen.EndProgress();
  return found;
}

void Session::WaitEvent(const Words& words) {
  const int type = EventNumber(WordAt(words, 1));
  const int seconds = Seconds(words, 2);
  if (type < 0) return Hold(false, "no such event: " + WordAt(words, 1));
  const bool anyParameter = words.size() < 4;
  const std::string what = std::to_string(type) + ' ' + EventName(type);
  Hold(Wait(what, seconds,
            [&](const Report& report) {
              return report.kind == Report::Kind::Event && report.type == type &&
                     (anyParameter || WordAt(report.parameters, 0) == words[3]);
            }),
       "no event " + what + (anyParameter ? "" : " with " + words[3]) + " within " + std::to_string(seconds) +
           " s");
}

void Session::WaitControl(const Words& words) {
  const int seconds = Seconds(words, 2);
  const std::string command = WordAt(words, 1);
  Hold(Wait("control call " + command, seconds,
            [&](const Report& report) {
              return report.kind == Report::Kind::Control && report.command == command;
            }),
       "no control call " + command + " within " + std::to_string(seconds) + " s");
}

void Session::Pause(const Words& words) {
  Wait("time to pass", Seconds(words, 1), [](const Report&) { return false; });
}

}  // namespace television
