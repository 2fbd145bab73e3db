#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <thread>
#include <utility>

#include "simulator/television/TelevisionState.h"
#include "tests/support/NoticeText.h"
#include "tests/system/SwitchedOnTelevision.h"

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::Ge;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

namespace test {

namespace {

using Notices = std::vector<std::string>;

constexpr int kShowNotice = 17;
constexpr int kHideNotice = 18;
constexpr int kCallInProgress = 263;
constexpr int kIncomingCall = 267;
constexpr int kMembersCleared = 280;
constexpr int kRequestReceived = 282;
constexpr int kIncomingConference = 289;
constexpr int kVoicemail = 294;
constexpr int kCallEnded = 303;
constexpr int kCallDuration = 307;
constexpr int kAvailabilityChanged = 346;
constexpr int kContactChanged = 349;
constexpr int kLastTimer = 412;
constexpr int kCallEndedPopup = 424;
constexpr int kMissedCall = 425;

constexpr std::chrono::seconds kBlock(4);  // no call comes in right after one

#define ICON "|Resource/icon_zelto.png|"
#define NO_BUTTON "-|-|-|-|-|-|"
#define OK_BUTTON "OK|-|-|-|-|-|"
constexpr char kSignedIn[] = "2|append|3000|0|0|Zelto|Signed in successfully." ICON NO_BUTTON;
constexpr char kCallOver[] = "8|append|10000|1|0|Zelto|Call Ended" ICON OK_BUTTON;
constexpr char kMariaCalls[] =
    "0|append|0|2|0|Zelto|Maria Sample calling…" ICON "Voice call|Decline|-|AnswerWithVoice|RejectCall|-|";

std::string DurationNotice(const char* append) {
  return std::string("6\\|") + append +
         "\\|3000\\|2\\|0\\|Maria Sample\\|          00:00:[0-9][0-9]\\|Resource/icon_zelto.png\\|"
         "End call\\|Go to Zelto\\|-\\|CallEnd\\|StartWidget\\|-\\|";
}

// Notes what comes, and answers what is asked, as the television does; only notices are kept whole.
class AViewerOfNotices : public ATelevision {
 protected:
  ~AViewerOfNotices() override { SwitchOff(); }
  void SetUp() override {
    SwitchOnWithoutService();
    Televise("GetCurrentLangID", "12");
    Televise("IsCameraReady", "0");
    m_state.Set("cameraReady", "0");
    Engine().RegisterEventCallback(&AViewerOfNotices::OnEvent, this);
    Engine().RegisterCommonCtrlFunc(&AViewerOfNotices::OnControl, this);
    m_host.StartService(Engine());
    ASSERT_TRUE(Comes(kRuntimeReady, 30));
    ASSERT_NO_FATAL_FAILURE(LogIn());
    EXPECT_THAT(Seen(), ElementsAre(kSignedIn));
  }

  void LogIn() {
    ASSERT_EQ(Execute("Login", kDemoName, kDemoPassword, "1"), "1");
    ASSERT_TRUE(Comes(kLoggedIn));
    ASSERT_TRUE(Comes(kContactListInSync));
  }
  // Whether the event comes after those that were waited for before.
  bool Comes(int event, int seconds = 15) {
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::seconds(seconds), [&] {
      const auto found = std::find(m_events.begin() + m_waitedFor, m_events.end(), event);
      if (found == m_events.end()) return false;
      m_waitedFor = found - m_events.begin() + 1;
      return true;
    });
  }
  // What has been shown and hidden since the last call, when everything sent before has arrived.
  Notices Seen() {
    Execute("OSDTimerExpired", "9");
    EXPECT_TRUE(Comes(kLastTimer));
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_notices, {});
  }
  void Televise(const std::string& name, const std::string& value) {
    const std::lock_guard lock(m_mutex);
    m_answers[name] = value;
  }
  void Enter(const char* widget) { Execute("SetZeltoWidgetState", widget); }
  void Order(const nlohmann::json& order) {
    const auto answer = nlohmann::json::parse(Door(order.dump()));
    EXPECT_TRUE(answer.value("ok", false)) << answer;
  }
  void Becomes(const char* contact, const char* availability) {
    Order({{"order", "contact"}, {"identity", contact}, {"availability", availability}});
    EXPECT_TRUE(Comes(kContactChanged));
  }
  void Rings(int conference = 0) {
    Order({{"order", "call"}, {"from", "maria"}, {"conference", conference}});
    ASSERT_TRUE(Comes(conference != 0 ? kIncomingConference : kIncomingCall));
  }
  Notices SeenInTwoSeconds() {
    Seen();
    for (int seconds = 0; seconds < 2; ++seconds) EXPECT_TRUE(Comes(kCallDuration));
    return Seen();
  }
  // The viewer presses a button of a notice.
  void Presses(const char* command) { EXPECT_EQ(Execute(command), "1"); }

 private:
  static bool OnEvent(const CEngineEvent* event, void* user) {
    auto* self = static_cast<AViewerOfNotices*>(user);
    const std::lock_guard lock(self->m_mutex);
    self->m_events.push_back(event->type);
    if (event->type == kShowNotice) self->m_notices.push_back(WrittenNotice(*event));
    if (event->type == kHideNotice) self->m_notices.push_back(std::string("hide ") + event->param1);
    self->m_changed.notify_all();
    return true;
  }
  static const char* OnControl(const char* command, const char* p1, const char* p2, const char* p3,
                               const char* p4, void* user) {
    auto* self = static_cast<AViewerOfNotices*>(user);
    const auto text = [](const char* parameter) { return parameter != nullptr ? parameter : ""; };
    const std::lock_guard lock(self->m_mutex);
    const auto answer = self->m_answers.find(command);
    self->m_answer = answer != self->m_answers.end()
                         ? answer->second
                         : self->m_state.Control(command, text(p1), text(p2), text(p3), text(p4));
    return self->m_answer.c_str();
  }

  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::vector<int> m_events;
  std::ptrdiff_t m_waitedFor = 0;
  Notices m_notices;
  std::map<std::string, std::string> m_answers;
  television::TelevisionState m_state;
  std::string m_answer;
};

Notices AllHidden() {
  Notices all;
  for (int id = 0; id < 9; ++id) all.push_back("hide " + std::to_string(id));
  return all;
}

}  // namespace

TEST_F(AViewerOfNotices, IsToldOfASignInOnceUntilTheNextOne) {
  for (const char* availability : {"4", "3"}) {
    EXPECT_EQ(Execute("SetAvailability", availability), "1");
    EXPECT_TRUE(Comes(kAvailabilityChanged));
  }
  EXPECT_THAT(Seen(), IsEmpty());
  for (const bool widget : {false, true}) {
    EXPECT_EQ(Execute("Logout", "0"), "1");
    EXPECT_TRUE(Comes(kLoggedOut));
    EXPECT_EQ(Seen(), AllHidden());
    Enter(widget ? "1" : "0");
    ASSERT_NO_FATAL_FAILURE(LogIn());
    EXPECT_EQ(Seen(), widget ? Notices{} : Notices{kSignedIn});
  }
}

TEST_F(AViewerOfNotices, HearsWhoComesOnlineAndWhoAsks) {
  EXPECT_EQ(Execute("SetNotificationEnable", "1"), "1");
  Becomes("dmitri", "online");
  EXPECT_THAT(Seen(), ElementsAre("3|append|10000|1|0|Zelto|Dmitri is online." ICON OK_BUTTON));
  Becomes("dmitri", "away");
  Order({{"order", "authrequest"}, {"from", "dr.no"}});
  EXPECT_TRUE(Comes(kRequestReceived));
  EXPECT_THAT(Seen(), ElementsAre("5|append|10000|1|0|Zelto|You have a new contact request." ICON OK_BUTTON));
  Televise("GetCurrentLangID", "27");
  Becomes("chloe", "online");
  EXPECT_THAT(Seen(),
              ElementsAre("3|append|10000|1|0|Zelto|Chloéさんがオンラインになりました。" ICON OK_BUTTON));
  Enter("1");
  Becomes("farid", "online");
  Enter("0");
  EXPECT_EQ(Execute("SetNotificationEnable", "0"), "1");
  Becomes("greta", "online");
  EXPECT_THAT(Seen(), IsEmpty());
}

TEST_F(AViewerOfNotices, IsOfferedToAnswerAsTheCameraAllows) {
  Televise("IsCameraReady", "1");
  ASSERT_NO_FATAL_FAILURE(Rings());
  EXPECT_THAT(Seen(), ElementsAre("hide 8", "0|append|0|3|0|Zelto|Maria Sample calling…" ICON
                                            "Video call|Voice call|Decline|"
                                            "AnswerWithVideo|AnswerWithVoice|RejectCall|"));
  Presses("RejectCall");
  ASSERT_TRUE(Comes(kMembersCleared));
  EXPECT_THAT(Seen(), ElementsAre("hide 6", "hide 0"));
  std::this_thread::sleep_for(kBlock);
  ASSERT_NO_FATAL_FAILURE(Rings(1));
  EXPECT_THAT(Seen(), ElementsAre("hide 8",
                                  "0|append|0|2|0|Zelto|Maria Sample invited you to join a "
                                  "conference call." ICON "Answer|Decline|-|AnswerWithVoice|CallEnd|-|"));
}

TEST_F(AViewerOfNotices, SeesTheDurationOfACallWhileTheWidgetIsClosedAndThatItHasEnded) {
  ASSERT_NO_FATAL_FAILURE(Rings());
  EXPECT_THAT(Seen(), ElementsAre("hide 8", kMariaCalls));
  Presses("AnswerWithVoice");
  Enter("1");
  ASSERT_TRUE(Comes(kCallInProgress));
  EXPECT_THAT(SeenInTwoSeconds(), IsEmpty());
  Enter("0");
  Notices seen = SeenInTwoSeconds();
  ASSERT_THAT(seen, SizeIs(Ge(2u)));
  EXPECT_THAT(seen[0], MatchesRegex(DurationNotice("append")));
  seen.erase(seen.begin());
  EXPECT_THAT(seen, Each(MatchesRegex(DurationNotice("replace"))));
  Presses("StartWidget");
  SeenInTwoSeconds();
  EXPECT_THAT(SeenInTwoSeconds(), IsEmpty());
  Enter("1");
  EXPECT_THAT(SeenInTwoSeconds(), IsEmpty());
  Enter("0");
  EXPECT_THAT(SeenInTwoSeconds(), AllOf(SizeIs(Ge(2u)), Each(MatchesRegex(DurationNotice("replace")))));
  EXPECT_EQ(Execute("CallEnd", "0"), "1");
  ASSERT_TRUE(Comes(kCallEndedPopup));
  seen = Seen();
  ASSERT_THAT(seen, SizeIs(Ge(3u)));
  EXPECT_THAT(Notices(seen.end() - 3, seen.end()), ElementsAre("hide 6", "hide 0", kCallOver));

  std::this_thread::sleep_for(kBlock);
  ASSERT_NO_FATAL_FAILURE(Rings());
  EXPECT_THAT(Seen(), ElementsAre("hide 8", kMariaCalls));
  Order({{"order", "hangup"}});
  ASSERT_TRUE(Comes(kCallEnded));
  EXPECT_THAT(Seen(), ElementsAre("hide 6", "hide 0"));
}

TEST_F(AViewerOfNotices, FindsWhatCameInTheMeantime) {
  Order({{"order", "voicemail"}, {"from", "maria"}});
  ASSERT_TRUE(Comes(kVoicemail));
  EXPECT_THAT(Seen(), ElementsAre("4|append|10000|1|0|Zelto|You have a new voicemail." ICON OK_BUTTON));
  const std::string toCalls = ICON "Go to Zelto|-|-|CheckMissedCall|-|-|";
  for (const char* caller : {"maria", "anna"}) {
    Order({{"order", "call"}, {"from", caller}, {"milliseconds", 500}});
    ASSERT_TRUE(Comes(kMissedCall));
    const Notices seen = Seen();
    ASSERT_THAT(seen, SizeIs(Ge(2u)));
    EXPECT_EQ(seen[seen.size() - 2], "hide 7");
    if (caller[0] == 'm') {
      EXPECT_THAT(seen.back(), StartsWith("7|append|3600000|1|0|Zelto|You missed a call from maria at 20"));
      EXPECT_THAT(seen.back(), EndsWith("M." + toCalls));
    } else {
      EXPECT_EQ(seen.back(), "7|append|3600000|1|0|Zelto|You have 2 missed calls." + toCalls);
    }
    std::this_thread::sleep_for(kBlock);
  }
  Enter("1");
  Order({{"order", "call"}, {"from", "maria"}, {"milliseconds", 500}});
  ASSERT_TRUE(Comes(kMissedCall));
  EXPECT_THAT(Seen(), Not(Contains(StartsWith("7|"))));
  Execute("GetHistoryListIncludingTimestamp", "0", "10", "0");
  EXPECT_THAT(Seen(), Contains("hide 7"));
}

}  // namespace test
