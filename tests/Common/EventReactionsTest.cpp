#include "Common/EventReactions.h"

#include <gtest/gtest.h>

#include "Common/AccountManager.h"
#include "Common/CallManager.h"
#include "Common/ContactManager.h"
#include "Common/ZeltoManager.h"
#include "tests/Common/FakeService.h"
#include "tests/Common/TestHost.h"

namespace {

using test::FakeService;
using Log = std::vector<std::string>;

// Reactions alone, on the test's own thread.
class AnEngine : public testing::Test {
 protected:
  AnEngine() : engine(host.StartEngine()) {
    CZeltoManager::GetZeltoManagerImp();
    CAccountManager::GetInstance();
    CContactManager::GetInstance();
    CCallManager::GetInstance();
  }
  ~AnEngine() override { CZeltoManager::Destroy(engine); }

  Log After(int type, int param = 0) {
    zelto::ReactToEvent({type, param, 0}, state);
    return host.TakeLog();
  }

  test::TestHost host;
  IMoIPEngine* const engine;
  zelto::ReactionState state;
};

TEST_F(AnEngine, TellsTheHostWhatTheServiceMeans) {
  const struct {
    int type;
    Log host;
  } reactions[] = {
      {256, {"19(null, null)"}},
      {257, {"20(null, null)"}},
      {262, {"8(null, null)"}},
      {263, {"9(null, null)"}},
      {267, {"7(null, null)"}},
      {277, {}},
      {282, {}},
      {289, {"7(null, null)"}},
      {291, {"9(null, null)"}},
      {294, {}},
      {303, {"9(null, null)"}},
      {304, {}},
      {307, {}},
      {378, {"22(null, null)"}},
      {371, {"4(null, null)"}},
      {417, {"24(null, null)"}},
      {424, {}},
      {425, {}},
      {426, {}},
      {255, {}},
      {258, {}},
      {427, {}},
      {100000, {}},
      {199111, {}},
      {-1, {}},
      {423, {"23(Resource/zelto_bg.png, null)"}},
  };
  for (const auto& reaction : reactions) EXPECT_EQ(After(reaction.type), reaction.host) << reaction.type;
}

TEST_F(AnEngine, UnmutesTheSpeakerForARingWhileTheWidgetIsShown) {
  FakeService::host->widgetShown = true;
  EXPECT_EQ(After(262), (Log{"8(null, null)", "MuteSpeakerVolume[0]"}));
  EXPECT_EQ(After(267), (Log{"7(null, null)", "MuteSpeakerVolume[0]"}));
  EXPECT_EQ(After(289), (Log{"7(null, null)", "MuteSpeakerVolume[0]"}));
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
  EXPECT_EQ(After(349, 7), Log{});
  FakeService::contacts->changed = "ann";
  FakeService::contacts->statuses["ann"] = 3;
  EXPECT_EQ(After(349, 7), Log{"21(ann, 3)"});
}

TEST_F(AnEngine, SignsInAutomaticallyWhenTheHostWantsItAndNobodyIs) {
  After(371);
  EXPECT_EQ(FakeService::account->logins, 0);
  FakeService::host->autoStart = true;
  After(371);
  EXPECT_EQ(FakeService::account->logins, 1);
  FakeService::account->loginState = 1;
  After(371);
  EXPECT_EQ(FakeService::account->logins, 1);
}

TEST_F(AnEngine, SilencesTheSpeakerBehindTheConnectingScreenOfACall) {
  FakeService::call->inCall = true;
  host.SetAnswer("GetSpeakerVolume", "37");
  EXPECT_EQ(After(423),
            (Log{"GetSpeakerVolume[]", "SetSpeakerVolume[0]", "23(Resource/zelto_bg.png, null)"}));
  host.SetAnswer("GetSpeakerVolume", "0");
  After(423);  // shown twice: still 37
  EXPECT_EQ(After(417), (Log{"24(null, null)", "MuteSpeakerVolume[0]", "SetSpeakerVolume[37]"}));
  EXPECT_EQ(After(417), (Log{"24(null, null)", "MuteSpeakerVolume[0]"}));
}

TEST_F(AnEngine, GivesTheSpeakerBackAlsoWhenTheCallIsOver) {
  FakeService::call->inCall = true;
  host.SetAnswer("GetSpeakerVolume", "12 percent");
  After(423);
  FakeService::call->inCall = false;
  EXPECT_EQ(After(417), (Log{"24(null, null)", "SetSpeakerVolume[12]"}));
}

}  // namespace
