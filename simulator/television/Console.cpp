#include "simulator/television/Console.h"

#include <editline/readline.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "simulator/television/Queries.h"

namespace television {

namespace {

// The library asks for one candidate at a time and frees it.
char* NextOf(const std::vector<std::string>& words, const char* start, int state) {
  static std::size_t next = 0;
  if (state == 0) next = 0;
  while (next < words.size()) {
    const std::string& word = words[next++];
    if (word.compare(0, std::strlen(start), start) == 0) return strdup(word.c_str());
  }
  return nullptr;
}

char* NextFirstWord(const char* start, int state) {
  static const std::vector<std::string> words = Session::FirstWords();
  return NextOf(words, start, state);
}

char* NextQuery(const char* start, int state) {
  static const std::vector<std::string> words = [] {
    std::vector<std::string> names;
    for (const Query& query : Queries()) names.emplace_back(query.name);
    return names;
  }();
  return NextOf(words, start, state);
}

char** Complete(const char* text, int start, int) {
  rl_attempted_completion_over = 1;
  const std::string before(rl_line_buffer, static_cast<std::size_t>(std::max(start, 0)));
  if (before.find_first_not_of(' ') == std::string::npos) return rl_completion_matches(text, &NextFirstWord);
  if (before.rfind("query ", 0) == 0) return rl_completion_matches(text, &NextQuery);
  if (before.rfind("help ", 0) == 0) return rl_completion_matches(text, &NextFirstWord);
  return nullptr;
}

}  // namespace

void RunConsole(Session& session, Screen& screen) {
  rl_outstream = screen.Stream();
  rl_readline_name = "zelto-tv";
  rl_attempted_completion_function = &Complete;
  while (!session.Finished()) {
    char* line = readline("zelto> ");
    if (line == nullptr) break;
    if (*line != '\0') add_history(line);
    session.Run(line);
    std::free(line);
  }
}

}  // namespace television
