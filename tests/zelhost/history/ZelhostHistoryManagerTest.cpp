#include "zelhost/history/ZelhostHistoryManager.h"

#include <gmock/gmock.h>

#include <climits>
#include <sstream>

#include "Common/CallManager.h"
#include "Common/HistoryManager.h"
#include "tests/zelhost/RootFixture.h"

namespace {

using testing::ElementsAre;

// Classes, and the types of members and voicemails.
constexpr char kCalls[] = "1133";
constexpr char kVoicemails[] = "1684";
constexpr char kPerson[] = "1939";
constexpr char kPhone[] = "1809";
constexpr char kMissed[] = "1399";
constexpr char kIncoming[] = "1363";
constexpr char kOutgoing[] = "1884";
constexpr char kUnplayed[] = "1873";
constexpr char kFinished[] = "1229";
constexpr char kFailed[] = "1862";

using Values = std::map<std::string, std::string>;

// Each field with its separator.
std::string Record(const std::vector<std::string>& fields) {
  std::string record;
  for (const std::string& field : fields) record += field + "\x03\x02";
  return record;
}

std::vector<std::string> Split(const std::string& list, char separator) {
  std::vector<std::string> parts;
  std::istringstream in(list);
  for (std::string part; std::getline(in, part, separator);) parts.push_back(part);
  return parts;
}

// A runtime with a past: searches find what was told to it, once the test lets them end.
class AHistory : public test::RootFixture {
 protected:
  AHistory() {
    CHistoryManager::GetInstance();  // the engine ends its manager
    m_host.Answers("GetLocalTime12", "noon\nand more");
    m_runtime.on("1864", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      m_targets[std::to_string(m_nextSearch)] = request.arguments.at("1216");
      to.answer(request, m_refuses ? "" : ScriptedRuntime::pair("0", std::to_string(m_nextSearch++)));
    });
    m_runtime.on("2077", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      const std::string found = m_found[m_targets[request.arguments.at("1137")]];
      to.answer(request, ScriptedRuntime::pair("0", "1") + ScriptedRuntime::pair("1271", found));
    });
    m_runtime.on("1345", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      to.answer(request, ScriptedRuntime::pair("0", m_members[request.arguments.at("1137")]));
    });
    m_runtime.on("1283", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      std::string lines;
      for (const std::string& id : Split(request.arguments.at("1271"), ',')) {
        for (const auto& [token, value] : m_values[id]) lines += ScriptedRuntime::pair(token, value);
        lines += "\nb ";
      }
      to.answer(request, lines);
    });
  }

  void Find(const char* target, unsigned id, const Values& values) {
    m_values[std::to_string(id)] = values;
    for (const auto& [token, value] : values) m_memory.SetProperty(id, token, value);
    std::string& found = m_found[target];
    found += (found.empty() ? "" : ",") + std::to_string(id);
  }
  // A call with its members, whose ids are the call's times ten.
  void AddCall(unsigned id, const char* time, bool incoming, bool unseen,
               const std::vector<Values>& members) {
    Find(kCalls, id,
         {{"1577", time},
          {"1725", unseen ? "1" : "0"},
          {"1157", incoming ? "1" : "0"},
          {"1245", members.size() > 1 ? "1" : "0"}});
    for (std::size_t i = 0; i < members.size(); ++i) {
      const std::string member = std::to_string(id * 10 + i);
      m_values[member] = members[i];
      m_members[std::to_string(id)] += (i == 0 ? "" : ",") + member;
    }
  }
  static Values Member(const char* identity, const char* name, const char* type = kPerson,
                       const char* status = kFinished) {
    return {{"1060", identity}, {"1262", name}, {"1931", type}, {"1532", status}};
  }
  void AddVoicemail(unsigned id, const char* time, const char* type = kIncoming) {
    Find(kVoicemails, id,
         {{"1931", type},
          {"1532", kUnplayed},
          {"1627", "vera"},
          {"1674", "Vera"},
          {"1192", time},
          {"1801", "7"}});
  }
  void Arrive(unsigned id, const char* time) {
    AddVoicemail(id, time);
    Deliver(kVoicemails, "1397", Id(id));
  }
  void AddUsualPast() {
    AddCall(11, "100", false, false, {Member("+49123", "Tom", kPhone)});
    AddCall(12, "200", true, true, {Member("ann", "Ann", kPerson, kMissed)});
    AddCall(13, "300", true, false, {Member("bob", "B\x03\x02ob"), Member("", ""), Member("cid", "Cid")});
    AddVoicemail(21, "150");
  }

  Voicemail* TheVoicemail(unsigned id) {
    zelhost::ServiceHostLock lock("the test");
    return m_root->getVoicemail(id);
  }
  CZelhostHistoryManager& History() { return *CZelhostHistoryManager::GetInstance(); }
  void End(unsigned search, const char* status = kFinished) { Change("1305", search, "1532", status); }
  // A whole refresh; the searches have the ids 500, 501 and so on.
  void Refresh() {
    const unsigned first = m_nextSearch;
    ASSERT_TRUE(History().RefreshHistoryList());
    End(first);
    End(first + 1);
  }
  std::vector<std::string> Times() {
    std::vector<std::string> times;
    for (int i = 0; i < History().GetNumOfHistories(); ++i) times.push_back(History().GetHistoryInfo(i, 3));
    return times;
  }
  std::string PageTimes(int index, int num, int before) {
    const char* page = History().GetHistoryInfoIncludingTimestamp(index, num, before);
    if (page == nullptr) return "null";
    const std::vector<std::string> fields = Split(page, '\x03');
    std::string times;
    for (std::size_t i = 9; i < fields.size(); i += 10) times += fields[i].substr(1) + " ";
    return times;
  }
  // The objects of those requests. An answered request behind one-way ones shows that they have arrived.
  std::vector<std::string> Asked(const std::string& method) {
    zelhost::ServiceHostLock lock("the test");
    m_root->Ping();
    std::vector<std::string> objects;
    for (const ScriptedRequest& request : m_runtime.requests(method)) {
      objects.push_back(request.arguments.at("1137"));
    }
    return objects;
  }

  unsigned m_nextSearch = 500;
  bool m_refuses = false;
  std::map<std::string, std::string> m_targets;  // by search
  std::map<std::string, std::string> m_found;    // by target
  std::map<std::string, std::string> m_members;  // by call
  std::map<std::string, Values> m_values;        // by object
};

TEST_F(AHistory, ListsUnseenEntriesFirstAndWritesWholeRecords) {
  AddUsualPast();
  AddCall(14, "400", true, true, {});  // a call without members
  AddVoicemail(22, "500", kOutgoing);  // not for this account
  m_found[kCalls] += ",12,0,x,501";    // twice, nothing, and objects of another class
  Refresh();
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::HISTORY_CHANGED), 1);
  EXPECT_THAT(Times(), ElementsAre("200", "150", "300", "100"));

  const std::string records[] = {
      Record({"0", "ann", "Ann", "noon", "1", "0", "1", "0", "0"}),
      Record({"1", "vera", "Vera", "noon", "1", "0", "1", "0", "7"}),
      Record({"0", "bob", "B  ob", "noon", "0", "1", "1", "0", "0"}),
      Record({"0", "+49123", "Tom", "noon", "0", "0", "0", "1", "0"}),
  };
  EXPECT_EQ(std::string(History().GetHistoryInfo(0, 4, 0)),
            records[0] + records[1] + records[2] + records[3]);
  EXPECT_EQ(m_host.Execute("GetHistoryListIncludingTimestamp", "1", "1", "0"), records[1] + Record({"150"}));
  EXPECT_EQ(std::string(History().GetHistoryInfoIncludingCallMembers(2, 2, 1)),
            records[1] + Record({"150", "vera"}) + records[2] + Record({"300", "bob, cid"}));
  EXPECT_EQ(m_host.Execute("GetHistoryPropWithIndex", "0", "11"), "1");
  EXPECT_EQ(m_host.Execute("GetHistoryIndexWithTimestamp", "300"), "2");
  EXPECT_EQ(m_host.Execute("GetZeltoOutHistoryList"), Record({"+49123"}));
  EXPECT_STREQ(History().GetHistoryInfoWithTimestamp("150", 9), "7");

  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::MISSED_CALLS_READ), 2);  // once a page with calls
  EXPECT_THAT(Asked("1611"), ElementsAre("12", "13", "11", "13"));
  EXPECT_THAT(Times(), ElementsAre("200", "150", "300", "100"));
  EXPECT_EQ(m_host.Execute("DeleteHistory", "3"), "1");  // which sorts
  EXPECT_THAT(Times(), ElementsAre("150", "300", "200"));
  EXPECT_THAT(Asked("1189"), ElementsAre("11"));
}

TEST_F(AHistory, AnswersPagesWithinTheListAndRefusesWhatIsOutside) {
  for (unsigned i = 0; i < 4; ++i) {
    AddCall(31 + i, std::to_string(904 - i).c_str(), true, false, {Member("ann", "Ann")});
  }
  EXPECT_EQ(PageTimes(0, 1, 0), "null");
  Refresh();
  EXPECT_EQ(PageTimes(3, 5, 2), "903 ");
  EXPECT_EQ(PageTimes(1, 3, 1), "904 903 902 ");
  EXPECT_EQ(PageTimes(1, INT_MAX, INT_MIN), "903 902 901 ");
  EXPECT_EQ(PageTimes(0, 1, 1), "null");
  EXPECT_EQ(PageTimes(0, 0, -1), "null");
  for (const int outside : {-1, 4, INT_MIN, INT_MAX}) {
    EXPECT_EQ(PageTimes(outside, 9, 0), "null");
    EXPECT_EQ(History().GetHistoryInfo(outside, 1), nullptr);
    EXPECT_EQ(History().GetHistoryInfo(0, 12 + std::abs(outside % 5)), nullptr);
    EXPECT_FALSE(History().DeleteHistory(outside));
    EXPECT_FALSE(History().PlayVoicemail(outside));
  }
  for (const char* time : {"90", "0904", "", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(History().GetHistoryIndexWithTimestamp(time), -1);
    EXPECT_EQ(History().GetHistoryInfoWithTimestamp(time, 1), nullptr);
  }
}

TEST_F(AHistory, AsksOnceForEachClassAndForEachCallsMembersAndConvertsOnlyWhatItShows) {
  constexpr unsigned kCallsKept = 9000;
  for (unsigned i = 0; i < kCallsKept; ++i) {
    AddCall(10'000 + i, std::to_string(1'000'000 + i).c_str(), true, false, {Member("ann", "Ann")});
  }
  for (unsigned i = 0; i < 1000; ++i) AddVoicemail(9000 + i, std::to_string(2'000'000 + i).c_str());
  Refresh();
  EXPECT_EQ(History().GetNumOfHistories(), 10'000);
  EXPECT_EQ(m_runtime.requests("1283").size(), 3u);
  EXPECT_EQ(m_runtime.requests("1345").size(), kCallsKept);
  EXPECT_EQ(m_runtime.requests("1879").size(), 0u);
  EXPECT_EQ(History().GetHistoryIndexWithTimestamp("1000000"), 9999);
  EXPECT_EQ(m_host.TakeControls().size(), 0u);
  PageTimes(2000, 10, 0);
  EXPECT_EQ(m_host.TakeControls().size(), 10u);
  EXPECT_EQ(Asked("1611").size(), 10u);
}

TEST_F(AHistory, ShowsAVoicemailThatArrivesDuringARefreshOnce) {
  AddUsualPast();
  Refresh();
  ASSERT_EQ(Times().size(), 4u);
  ASSERT_TRUE(History().RefreshHistoryList());  // searches 502 and 503
  Arrive(23, "600");
  EXPECT_THAT(Times(), ElementsAre("200", "150", "300", "100"));  // read while the refresh is under way
  m_found[kVoicemails] = "21";
  End(503);  // searches again: 504
  End(502);
  EXPECT_EQ(Times().size(), 4u);
  m_found[kVoicemails] = "21,23";
  End(504);
  EXPECT_THAT(Times(), ElementsAre("600", "200", "150", "300", "100"));
  EXPECT_FALSE(History().OnNewVoicemail(TheVoicemail(23)));

  // The next one arrives between the answers of the two searches, another one once all is done.
  ASSERT_TRUE(History().RefreshHistoryList());
  End(506);
  Arrive(24, "50");
  EXPECT_THAT(Times(), ElementsAre("50", "600", "200", "150", "300", "100"));
  EXPECT_EQ(History().GetHistoryIndexWithTimestamp("50"), 0);
  EXPECT_EQ(History().GetHistoryIndexWithTimestamp("300"), 4);
  End(505);
  Arrive(25, "40");
  EXPECT_THAT(Times(), ElementsAre("40", "600", "200", "150", "50", "300", "100"));
}

TEST_F(AHistory, KeepsWhatItHasWhenARefreshFailsOrIsOvertaken) {
  AddUsualPast();
  Refresh();
  ASSERT_TRUE(History().RefreshHistoryList());
  ASSERT_TRUE(History().RefreshHistoryList());  // 504 and 505 overtake 502 and 503
  EXPECT_THAT(Asked("2005"), ElementsAre("500", "501", "502", "503"));
  for (const unsigned late : {502u, 503u}) End(late);
  m_found[kCalls] = "13";
  End(504);
  EXPECT_EQ(Times().size(), 4u);
  ASSERT_TRUE(History().DeleteHistory(1));  // while it is among what the refresh will find
  EXPECT_THAT(Times(), ElementsAre("200", "300", "100"));
  m_found[kVoicemails] = "";
  End(505);
  EXPECT_TRUE(History().RefreshHistoryList());  // 506 and 507; nobody has read what 504 and 505 found
  EXPECT_THAT(Times(), ElementsAre("300"));
  End(506, kFailed);
  End(507);
  m_refuses = true;
  EXPECT_FALSE(History().RefreshHistoryList());
  m_refuses = false;
  EXPECT_TRUE(History().RefreshHistoryList());  // 508 and 509
  Deliver("1305", "2048", Id(508));             // the runtime drops the search
  End(509);
  EXPECT_THAT(Times(), ElementsAre("300"));
  const auto changes = m_host.CountUntilNow(CZeltoManager::HISTORY_CHANGED);
  EXPECT_TRUE(History().RefreshHistoryList());
  History().ClearHistoryList();  // signing out
  for (const unsigned late : {510u, 511u}) End(late);
  EXPECT_THAT(Times(), ElementsAre());
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::HISTORY_CHANGED), changes);
}

TEST_F(AHistory, LosesItsObjectsWithoutUsingThemAgain) {
  AddUsualPast();
  Refresh();
  ASSERT_EQ(Times().size(), 4u);
  m_runtime.reply("1235", ScriptedRuntime::pair("0", "1"));
  EXPECT_EQ(m_host.Execute("PlayVoicemail", "0"), "0");  // a call
  EXPECT_EQ(m_host.Execute("PlayVoicemail", "1"), "1");
  EXPECT_TRUE(History().StopPlayingVoicemail());
  EXPECT_FALSE(History().StopPlayingVoicemail());
  EXPECT_EQ(m_host.Execute("PlayVoicemail", "1"), "1");
  EXPECT_TRUE(History().UpdateVoicemailDuration(TheVoicemail(21), 9));
  EXPECT_STREQ(History().GetHistoryInfo(1, 9), "9");

  ASSERT_TRUE(History().RefreshHistoryList());
  End(502);
  for (const unsigned call : {12u, 13u}) Deliver(kCalls, "2048", Id(call));
  Deliver(kVoicemails, "2048", Id(21));
  EXPECT_FALSE(History().StopPlayingVoicemail());
  EXPECT_EQ(m_host.Execute("StopVoicemail", "1"), "0");
  Change(kCalls, 12, "1801", "1");  // another call and another voicemail with the ids of old ones
  TheVoicemail(21);
  EXPECT_EQ(PageTimes(0, 4, 0), "200 150 300 100 ");
  EXPECT_THAT(Asked("1611"), ElementsAre("11"));
  EXPECT_EQ(m_host.Execute("PlayVoicemail", "1"), "0");
  EXPECT_FALSE(History().UpdateVoicemailDuration(TheVoicemail(21), 9));
  EXPECT_TRUE(History().DeleteHistory(0));
  EXPECT_THAT(Asked("1189"), ElementsAre());
}

TEST_F(AHistory, ReportsMissedCallsOnceAndSaysWhoseTheyAre) {
  AddUsualPast();
  Refresh();
  EXPECT_TRUE(History().RefreshMissedCallList());
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::MISSED_CALL), 0);  // the call manager knows of none
  CCallManager::GetInstance()->SetMissed(true);
  AddCall(15, "700", true, true, {Member("ann", "Ann", kPerson, kMissed)});
  Refresh();
  Refresh();
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::MISSED_CALL), 1);
  EXPECT_EQ(History().GetNumOfMissedCall(), 2);
  EXPECT_TRUE(History().isMissedCallOneMember());
  EXPECT_EQ(History().GetMissedCallMemberName(), "ann");
  EXPECT_EQ(History().GetMissedCallTimeStamp(), "noon");
  AddCall(16, "150", true, true, {Member("bob", "Bob", kPerson, kMissed)});
  Refresh();
  EXPECT_TRUE(History().RefreshMissedCallList());
  EXPECT_FALSE(History().isMissedCallOneMember());
  PageTimes(0, 9, 0);
  EXPECT_FALSE(History().RefreshMissedCallList());  // all have been seen
  EXPECT_EQ(History().GetMissedCallMemberName() + History().GetMissedCallTimeStamp(), "");
}

}  // namespace
