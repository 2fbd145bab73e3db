#include "tests/system/RememberedService.h"

using ::testing::HasSubstr;

namespace test {

namespace {

constexpr int kMissedCallsRead = 426;
constexpr int kWidgetLaunch = 427;
constexpr char kPage[] = "GetHistoryListIncludingTimestamp";
constexpr std::size_t kRecordFields = 10;

// Properties of the runtime's objects.
constexpr int kStarted = 1;
constexpr int kUnseen = 4;
constexpr int kPartner = 5;
constexpr int kVoicemailStatus = 4;

class AViewersHistory : public AViewerWithAPast {
 protected:
  // Record of the call that began `place` hours and one before the order, of `calls` such.
  std::string CallRecord(int place, int calls, bool unseen) {
    const std::string object = "Call~" + std::to_string(calls - 1 - place);
    const std::string who = Value(object, kPartner);
    const std::string at = Value(object, kStarted);
    const bool phone = who[0] == '+';
    return Record({"0", who, NameOf(who), LocalTime(at), unseen ? "1" : "0", "0", place % 2 == 0 ? "1" : "0",
                   phone ? "1" : "0", "0", at});
  }
  std::string VoicemailRecord(const std::string& object, const std::string& status) {
    const std::string at = Value(object, 7);
    return Record({"1", Value(object, 2), Value(object, 3), LocalTime(at), status, "0", "1", "0",
                   Value(object, 8), at});
  }
  std::string NameOf(const std::string& who) { return Execute("GetContactPropWithName", who.c_str(), "21"); }
  std::string Page(int index, int num, int before = 0) {
    return Execute(kPage, std::to_string(index).c_str(), std::to_string(num).c_str(),
                   std::to_string(before).c_str());
  }
};

}  // namespace

TEST_F(AViewersHistory, ShowsCallsAndVoicemailsAndMarksThemSeen) {
  ASSERT_NO_FATAL_FAILURE(SignIn());
  ASSERT_NO_FATAL_FAILURE(SignInAgain());
  Order({{"order", "history"}, {"count", 10}});  // nine calls, of which 0, 4 and 8 are missed; a voicemail
  EXPECT_EQ(Execute("GetNumOfHistories"), "0");
  ASSERT_NO_FATAL_FAILURE(Refresh());
  std::vector<std::string> shown = {CallRecord(0, 9, true), VoicemailRecord("Voicemail", "1"),
                                    CallRecord(4, 9, true), CallRecord(8, 9, true)};
  for (const int place : {1, 2, 3, 5, 6, 7}) shown.push_back(CallRecord(place, 9, false));
  const auto records = [&](int from, int count) {
    std::string text;
    for (int i = from; i < from + count; ++i) text += shown[static_cast<std::size_t>(i)];
    return text;
  };
  ASSERT_EQ(Execute("GetNumOfHistories"), "10");
  EXPECT_EQ(Execute("GetHistoryPropWithIndex", "0", "11"), "1");
  EXPECT_EQ(Execute("GetHistoryPropWithIndex", "1", "10"), Value("Voicemail", 2));
  for (const auto& [index, property] : {std::pair("10", "1"), {"-1", "1"}, {"0", "12"}}) {
    EXPECT_EQ(Execute("GetHistoryPropWithIndex", index, property), "");
  }
  EXPECT_EQ(Execute("GetHistoryIndexWithTimestamp", Fields(shown[3])[9].c_str()), "3");
  EXPECT_EQ(Execute("GetHistoryIndexWithTimestamp", "1"), "-1");
  EXPECT_EQ(Page(0, 1, 1) + Page(-1, 5) + Page(10, 5), "");
  std::string dialled;
  for (const std::string& record : shown) {
    const auto fields = Fields(record);
    if (fields[6] == "0" && fields[7] == "1") dialled += Record({fields[1]});
  }
  EXPECT_THAT(dialled, HasSubstr("+35121555000"));
  EXPECT_EQ(Execute("GetZeltoOutHistoryList"), dialled);

  EXPECT_EQ(Heard(kMissedCallsRead), 0);
  EXPECT_EQ(Page(3, 5, 2), records(1, 5));
  EXPECT_EQ(Page(9, 5, 2), records(7, 1));
  EXPECT_EQ(Heard(kMissedCallsRead), 2);
  EXPECT_EQ(Page(0, 20), records(0, 10));
  EXPECT_EQ(Heard(kMissedCallsRead), 3);
  EXPECT_TRUE(Becomes([&] { return Value("Call~4", kUnseen) == "0" && Value("Call", kUnseen) == "0"; }));
}

TEST_F(AViewersHistory, StaysAsItWasShownWhileItsObjectsGoAndItsSuccessorComes) {
  ASSERT_NO_FATAL_FAILURE(SignIn());
  ASSERT_NO_FATAL_FAILURE(SignInAgain());
  Order({{"order", "history"}, {"count", 10}});
  ASSERT_NO_FATAL_FAILURE(Refresh());
  const std::string newest = CallRecord(0, 9, true);
  const std::string voicemail = VoicemailRecord("Voicemail", "1");

  // The id of the newest missed call is another call's now: the entry stays, but that call is left alone.
  const int reused = IdOf("Call~8");
  const std::string call = std::to_string(reused);
  ForgetsId(reused);
  EXPECT_EQ(Page(0, 2), newest + voicemail);
  EXPECT_EQ(Fields(Page(2, 2)).size(), 2 * kRecordFields);
  EXPECT_EQ(Heard(kMissedCallsRead), 1);
  EXPECT_TRUE(Becomes([&] { return Value("Call~4", kUnseen) == "0" && Value("Call", kUnseen) == "0"; }));
  EXPECT_EQ(Value(call, kUnseen), "1");
  Set(call, kStarted, "1000000000");
  ASSERT_NO_FATAL_FAILURE(Refresh());
  EXPECT_EQ(Page(0, 2), voicemail + CallRecord(0, 9, true));
  EXPECT_TRUE(Becomes([&] { return Value(call, kUnseen) == "0"; }));

  // Then it is said to be a voicemail's, which is no entry and can be none of a call either.
  ForgetsId(reused);
  IsToldToBeAVoicemail(reused);
  ASSERT_NO_FATAL_FAILURE(Refresh());
  EXPECT_EQ(Execute("GetNumOfHistories"), "9");
  EXPECT_EQ(Execute("GetHistoryIndexWithTimestamp", "1000000000"), "-1");
  ForgetsId(reused);
  ASSERT_NO_FATAL_FAILURE(Refresh());
  EXPECT_EQ(Execute("GetHistoryIndexWithTimestamp", "1000000000"), "9");

  // A call and the voicemail go at another place while a page that shows both is read.
  const int gone = IdOf("Call~4");
  const int heard = IdOf("Voicemail");
  for (const auto& [object, frame] : {std::pair(gone, 1), {heard, 2}}) {
    OrderAfterFrames(frame, "delete object=\"" + std::to_string(object) + '"');
  }
  const std::string page = Page(0, 10);
  EXPECT_EQ(Fields(page).size(), 10 * kRecordFields);
  EXPECT_TRUE(Becomes([&] { return !IsThere(gone) && !IsThere(heard); }));
  Settle();
  EXPECT_EQ(Page(0, 10), page);
  EXPECT_EQ(Execute("PlayVoicemail", "0") + Execute("StopVoicemail", "0"), "00");
  ASSERT_NO_FATAL_FAILURE(Refresh());
  EXPECT_EQ(Execute("GetNumOfHistories"), "8");

  // What was shown before stays while the next list is being searched for. Who arrives meanwhile is in it
  // once.
  const int changes = Heard(kHistoryChanged);
  const std::string before = Page(0, 20);
  Order({{"order", "hold-search"}});
  StartRefresh();
  ASSERT_TRUE(Becomes([&] { return IsThere("Search~2"); }));  // calls, voicemails, chats
  const int come = Order({{"order", "voicemail"}, {"from", "bruno"}})["object"];
  ASSERT_TRUE(Arrives(kIncomingVoicemail));
  EXPECT_EQ(Page(0, 20), before);
  EXPECT_EQ(Heard(kHistoryChanged), changes);
  Order({{"order", "hold-search"}, {"on", false}});
  ASSERT_TRUE(Arrives(kHistoryChanged));
  EXPECT_EQ(Page(0, 20), VoicemailRecord(std::to_string(come), "1") + before);
  EXPECT_EQ(Heard(kHistoryChanged), changes + 1);
}

TEST_F(AViewersHistory, TakesAVoicemailOnceThatArrivesWhileItIsLookedFor) {
  SwitchOff();
  // Behind the request for calls and before the one for voicemails is served, which is then asked again.
  FollowScenario(
      "expect Search.SearchObjects\nexpect Search.SearchObjects\nvoicemail from=anna seconds=7\n"
      "expect Search.SearchObjects\nexpect Search.SearchObjects\ncontact identity=hugo mood=again\n");
  SwitchOnAndWait();
  ASSERT_NO_FATAL_FAILURE(SignIn());
  ASSERT_TRUE(Arrives(kHistoryChanged));
  EXPECT_EQ(Page(0, 9), VoicemailRecord("Voicemail", "1"));
  EXPECT_EQ(Heard(kHistoryChanged), 1);
  EXPECT_TRUE(Becomes([&] { return Execute("GetContactPropWithName", "hugo", "33") == "again"; }));

  const int voicemail = Order({{"order", "voicemail"}, {"from", "bruno"}, {"seconds", 60}})["object"];
  const std::string object = std::to_string(voicemail);
  EXPECT_TRUE(Arrives(kIncomingVoicemail));
  EXPECT_TRUE(Becomes([&] { return Heard(kHistoryChanged) == 2; }));
  EXPECT_EQ(Page(0, 1), VoicemailRecord(object, "1"));
  EXPECT_EQ(Execute("PlayVoicemail", "0"), "1");
  EXPECT_TRUE(Becomes([&] { return Value(object, kVoicemailStatus) == "5"; }));
  EXPECT_EQ(Execute("StopVoicemail", "0"), "1");
  EXPECT_TRUE(Becomes([&] { return Value(object, kVoicemailStatus) == "6"; }));
  for (const char* command : {"PlayVoicemail", "StopVoicemail", "DeleteHistory"}) {
    EXPECT_EQ(Execute(command, "2") + Execute(command, "-1"), "00") << command;
  }
  EXPECT_EQ(Execute("DeleteHistory", "0"), "1");
  EXPECT_TRUE(Becomes([&] { return !IsThere(voicemail); }));
  EXPECT_EQ(Heard(kHistoryChanged), 3);
  EXPECT_EQ(Execute("GetNumOfHistories"), "1");

  Execute("CheckMissedCall");
  EXPECT_TRUE(m_host.WaitFor(
      [](const television::Report& report) {
        return report.command == "StartWidgetWithParam" && report.parameters[0] == "MissedCallHistory";
      },
      std::chrono::seconds(5)));
  EXPECT_EQ(Heard(kWidgetLaunch), 1);
}

TEST_F(AViewersHistory, CostsWithTenThousandEntriesWhatIsShown) {
  ASSERT_NO_FATAL_FAILURE(SignInAndRemember());
  Order({{"order", "history"}, {"count", 1000}});
  const int some = FramesOf([&] { SignInAgain(); });
  Order({{"order", "history"}, {"count", 9000}});
  const int many = FramesOf([&] { SignInAgain(); });
  ASSERT_EQ(Execute("GetNumOfHistories"), "10000");
  EXPECT_LE(many, 13 * some);
  std::string page;
  const int paging = FramesOf([&] { page = Page(5000, 20, 5); });
  EXPECT_EQ(Fields(page).size(), 20 * kRecordFields);
  EXPECT_LE(paging, 20 + 10);  // each call is told to be seen; the rest is left to the connection's own
  const std::string at = Fields(page)[9];
  std::string index;
  EXPECT_LE(FramesOf([&] { index = Execute("GetHistoryIndexWithTimestamp", at.c_str()); }), 10);
  EXPECT_EQ(Execute("GetHistoryPropWithIndex", index.c_str(), "3"), at);
}

}  // namespace test
