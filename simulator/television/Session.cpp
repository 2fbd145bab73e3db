#include "simulator/television/Session.h"

#include <algorithm>
#include <cstdlib>
#include <istream>
#include <iterator>
#include <stdexcept>

#include "simulator/television/Catalogue.h"
#include "simulator/television/Door.h"
#include "simulator/television/Queries.h"
#include "simulator/television/Words.h"

namespace television {

namespace {

// Where the engine looks for the picture that it asked for.
constexpr char kCaptureFile[] = "/tmp/capture.jpg";

}  // namespace

// clang-format off
const Session::Verb Session::kVerbs[] = {
    {"help",         "[group|command|word]",   "lists groups, a group's commands, or one command",         &Session::Help},
    {"events",       "",                       "lists the engine's events",                                &Session::Events},
    {"query",        "name [parameters]",      "asks one of the host queries",                             &Session::Ask},
    {"start",        "",                       "registers the data callback, which loads the service",     &Session::Start},
    {"restart",      "",                       "ends the engine and starts another one",                   &Session::Restart},
    {"wait",         "event [seconds [param]]","waits for an event, by number or name",                    &Session::WaitEvent},
    {"wait-control", "command [seconds]",      "waits for a control call of the engine",                   &Session::WaitControl},
    {"pause",        "seconds",                "lets time pass",                                           &Session::Pause},
    {"expect",       "text",                   "the last answer must be this",                             &Session::Expect},
    {"expect-like",  "expression",             "the last answer must match this regular expression",       &Session::ExpectLike},
    {"set",          "name value",             "changes the television, as the remote control would",      &Session::Set},
    {"show",         "[name]",                 "shows the television",                                     &Session::Show},
    {"reports",      "on|off",                 "prints events and control calls as they arrive, or not",   &Session::Reports},
    {"door",         "json",                   "sends an order through the runtime's test door",           &Session::OrderDoor},
    {"contacts",     "[start [count]]",        "lists contacts with their presence",                       &Session::ListContacts},
    {"chats",        "[start [count]]",        "lists chats with how much of them is unread",              &Session::ListChats},
    {"messages",     "[count]",                "the last messages of the open chat",                       &Session::ListMessages},
    {"history",      "[start [count]]",        "calls and voicemails, unseen ones first",                  &Session::ListHistory},
    {"found",        "",                       "who was found in the directory",                           &Session::ListFound},
    {"blocked",      "",                       "who is blocked",                                           &Session::ListBlocked},
    {"countries",    "[language [count]]",     "the first countries of the picker, with calling codes",    &Session::ListCountries},
    {"dial",         "country area number",    "how a number is dialled from there, and whose it is",      &Session::Dial},
    {"call",         "name [voice|video]",     "calls somebody, and opens the widget if it is closed",     &Session::Call},
    {"answer",       "[voice|video]",          "takes an incoming call",                                   &Session::AnswerCall},
    {"hangup",       "",                       "ends the call, or refuses it",                             &Session::HangUp},
    {"install",      "package [address]",      "has an installer service install it, with a progress bar", &Session::InstallPackage},
    {"media",        "",                       "counters of the call's sound and pictures",                &Session::ShowMedia},
    {"watch",        "[seconds]",              "the same counters while they run",                         &Session::Watch},
    {"state",        "keep|compare",           "the television before (keep) and after (compare) a call",  &Session::CompareState},
    {"notice",       "",                       "the notice on top, in one line, or \"none\"",             &Session::TellNotice},
    {"press",        "[button]",               "presses a button of it (number, label, command)",          &Session::PressButton},
    {"language",     "[name|code|number]",     "switches the television's language, or lists them",         &Session::SwitchLanguage},
    {"say",          "text",                   "prints a heading",                                         &Session::Say},
    {"quit",         "",                       "switches the television off",                              &Session::Quit},
};
// clang-format on

Session::Session(const std::string& library, const DeviceRoot& root, const MediaOptions& media,
                 Screen& screen)
    : m_root(root),
      m_screen(screen),
      m_board([this](const std::string& lines) { m_screen.Line(lines); }),
      m_studio(media),
      m_errands([this](const std::string& line, const std::string& answer) {
        m_screen.Command(line + "   (the television itself)");
        m_screen.Answer(answer);
      }),
      m_library(library) {
  m_host.SetObserver([this](const Report& report) {
    m_screen.Show(report);
    m_board.Take(report);
    m_studio.Control(report.command);
    m_errands.Take(report);
  });
  m_host.SetMediaSink(
      [this](const CAVData& record, unsigned int* waiting) { m_studio.Take(record, waiting); });
  m_host.WithState([this](TelevisionState& state) {
    state.SetCapture([this] { return m_studio.Capture(m_root.Path() + kCaptureFile); });
  });
  Attach();
}

Session::~Session() { Detach(); }

void Session::Attach() {
  m_host.Attach(m_library.Engine());
  m_studio.Attach(m_library.Engine());
  m_errands.Attach(m_library.Engine());
}

void Session::Detach() {
  m_errands.Detach();
  m_studio.Detach();
  m_board.Clear();
}

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

std::string Session::EngineAnswer(const Words& words) {
  const char* texts[5] = {};
  for (std::size_t i = 0; i < words.size() && i < std::size(texts); ++i) texts[i] = words[i].c_str();
  return m_library.Engine().Execute(texts[0], texts[1], texts[2], texts[3], texts[4]);
}

void Session::Perform(const Words& words, const std::string& line) {
  m_screen.Command(line);
  m_answer = EngineAnswer(words);
  m_screen.Answer(m_answer);
}

void Session::Execute(const Words& words) { Perform(words, m_line); }

void Session::Ask(const Words& words) {
  m_screen.Command(m_line);
  const Query* query = FindQuery(WordAt(words, 1));
  if (query == nullptr) {
    for (const Query& known : Queries()) m_screen.Line("  " + Column(known.name, 24) + known.parameters);
    return Hold(false, "no such query");
  }
  m_answer = query->ask(m_library.Engine(), Words(words.begin() + 2, words.end()));
  m_screen.Answer(m_answer);
}

void Session::Start(const Words&) { m_host.StartService(m_library.Engine()); }

void Session::Restart(const Words&) {
  Detach();
  m_library.Restart();
  m_host.Mark();
  Attach();
  Start({});
}

void Session::Set(const Words& words) {
  bool known = false;
  m_host.WithState([&](TelevisionState& state) { known = state.Set(WordAt(words, 1), WordAt(words, 2)); });
  if (!known) Hold(false, "the television has no \"" + WordAt(words, 1) + "\" (\"show\" lists what it has)");
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

void Session::Reports(const Words& words) { m_screen.ShowReports(WordAt(words, 1) != "off"); }

void Session::OrderDoor(const Words&) {
  m_screen.Command(m_line);
  try {
    m_answer = OrderThroughDoor(m_root.Door(), AfterFirstWord(m_line));
    m_screen.Answer(m_answer);
  } catch (const std::runtime_error& error) {
    Hold(false, error.what());
  }
}

void Session::Say(const Words&) { m_screen.Heading(AfterFirstWord(m_line)); }

void Session::Quit(const Words&) { m_finished = true; }

void Session::Help(const Words& words) {
  const std::string wanted = WordAt(words, 1);
  const auto line = [this](const Verb& verb) {
    m_screen.Line("  " + Column(std::string(verb.name) + ' ' + verb.parameters, 40) + verb.help);
  };
  bool shown = false;
  for (const Verb& verb : kVerbs) {
    if (wanted != verb.name) continue;
    line(verb);
    shown = true;
  }
  std::vector<std::string> groups;
  for (const Command& command : Commands()) {
    if (std::find(groups.begin(), groups.end(), command.group) == groups.end())
      groups.emplace_back(command.group);
    if (wanted != command.group && wanted != command.name) continue;
    m_screen.Line("  " + Column(command.name, 40) + command.parameters);
    shown = true;
  }
  if (shown) return;
  for (const Verb& verb : kVerbs) line(verb);
  m_screen.Line("  and the engine's commands, by name; their groups:");
  for (const std::string& group : groups) m_screen.Line("    " + group);
}

void Session::Events(const Words&) {
  for (const int type : EventNumbers())
    m_screen.Line("  " + Column(std::to_string(type), 8) + EventName(type));
}

}  // namespace television
