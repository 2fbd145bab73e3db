// The console's words about contacts and calls.
#include <chrono>
#include <cstdlib>
#include <set>
#include <thread>

#include "simulator/television/ContactList.h"
#include "simulator/television/Session.h"
#include "simulator/television/Words.h"

namespace television {

namespace {

constexpr char kFullScreenWidget[] = "1";
constexpr char kContactsOnAPage[] = "20";
constexpr int kDefaultWatchSeconds = 5;
constexpr std::chrono::milliseconds kRedraw{200};

std::string Or(const std::string& text, const char* other) { return text.empty() ? other : text; }

}  // namespace

void Session::ListContacts(const Words& words) {
  m_screen.Command(m_line);
  const std::string start = Or(WordAt(words, 1), "0");
  const std::string count = Or(WordAt(words, 2), kContactsOnAPage);
  m_answer = EngineAnswer({"GetContactListWithoutCallMember", start, count});
  for (const Contact& contact : ReadContacts(m_answer)) {
    const std::string name = contact.identity.empty() ? contact.phone : contact.identity;
    m_screen.Line("  " + Column(Readable(contact.displayName), 24) + Column(Readable(name), 20) +
                  Column(PresenceWord(contact.availability), 24) + Readable(contact.mood));
  }
  m_screen.Line("  of " + EngineAnswer({"GetNumOfContacts"}) + " contacts");
}

void Session::Call(const Words& words) {
  if (EngineAnswer({"GetZeltoWidgetMode"}) == "0")
    Perform({"SetZeltoWidgetState", kFullScreenWidget}, "SetZeltoWidgetState 1");
  const std::string type = WordAt(words, 2) == "voice" ? "0" : "1";
  Perform({"CreateCall", WordAt(words, 1), type}, "CreateCall " + WordAt(words, 1) + ' ' + type);
}

void Session::AnswerCall(const Words& words) {
  const std::string command = WordAt(words, 1) == "voice" ? "AnswerWithVoice" : "AnswerWithVideo";
  Perform({command}, command);
}

void Session::HangUp(const Words&) { Perform({"CallEnd", "0"}, "CallEnd 0"); }

void Session::ShowMedia(const Words&) {
  m_answer = Readable(m_studio.Counts());
  m_screen.Answer(m_answer);
}

void Session::Watch(const Words& words) {
  const int seconds = words.size() > 1 ? std::atoi(words[1].c_str()) : kDefaultWatchSeconds;
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
  while (std::chrono::steady_clock::now() < end) {
    m_screen.Progress(Readable(m_studio.Counts()));
    std::this_thread::sleep_for(kRedraw);
  }
  m_screen.EndProgress();
  ShowMedia({});
}

void Session::CompareState(const Words& words) {
  if (WordAt(words, 1) == "keep") {
    m_host.WithState([this](TelevisionState& state) {
      m_keptState = state.All();
      state.ForgetSetByEngine();
    });
    return;
  }
  std::map<std::string, std::string> now;
  std::set<std::string> set;
  m_host.WithState([&](TelevisionState& state) { now = state.All(), set = state.SetByEngine(); });
  m_answer.clear();
  m_screen.Line("  " + Column("", 20) + Column("before", 26) + "after");
  for (const std::string& name : set) {
    const bool differs = m_keptState[name] != now[name];
    const std::string after = Readable(now[name]);
    m_screen.Line("  " + Column(name, 20) + Column(Readable(m_keptState[name]), 26) +
                  (differs ? Column(after, 26) + "differs" : after));
    if (differs) m_answer += (m_answer.empty() ? "" : " ") + name;
  }
  m_screen.Answer(m_answer.empty() ? "all as before" : "different: " + m_answer);
}

}  // namespace television
