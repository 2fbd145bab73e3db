// The console's words about what the engine keeps: chats, the past, who was found and who is blocked.
#include <algorithm>
#include <cstdlib>

#include "simulator/television/Lines.h"
#include "simulator/television/Session.h"
#include "simulator/television/Words.h"

namespace television {

namespace {

constexpr char kEntriesOnAPage[] = "20";
constexpr char kUnansweredKey[] = "11";

std::string Number(const std::vector<std::string>& words, std::size_t index, const char* other) {
  return index < words.size() ? words[index] : other;
}

}  // namespace

void Session::List(const Words& lines) {
  m_answer.clear();
  for (const std::string& line : lines) {
    m_screen.Line("  " + line);
    m_answer += (m_answer.empty() ? "" : "\n") + line;
  }
}

void Session::ListRecords(const Words& query, std::size_t fields, std::string (*line)(const Record&)) {
  m_screen.Command(m_line);
  Words lines;
  for (const Record& record : ReadRecords(EngineAnswer(query), fields)) lines.push_back(line(record));
  if (lines.empty()) lines.emplace_back("none");
  List(lines);
}

void Session::ListChats(const Words& words) {
  ListRecords({"GetChatListWithIndex", Number(words, 1, "0"), Number(words, 2, kEntriesOnAPage), "0"},
              kChatFields, ChatLine);
  m_screen.Line("  of " + EngineAnswer({"GetNumOfChatList"}) + " chats; " +
                EngineAnswer({"GetTotalNumOfUnReadMessages"}) + " unread messages in " +
                EngineAnswer({"GetTotalNumOfUnReadChats"}) + " of them");
}

void Session::ListMessages(const Words& words) {
  const int count = std::atoi(EngineAnswer({"GetNumOfMessages"}).c_str());
  const int shown = std::atoi(Number(words, 1, kEntriesOnAPage).c_str());
  ListRecords({"GetMessages", std::to_string(std::max(0, count - shown)), std::to_string(count - 1)},
              kMessageFields, MessageLine);
}

void Session::ListHistory(const Words& words) {
  m_screen.Command(m_line);
  const std::string start = Number(words, 1, "0");
  int index = std::atoi(start.c_str());
  Words lines;
  const std::string page =
      EngineAnswer({"GetHistoryListIncludingTimestamp", start, Number(words, 2, kEntriesOnAPage), "0"});
  for (const Record& record : ReadRecords(page, kHistoryFields)) {
    const std::string place = std::to_string(index++);
    const bool missed = EngineAnswer({"GetHistoryPropWithIndex", place, kUnansweredKey}) == "1";
    lines.push_back(Column(place, 4) + HistoryLine(record, missed));
  }
  List(lines);
  m_screen.Line("  of " + EngineAnswer({"GetNumOfHistories"}) + " calls and voicemails");
}

void Session::ListFound(const Words&) {
  ListRecords({"GetSearchedContactList"}, kFoundContactFields, FoundContactLine);
}

void Session::ListBlocked(const Words&) {
  ListRecords({"GetBlockedContactList"}, kBlockedContactFields, BlockedContactLine);
}

}  // namespace television
