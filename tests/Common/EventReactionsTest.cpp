#include "Common/EventReactions.h"

#include "Common/AccountManager.h"
#include "Common/CallManager.h"
#include "Common/ContactManager.h"
#include "tests/Common/EngineFixture.h"

namespace {

using test::FakeService;
using test::Log;

// Reactions alone, on the test's own thread.
class AnEngine : public test::EngineFixture {
 protected:
  AnEngine() {
    CAccountManager::GetInstance();
    CContactManager::GetInstance();
    CCallManager::GetInstance();
  }

  Log After(int type, int param = 0) {
    zelto::ReactToEvent({type, param, 0}, state);
    return host.TakeLog();
  }

  zelto::ReactionState state;
};

TEST_F(AnEngine, TellsTheHostWhatTheServiceMeansAndNothingElse) {
#define HIDES(id) "18(" #id ", null)"
#define SHOWS "GetCurrentLangID[]", "17(notice)"
  const std::map<int, Log> told = {
      {256, {"19(null, null)"}},
      {257,
       {"20(null, null)", HIDES(0), HIDES(1), HIDES(2), HIDES(3), HIDES(4), HIDES(5), HIDES(6), HIDES(7),
        HIDES(8)}},
      {262, {"8(null, null)"}},
      {263, {"9(null, null)"}},
      {267, {HIDES(8), "GetCurrentLangID[]", "IsCameraReady[]", "17(notice)", "7(null, null)"}},
      {277, {HIDES(6)}},
      {282, {SHOWS}},
      {289, {HIDES(8), SHOWS, "7(null, null)"}},
      {291, {HIDES(6), HIDES(0), "9(null, null)"}},
      {294, {SHOWS}},
      {303, {HIDES(6), HIDES(0), "9(null, null)"}},
      {304, {HIDES(6)}},
      {371, {"4(null, null)"}},
      {378, {"22(null, null)"}},
      {417, {"24(null, null)"}},
      {423, {"23(Resource/zelto_bg.png, null)"}},
      {426, {HIDES(7)}}};
  std::vector<int> types = {-1, 100000, 199111, 2147483647};
  for (int type = 250; type < 440; ++type) types.push_back(type);
  for (int type : types) {
    const auto expected = told.find(type);
    EXPECT_EQ(After(type), expected != told.end() ? expected->second : Log{}) << type;
  }
}

TEST_F(AnEngine, UnmutesTheSpeakerForARingWhileTheWidgetIsShown) {
  FakeService::host->widgetShown = true;
  for (int ring : {262, 267, 289}) EXPECT_EQ(After(ring).back(), "MuteSpeakerVolume[0]") << ring;
  EXPECT_EQ(After(378), Log{});
}

TEST_F(AnEngine, KeepsWhetherSomebodyIsSignedInAndOnline) {
  After(256);
  EXPECT_TRUE(FakeService::host->loggedIn);
  After(346, 3);
  EXPECT_TRUE(FakeService::host->online);
  After(346, 2);
  EXPECT_FALSE(FakeService::host->online);
  FakeService::host->popupShown = true;
  After(257, 11);
  EXPECT_FALSE(FakeService::host->loggedIn);
  EXPECT_FALSE(FakeService::host->popupShown);
}

TEST_F(AnEngine, ReportsTheContactWhoseStateChanged) {
  FakeService::answers = {{"changed", "ann"}, {"status ann", "3"}};
  EXPECT_EQ(After(349, 7), Log{"21(ann, 3)"});
}

TEST_F(AnEngine, SignsInAutomaticallyWhenTheHostWantsItAndNobodyIs) {
  recording::TheNotes().noting = true;
  for (const auto& [wanted, loginState] : {std::pair{false, 0}, {true, 1}, {true, 0}}) {
    FakeService::host->autoStart = wanted;
    FakeService::account->loginState = loginState;
    After(371);
  }
  EXPECT_EQ(recording::TheNotes().calls, Log{"Login(null, null, true)"});
  recording::TheNotes() = {};
}

TEST_F(AnEngine, SilencesTheSpeakerBehindTheConnectingScreenAlsoWhenTheCallEndsMeanwhile) {
  FakeService::call->inCall = true;
  host.answers["GetSpeakerVolume"] = "37 percent";
  EXPECT_EQ(After(423),
            (Log{"GetSpeakerVolume[]", "SetSpeakerVolume[0]", "23(Resource/zelto_bg.png, null)"}));
  host.answers["GetSpeakerVolume"] = "0";
  After(423);  // shown twice: still 37
  EXPECT_EQ(After(417), (Log{"24(null, null)", "MuteSpeakerVolume[0]", "SetSpeakerVolume[37]"}));
  EXPECT_EQ(After(417), (Log{"24(null, null)", "MuteSpeakerVolume[0]"}));
  host.answers["GetSpeakerVolume"] = "12";
  After(423);
  FakeService::call->inCall = false;
  EXPECT_EQ(After(417), (Log{"24(null, null)", "SetSpeakerVolume[12]"}));
}

}  // namespace
