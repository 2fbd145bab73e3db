#include "zelhost/chats/ZelhostChatManager.h"

#include <gmock/gmock.h>

#include <mutex>

#include "tests/zelhost/Service.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/apiwrapper/client/CZelto.h"

namespace {

using testing::IsNull;
using testing::SizeIs;
using zelhost::ServiceHostLock;

// Requests.
constexpr char kPropsOfMany[] = "1283", kMarkRead[] = "1969", kOpenChatTo[] = "1739", kSay[] = "1718",
               kLeave[] = "1288", kDelete[] = "1189";
// Properties of chats and messages, and values of theirs.
constexpr char kName[] = "1546", kTitle[] = "1322", kPoster[] = "1083", kMembers[] = "1240",
               kActivity[] = "1346", kPartner[] = "2017", kType[] = "1931";
constexpr char kTime[] = "1192", kAuthor[] = "1398", kShown[] = "1773", kBody[] = "1298", kStatus[] = "1532";
constexpr char kDialog[] = "1445", kGroup[] = "1680", kText[] = "1062", kPosted[] = "1280",
               kJoined[] = "1143", kSent[] = "1296", kUnread[] = "2066", kRead[] = "1607";

using Values = std::map<std::string, std::string>;

// Each field with its end behind it.
std::string Record(const std::vector<std::string>& fields) {
  std::string record;
  for (const std::string& field : fields) record += field + "\x03\x02";
  return record;
}

// A runtime with chats, and somebody who is signed in.
class AChatList : public test::Service {
 protected:
  static constexpr auto Pair = &ScriptedRuntime::pair;
  AChatList() {
    m_memory.Serve(*m_runtime);
    m_runtime->reply("1825", Pair("0", "5"));  // the account
    // Properties, messages at hand, and chats by name.
    m_runtime->on("1879", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      to.answer(request, Told(request.arguments.at("1137"), request));
    });
    AnswerPages([] {});
    m_runtime->on("1673", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      const std::lock_guard lock(m_mutex);
      const std::string& chat = request.arguments.at("1137");
      to.answer(request, Pair("0", "1") + Pair("1639", m_context[chat]) + Pair("1271", m_recent[chat]));
    });
    m_runtime->on(kMarkRead, [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      Set(request.arguments.at("1137"), {{kStatus, kRead}});
      to.answer(request, Pair("0", "1"));
    });
    m_runtime->on("1874", [this](ScriptedRuntime& to, const ScriptedRequest& request) {
      const std::lock_guard lock(m_mutex);
      to.answer(request, Pair("0", m_chats[request.arguments.at("1152")]));
    });
    m_host.Answers("GetLocalTime12", "8 May, 10:00 PM\nor so");
  }
  void SetUp() override {
    ASSERT_TRUE(IsLoaded());
    ASSERT_TRUE(CZelhostAccountManager::GetInstance()->Login("ann", "secret", true));
    Set("5", {{"1704", "ann"}});
    CZeltoManager::SendEvent(CZeltoManager::ACCOUNT_LOGGED_IN, 0);
    ASSERT_TRUE(IsTold(CZeltoManager::ACCOUNT_LOGGED_IN));
  }
  ~AChatList() override { CZeltoManager::Unload(); }  // nobody asks the runtime any more

  void AnswerPages(std::function<void()> before) {
    m_runtime->on(kPropsOfMany, [this, before](ScriptedRuntime& to, const ScriptedRequest& request) {
      std::string lines;
      for (const std::string& id : Split(request.arguments.at("1271"))) lines += Told(id, request) + "\nb ";
      before();
      to.answer(request, lines);
    });
  }
  static std::vector<std::string> Split(const std::string& list) {
    std::vector<std::string> parts;
    for (std::size_t from = 0, end; from < list.size(); from = end + 1) {
      end = std::min(list.find(',', from), list.size());
      parts.push_back(list.substr(from, end - from));
    }
    return parts;
  }
  std::string Told(const std::string& id, const ScriptedRequest& request) {
    const std::lock_guard lock(m_mutex);
    std::string pairs;
    for (const std::string& token : Split(request.arguments.at("1857"))) {
      if (m_objects[id].count(token) != 0) pairs += Pair(token, m_objects[id][token]);
    }
    return pairs;
  }
  void Set(const std::string& id, const Values& values) {
    const std::lock_guard lock(m_mutex);
    for (const auto& [token, value] : values) m_objects[id][token] = value;
  }

  // Things of the runtime's.
  void Chat(unsigned id, Values values, const std::string& messages) {
    Set(std::to_string(id), values);
    const std::lock_guard lock(m_mutex);
    m_chats[values[kName]] = std::to_string(id);
    m_recent[std::to_string(id)] = messages;
  }
  void Message(unsigned id, const char* author, const char* status, const char* type = kText) {
    const std::string number = std::to_string(id);
    Set(number, {{kAuthor, author}, {kShown, std::string("Mr ") + author}, {kTime, "1000"}});
    Set(number, {{kBody, "say " + number}, {kStatus, status}, {kType, type}});
  }
  void SetUpThree() {
    for (const unsigned id : {11U, 22U}) Message(id, "bob", kUnread);
    Message(12, "bob", kRead, kPosted);
    Message(13, "bob", kUnread, kJoined);
    Message(14, "ann", kRead);
    Message(21, "eve", kUnread, kPosted);
    Chat(101,
         {{kName, "#bob"}, {kType, kDialog}, {kTitle, "B\x03\x02"}, {kPartner, "bob"}, {kActivity, "1000"}},
         "11,13,14");
    m_context["101"] = "12,11";
    Chat(102,
         {{kName, "#club"}, {kType, kGroup}, {kPoster, "eve"}, {kMembers, "eve, bob"}, {kActivity, "3000"}},
         "21,22");
    Chat(103, {{kName, "#eve"}, {kType, kDialog}, {kTitle, "Eve"}, {kPartner, "eve"}}, "");
    Chat(104, {{kName, "#empty"}, {kType, kGroup}, {kActivity, "9000"}}, "21");
    m_runtime->reply("1864", Pair("0", "300"));  // the search for chats
    m_runtime->reply("2077", Pair("0", "1") + Pair("1271", "101,102,103,104"));
    EXPECT_TRUE(Chats().RefreshChatList());
    EXPECT_EQ(m_runtime->requests("1864").back().arguments.at("1216"), "1764");
    EndSearch(300);
    ASSERT_TRUE(IsTold(CZeltoManager::UNREAD_COUNT_CHANGED));
  }
  void EndSearch(unsigned search) {
    m_runtime->sendEvent("1305", "2073", Id("1137", search) + Pair("1551", "1532") + Pair("1667", "1229"));
  }
  bool Add(unsigned id) {
    ServiceHostLock lock("the test");
    return Chats().AddToChatList(g_lpZelto->getChat(id));
  }

  void Report(unsigned message, unsigned chat) {
    m_runtime->sendEvent("1459", "1080", Id("1137", message) + Id("1431", chat));
  }
  void Delete(const char* classToken, unsigned id) {
    m_runtime->sendEvent(classToken, "2048", Id("1137", id));
  }
  static std::string Id(const char* key, unsigned id) { return Pair(key, std::to_string(id)); }
  bool IsTold(const int event, std::ptrdiff_t times = 1) { return m_host.WaitFor(event, times); }
  std::size_t Requests(const char* method) { return m_runtime->requests(method).size(); }
  CZelhostChatManager& Chats() { return *CZelhostChatManager::GetInstance(); }
  std::string Messages(const std::vector<std::pair<int, const char*>>& numbersAndStatus) {
    std::string records;
    const std::lock_guard lock(m_mutex);
    for (const auto& [id, status] : numbersAndStatus) {
      const std::string author = m_objects[std::to_string(id)][kAuthor];
      records += Record({author, "Mr " + author, "8 May, 10:00 PM", "say " + std::to_string(id), status});
    }
    return records;
  }

  std::mutex m_mutex;
  std::map<std::string, Values> m_objects;
  std::map<std::string, std::string> m_chats;  // by name
  std::map<std::string, std::string> m_recent, m_context;
};

const std::string kClub = Record({"#club", "3", "eve, bob", "", "8 May, 10:00 PM", "2"});
const std::string kBob = Record({"#bob", "2", "", "B  ", "8 May, 10:00 PM", "1"});
const std::string kEve = Record({"#eve", "2", "", "Eve", "", "0"});

TEST_F(AChatList, IsOrderedByActivityAndAnswersInPages) {
  SetUpThree();
  EXPECT_FALSE(Add(101));
  EXPECT_FALSE(Add(104));
  EXPECT_EQ(m_host.Execute("GetNumOfChatList"), "3");
  EXPECT_EQ(m_host.Execute("GetTotalNumOfUnReadMessages"), "3");
  EXPECT_EQ(m_host.Execute("GetTotalNumOfUnReadChats"), "2");
  EXPECT_EQ(Chats().GetChatList(), Record({"#club", "", "8 May, 10:00 PM", "2"}) +
                                       Record({"#bob", "B  ", "8 May, 10:00 PM", "1"}) +
                                       Record({"#eve", "Eve", "", "0"}));

  const auto page = [&](const char* index, const char* num, const char* before) {
    return m_host.Execute("GetChatListWithIndex", index, num, before);
  };
  EXPECT_EQ(page("0", "10", "3"), kClub + kBob + kEve);
  EXPECT_EQ(page("2", "2", "1"), kBob);
  EXPECT_EQ(page("1", "2147483647", "-2147483648"), kBob + kEve);
  EXPECT_EQ(page("1", "-1", "1") + page("3", "5", "0") + page("-1", "5", "0"), "");
  EXPECT_THAT(Chats().GetChatList(-1, 5, 0), IsNull());
  EXPECT_EQ(m_host.Execute("GetChatListWithChatName", "#bob", "2", "1"), kClub + kBob);
  EXPECT_THAT(Chats().GetChatList("#empty", 2, 1), IsNull());

  EXPECT_EQ(m_host.Execute("GetChatProperty", "1", "4"), "1");
  EXPECT_STREQ(Chats().GetChatProperty(1, 99), "");
  for (const int index : {-1, 3}) EXPECT_THAT(Chats().GetChatProperty(index, 1), IsNull());
  EXPECT_THAT(Chats().GetCurrentChatProperty(1), IsNull());

  Chats().ClearChatList();
  EXPECT_EQ(Chats().GetNumOfChatList(), 0);
  EXPECT_TRUE(Add(101));  // its object has forgotten the entry
}

TEST_F(AChatList, OpensOneChatAndHandsEachMessageOutOnce) {
  SetUpThree();
  EXPECT_EQ(m_host.Execute("OpenChatWithChatName", "#nobody"), "0");
  EXPECT_EQ(m_host.Execute("OpenChatWithChatName", "#empty"), "0");
  EXPECT_EQ(m_host.Execute("OpenChatWithContact", "bob"), "1");  // of the list, without asking for one
  EXPECT_EQ(Requests(kOpenChatTo), 0U);
  EXPECT_EQ(m_host.Execute("GetCurrentChatProperty", "1"), "#bob");
  EXPECT_EQ(m_host.Execute("OpenChatWithChatName", "#bob"), "1");
  EXPECT_EQ(m_host.Execute("GetNumOfMessages"), "3");  // once, however often it is opened

  EXPECT_EQ(m_host.Execute("GetMessages", "1", "9"), Messages({{11, "3"}, {14, "2"}}));  // ann's own
  EXPECT_EQ(m_host.Execute("GetTotalNumOfUnReadMessages"), "2");
  EXPECT_EQ(Chats().GetChatProperty(1, 4), std::string("0"));
  EXPECT_EQ(m_host.Execute("GetMessages"), Messages({{12, "4"}, {11, "4"}, {14, "4"}}));
  EXPECT_STREQ(Chats().GetMessages("#bob"), "");
  EXPECT_STREQ(Chats().GetMessages("#club"), "");  // not open
  EXPECT_THAT(Chats().GetMessages("#nobody"), IsNull());
  for (const auto& [start, end] : {std::pair(-1, 1), {3, 4}, {2, 1}}) {
    EXPECT_THAT(Chats().GetMessages(start, end, nullptr), IsNull());
  }
  EXPECT_EQ(Requests(kMarkRead), 1U);

  EXPECT_EQ(Chats().GetRecentMessages("#club"), Record({"Mr eve", "8 May, 10:00 PM", "say 21", "3"}) +
                                                    Record({"Mr bob", "8 May, 10:00 PM", "say 22", "3"}));
  EXPECT_EQ(Requests(kMarkRead), 3U);
  EXPECT_EQ(Chats().GetTotalNumOfUnReadMessages(), 2);  // it tells nobody about its reading

  EXPECT_EQ(m_host.Execute("CloseChat", "#club"), "0");
  EXPECT_EQ(m_host.Execute("GetNumOfMessages"), "3");
  EXPECT_EQ(m_host.Execute("CloseChat"), "1");
  EXPECT_EQ(Chats().GetNumOfMessages("#bob"), 0);
  EXPECT_EQ(m_host.Execute("SendMessage", "hello"), "0");
}

TEST_F(AChatList, TellsNewMessagesAndCountsThemOnce) {
  SetUpThree();
  Message(15, "bob", kUnread);
  Message(16, "ann", kSent);
  Chat(103, {{kActivity, "4000"}, {kName, "#eve"}}, "15");
  Report(15, 103);
  Report(15, 103);
  ASSERT_TRUE(IsTold(CZeltoManager::CHAT_NEW_MESSAGE));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::UNREAD_COUNT_CHANGED), 2);
  EXPECT_EQ(Chats().GetTotalNumOfUnReadMessages(), 4);
  EXPECT_STREQ(Chats().GetChatProperty(0, 1), "#eve");  // the latest is the first

  m_runtime->on(
      kSay, [](ScriptedRuntime& to, const ScriptedRequest& request) { to.answer(request, Pair("0", "16")); });
  EXPECT_EQ(m_host.Execute("OpenChatWithChatName", "#bob"), "1");
  EXPECT_EQ(m_host.Execute("SendMessage", "say, \"16\""), "1");
  EXPECT_EQ(m_runtime->requests(kSay).at(0).arguments.at("1837"), "say, \"16\"");
  Report(16, 101);
  Message(17, "bob", kUnread);
  Report(17, 101);
  ASSERT_TRUE(IsTold(CZeltoManager::UNREAD_COUNT_CHANGED, 3));
  EXPECT_EQ(Chats().GetNumOfMessages(nullptr), 5);  // what was sent, once, and what came
  EXPECT_EQ(Chats().GetMessages(3, 4, nullptr), Messages({{16, "2"}, {17, "3"}}));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CHAT_NEW_MESSAGE), 1);  // the screen shows it itself

  Report(21, 104);  // somebody new, who is in the chat's own count already
  Set("104", {{kPoster, "eve"}});
  Message(18, "eve", kUnread);
  Report(18, 104);
  ASSERT_TRUE(IsTold(CZeltoManager::UNREAD_COUNT_CHANGED, 4));
  EXPECT_STREQ(Chats().GetChatProperty(0, 1), "#empty");
  EXPECT_STREQ(Chats().GetChatProperty(0, 4), "2");
}

TEST_F(AChatList, LosesWhatTheRuntimeDeletesAndTakesItsNumbersForOthers) {
  SetUpThree();
  ASSERT_TRUE(Chats().OpenChatWithChatName("#bob"));
  AnswerPages([this] {
    Delete("1459", 12);
    Delete("1459", 14);
    Report(14, 102);
  });
  EXPECT_EQ(Chats().GetMessages(0, 1, nullptr), Messages({{12, "4"}, {11, "3"}}));
  AnswerPages([] {});
  Message(19, "bob", kUnread);
  Report(19, 101);
  ASSERT_TRUE(IsTold(CZeltoManager::UNREAD_COUNT_CHANGED, 2));
  EXPECT_EQ(Chats().GetMessages(nullptr), Messages({{11, "4"}, {19, "3"}}));
  Delete("1459", 11);
  Message(20, "bob", kUnread);
  Report(20, 101);
  ASSERT_TRUE(IsTold(CZeltoManager::UNREAD_COUNT_CHANGED, 3));
  EXPECT_EQ(Chats().GetMessages(nullptr), Messages({{20, "3"}}));

  Delete("1764", 101);  // the chat that is open
  ASSERT_TRUE(IsTold(CZeltoManager::CHAT_REMOVED));
  EXPECT_THAT(Chats().GetMessages(nullptr), IsNull());
  EXPECT_EQ(Chats().GetNumOfChatList(), 2);
  Chat(101, {{kName, "#other"}}, "");
  EXPECT_TRUE(Add(101));
  EXPECT_TRUE(Chats().OpenChatWithChatName("#other"));

  m_runtime->reply("1726", Pair("0", "42"));  // eve, and the group of those who are blocked
  m_runtime->reply("1538", Pair("0", "310"));
  m_runtime->reply("1649", Pair("0", "1"));
  m_runtime->sendEvent("1764", "2073", Id("1137", 103) + Pair("1551", "1591") + Pair("1667", "2108"));
  EXPECT_TRUE(m_runtime->waitForRequests(kDelete));

  EXPECT_EQ(m_host.Execute("LeaveChat", "#eve"), "1");
  EXPECT_THAT(m_runtime->requests(kLeave), SizeIs(0));
  EXPECT_EQ(m_host.Execute("LeaveChat", "#club"), "1");
  EXPECT_EQ(m_runtime->requests(kLeave).at(0).arguments.at("2028"), "1403");
  EXPECT_THAT(m_runtime->requests(kDelete), SizeIs(3));
  EXPECT_EQ(m_host.CountUntilNow(CZeltoManager::CHAT_REMOVED), 3);
  EXPECT_EQ(Chats().GetNumOfChatList(), 1);
}

// Neither after a sign-out nor beside the next search may the results of an earlier one appear.
TEST_F(AChatList, GivesUpASearchThatIsOvertaken) {
  SetUpThree();
  for (unsigned search = 301; search < 303; ++search) {
    m_runtime->reply("1864", Pair("0", std::to_string(search)));
    EXPECT_TRUE(Chats().RefreshChatList());
    if (search == 302) Chats().ClearChatList();
  }
  for (unsigned search = 301; search < 303; ++search) EndSearch(search);
  Report(22, 103);  // what is heard of afterwards is listed
  ASSERT_TRUE(IsTold(CZeltoManager::UNREAD_COUNT_CHANGED, 2));
  EXPECT_EQ(Chats().GetNumOfChatList(), 1);
}

// What they cost is what is asked of the runtime.
TEST_F(AChatList, AsksAsOftenForTenThousandMessagesAsForOne) {
  std::string ids;
  for (unsigned id = 1000; id < 11'000; ++id) {
    Message(id, "bob", id % 1000 == 0 ? kUnread : kRead);
    ids += (ids.empty() ? "" : ",") + std::to_string(id);
  }
  Message(500, "bob", kUnread);
  Chat(101, {{kName, "#one"}, {kType, kDialog}}, "500");
  Chat(102, {{kName, "#all"}, {kType, kDialog}}, ids);
  const auto cost = [this](auto operation) {
    const auto before = m_runtime->messages().size();
    operation();
    return m_runtime->messages().size() - before;
  };
  const auto open = [this](const char* name) { EXPECT_TRUE(Chats().OpenChatWithChatName(name)); };
  const auto one = cost([&] { open("#one"); });
  EXPECT_EQ(cost([&] { open("#all"); }), one);
  EXPECT_EQ(Chats().GetNumOfMessages(nullptr), 10'000);
  EXPECT_EQ(cost([&] { Chats().GetMessages(4995, 5004, nullptr); }), 2U);  // one becomes read
  EXPECT_THAT(Split(m_runtime->requests(kPropsOfMany).back().arguments.at("1271")), SizeIs(10));
  EXPECT_EQ(cost([&] { Chats().GetMessages(nullptr); }), 1U + 9U);
  EXPECT_EQ(Chats().GetTotalNumOfUnReadMessages(), 1);

  for (unsigned id = 20'000; id < 21'000; ++id) {
    Chat(id, {{kName, "#" + std::to_string(id)}, {kType, kDialog}, {kActivity, std::to_string(id)}}, "");
  }
  EXPECT_EQ(cost([&] {
              for (unsigned id = 20'000; id < 21'000; ++id) Add(id);
            }),
            1000U * 2);
  EXPECT_STREQ(Chats().GetChatProperty(0, 1), "#20999");
  EXPECT_EQ(cost([&] { Chats().OpenChatWithContact("nobody"); }), 2U);
}

}  // namespace
