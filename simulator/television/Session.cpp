#include "simulator/television/Session.h"

#include <algorithm>
#include <cstdlib>
#include <istream>
#include <iterator>
#include <regex>
#include <stdexcept>

#include "simulator/television/Catalogue.h"
#include "simulator/television/Door.h"
#include "simulator/television/Queries.h"
#include "simulator/television/Words.h"

namespace television {

namespace {

constexpr int kDefaultWaitSeconds = 10;

std::string Word(const std::vector<std::string>& words, std::size_t index) {
  return index < words.size() ? words[index] : std::string();
}

int Seconds(const std::vector<std::string>& words, std::size_t index) {
  return index < words.size() ? static_cast<int>(std::strtol(words[index].c_str(), nullptr, 10))
                              : kDefaultWaitSeconds;
}

// What follows the first word, unsplit.
std::string Rest(const std::string& line) {
  const std::size_t start = line.find_first_not_of(" \t");
  const std::size_t blank = line.find_first_of(" \t", start);
  const std::size_t rest = line.find_first_not_of(" \t", blank);
  return blank == std::string::npos || rest == std::string::npos ? std::string() : line.substr(rest);
}

std::string Column(std::string text, std::size_t width) {
  text.resize(std::max(text.size() + 1, width), ' ');
  return text;
}

}  // namespace

// clang-format off
const Session::Verb Session::kVerbs[] = {
    {"help",         "[group|command]",        "lists groups, a group's commands, or one command",         &Session::Help},
    {"events",       "",                       "lists the engine's events",                                &Session::Events},
    {"query",        "name [parameters]",      "asks one of the host queries",                             &Session::Ask},
    {"start",        "",                       "registers the data callback, which loads the service",     &Session::Start},
    {"restart",      "",                       "ends the engine and starts another one",                   &Session::Restart},
    {"wait",         "event [seconds [param]]","waits for an event, by number or name",                    &Session::WaitEvent},
    {"wait-control", "command [seconds]",      "waits for a control call of the engine",                   &Session::WaitControl},
    {"expect",       "text",                   "the last answer must be this",                             &Session::Expect},
    {"expect-like",  "expression",             "the last answer must match this regular expression",       &Session::ExpectLike},
    {"set",          "name value",             "changes the television, as the remote control would",      &Session::Set},
    {"show",         "[name]",                 "shows the television",                                     &Session::Show},
    {"reports",      "on|off",                 "prints events and control calls as they arrive, or not",   &Session::Reports},
    {"door",         "json",                   "sends an order through the runtime's test door",           &Session::OrderDoor},
    {"say",          "text",                   "prints a heading",                                         &Session::Say},
    {"quit",         "",                       "switches the television off",                              &Session::Quit},
};
// clang-format on

Session::Session(const std::string& library, const DeviceRoot& root, Screen& screen)
    : m_root(root), m_screen(screen), m_library(library) {
  m_host.SetObserver([this](const Report& report) { m_screen.Show(report); });
  Attach();
}

Session::~Session() = default;

void Session::Attach() { m_host.Attach(m_library.Engine()); }

void Session::Run(const std::string& line) {
  const Words words = SplitWords(line);
  if (words.empty() || words.front().front() == '#') return;
  m_line = line;
  const auto verb = std::find_if(std::begin(kVerbs), std::end(kVerbs),
                                 [&](const Verb& candidate) { return words.front() == candidate.name; });
  if (verb != std::end(kVerbs)) {
    (this->*verb->run)(words);
  } else if (FindCommand(words.front()) != nullptr) {
    Execute(words);
  } else {
    Hold(false, "no such command: " + words.front() + " (\"help\" lists them)");
  }
}

void Session::RunScript(std::istream& script) {
  const int failedBefore = m_failed;
  for (std::string line; !m_finished && m_failed == failedBefore && std::getline(script, line);) Run(line);
}

std::vector<std::string> Session::FirstWords() {
  std::vector<std::string> words;
  for (const Verb& verb : kVerbs) words.emplace_back(verb.name);
  for (const Command& command : Commands()) words.emplace_back(command.name);
  return words;
}

void Session::Execute(const Words& words) {
  m_screen.Command(m_line);
  const char* parameters[4] = {};
  for (std::size_t i = 1; i < words.size() && i <= std::size(parameters); ++i)
    parameters[i - 1] = words[i].c_str();
  m_answer = m_library.Engine().Execute(words.front().c_str(), parameters[0], parameters[1], parameters[2],
                                        parameters[3]);
  m_screen.Answer(m_answer);
}

void Session::Ask(const Words& words) {
  m_screen.Command(m_line);
  const Query* query = FindQuery(Word(words, 1));
  if (query == nullptr) {
    for (const Query& known : Queries()) m_screen.Line("  " + Column(known.name, 24) + known.parameters);
    return Hold(false, "no such query");
  }
  m_answer = query->ask(m_library.Engine(), Words(words.begin() + 2, words.end()));
  m_screen.Answer(m_answer);
}

void Session::Start(const Words&) { m_host.StartService(m_library.Engine()); }

void Session::Restart(const Words&) {
  m_library.Restart();
  m_host.Mark();
  Attach();
  Start({});
}

void Session::Hold(bool held, const std::string& expectation) {
  ++(held ? m_held : m_failed);
  if (!held) m_screen.Problem(expectation);
}

void Session::Expect(const Words& words) {
  const std::string expected = Word(words, 1);
  Hold(m_answer == expected,
       "expected \"" + Readable(expected) + "\", the answer is \"" + Readable(m_answer) + "\"");
}

void Session::ExpectLike(const Words&) {
  const std::string expression = Rest(m_line);
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
    if (second > 0) m_screen.Progress("waiting for " + what, second);
    found = m_host.WaitFor(condition, std::chrono::seconds(1));
  }
  m_screen.EndProgress();
  return found;
}

void Session::WaitEvent(const Words& words) {
  const int type = EventNumber(Word(words, 1));
  const int seconds = Seconds(words, 2);
  if (type < 0) return Hold(false, "no such event: " + Word(words, 1));
  const bool anyParameter = words.size() < 4;
  const std::string what = std::to_string(type) + ' ' + EventName(type);
  Hold(Wait(what, seconds,
            [&](const Report& report) {
              return report.kind == Report::Kind::Event && report.type == type &&
                     (anyParameter || Word(report.parameters, 0) == words[3]);
            }),
       "no event " + what + (anyParameter ? "" : " with " + words[3]) + " within " + std::to_string(seconds) +
           " s");
}

void Session::WaitControl(const Words& words) {
  const int seconds = Seconds(words, 2);
  const std::string command = Word(words, 1);
  Hold(Wait("control call " + command, seconds,
            [&](const Report& report) {
              return report.kind == Report::Kind::Control && report.command == command;
            }),
       "no control call " + command + " within " + std::to_string(seconds) + " s");
}

void Session::Set(const Words& words) {
  bool known = false;
  m_host.WithState([&](TelevisionState& state) { known = state.Set(Word(words, 1), Word(words, 2)); });
  if (!known) Hold(false, "the television has no \"" + Word(words, 1) + "\" (\"show\" lists what it has)");
}

void Session::Show(const Words& words) {
  m_host.WithState([&](TelevisionState& state) {
    if (words.size() > 1) {
      m_answer = state.Get(words[1]);
    } else {
      for (const auto& [name, value] : state.All()) m_screen.Line("  " + Column(name, 20) + Readable(value));
    }
  });
  if (words.size() > 1) m_screen.Answer(m_answer);
}

void Session::Reports(const Words& words) { m_screen.ShowReports(Word(words, 1) != "off"); }

void Session::OrderDoor(const Words&) {
  m_screen.Command(m_line);
  try {
    m_answer = OrderThroughDoor(m_root.Door(), Rest(m_line));
    m_screen.Answer(m_answer);
  } catch (const std::runtime_error& error) {
    Hold(false, error.what());
  }
}

void Session::Say(const Words&) { m_screen.Heading(Rest(m_line)); }

void Session::Quit(const Words&) { m_finished = true; }

void Session::Help(const Words& words) {
  const std::string wanted = Word(words, 1);
  std::vector<std::string> groups;
  bool shown = false;
  for (const Command& command : Commands()) {
    if (std::find(groups.begin(), groups.end(), command.group) == groups.end())
      groups.emplace_back(command.group);
    if (wanted != command.group && wanted != command.name) continue;
    m_screen.Line("  " + Column(command.name, 40) + command.parameters);
    shown = true;
  }
  if (shown) return;
  for (const Verb& verb : kVerbs)
    m_screen.Line("  " + Column(std::string(verb.name) + ' ' + verb.parameters, 40) + verb.help);
  m_screen.Line("  and the engine's commands, by name; their groups:");
  for (const std::string& group : groups) m_screen.Line("    " + group);
}

void Session::Events(const Words&) {
  for (const int type : EventNumbers())
    m_screen.Line("  " + Column(std::to_string(type), 8) + EventName(type));
}

}  // namespace television
