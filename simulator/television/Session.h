#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "simulator/television/DeviceRoot.h"
#include "simulator/television/EngineLibrary.h"
#include "simulator/television/Errands.h"
#include "simulator/television/Host.h"
#include "simulator/television/NoticeBoard.h"
#include "simulator/television/Records.h"
#include "simulator/television/Screen.h"
#include "simulator/television/media/MediaStudio.h"

namespace television {

// A television with its engine, driven by lines: the engine's string commands by their names, the host
// queries, and a few words of the console's own (Session.cpp lists them in one table; SessionCalls.cpp has
// those about calls, SessionLists.cpp about chats, history and the directory, SessionNotices.cpp about
// notices, SessionNumbers.cpp about telephone numbers, SessionInstall.cpp the one that installs). A person at
// the prompt and a script use the same lines. Threads: one.
class Session {
 public:
  // Throws std::runtime_error when the library cannot be loaded or the media can't be used.
  Session(const std::string& library, const DeviceRoot& root, const MediaOptions& media, Screen& screen);
  ~Session();

  // Runs one line; empty lines and those that begin with "#" do nothing.
  void Run(const std::string& line);
  // Runs lines until the end, "quit" or, for scripts, the first failed expectation.
  void RunScript(std::istream& script);

  bool Finished() const { return m_finished; }
  // Counts of "expect" and "wait" lines.
  int Held() const { return m_held; }
  int Failed() const { return m_failed; }
  // Words that a line may begin with, for completion.
  static std::vector<std::string> FirstWords();

 private:
  using Words = std::vector<std::string>;
  struct Verb {
    const char* name;
    const char* parameters;
    const char* help;
    void (Session::*run)(const Words& words);
  };
  static const Verb kVerbs[];

  void Execute(const Words& words);
  void Help(const Words& words);
  void Events(const Words& words);
  void Ask(const Words& words);
  void Start(const Words& words);
  void Restart(const Words& words);
  void Expect(const Words& words);
  void ExpectLike(const Words& words);
  void WaitEvent(const Words& words);
  void WaitControl(const Words& words);
  void Pause(const Words& words);
  void Set(const Words& words);
  void Show(const Words& words);
  void Reports(const Words& words);
  void OrderDoor(const Words& words);
  void Say(const Words& words);
  void Quit(const Words& words);
  void ListContacts(const Words& words);
  void ListChats(const Words& words);
  void ListMessages(const Words& words);
  void ListHistory(const Words& words);
  void ListFound(const Words& words);
  void ListBlocked(const Words& words);
  void ListCountries(const Words& words);
  void Dial(const Words& words);
  void Call(const Words& words);
  void AnswerCall(const Words& words);
  void HangUp(const Words& words);
  void InstallPackage(const Words& words);
  void ShowMedia(const Words& words);
  void Watch(const Words& words);
  void CompareState(const Words& words);
  void TellNotice(const Words& words);
  void PressButton(const Words& words);
  void SwitchLanguage(const Words& words);

  void Attach();
  void Detach();
  // Runs a command of the engine and answers its text.
  std::string EngineAnswer(const Words& words);
  // The same, with command and answer printed; the answer is the last one then.
  void Perform(const Words& words, const std::string& line);
  // Prints lines; together they are the last answer then.
  void List(const Words& lines);
  // Runs a list query and lists its records.
  void ListRecords(const Words& query, std::size_t fields, std::string (*line)(const Record&));
  bool IsServiceLoaded();
  // The calling code of a country given by itself or by its ISO code; empty when it can't be told.
  std::string CallingCodeOf(const std::string& country);
  // Lines about where an international number belongs.
  Words Origin(const std::string& number);
  void Hold(bool held, const std::string& expectation);
  bool Wait(const std::string& what, int seconds, const std::function<bool(const Report&)>& condition);

  const DeviceRoot& m_root;
  Screen& m_screen;
  Host m_host;
  NoticeBoard m_board;
  MediaStudio m_studio;
  Errands m_errands;
  EngineLibrary m_library;  // after what its threads call
  std::map<std::string, std::string> m_keptState;
  std::string m_line;    // as it was given, for what wants it unsplit
  std::string m_answer;  // of the last command or query
  bool m_finished = false;
  int m_held = 0;
  int m_failed = 0;
};

}  // namespace television
