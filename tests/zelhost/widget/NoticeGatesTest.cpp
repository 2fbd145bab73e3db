#include <gtest/gtest.h>

#include "Common/CallManager.h"
#include "tests/zelhost/RootFixture.h"
#include "tests/zelhost/calls/CallScript.h"

namespace {

struct Moment {
  const char* widget;
  bool widgetStarts;
  bool call;
  const char* wanted;   // whether the viewer wants to hear who is online
  const char* allowed;  // signed in, online, duration, call ended, missed call
};

// clang-format off
constexpr Moment kMoments[] = {
    {"0", false, false, "1", "SO.EM"},
    {"0", false, false, "0", "S..EM"},
    {"0", true,  false, "1", "SO.EM"},
    {"1", false, false, "1", "....."},
    {"2", false, false, "1", "....."},
    {"0", false, true,  "1", "..DEM"},
    {"0", true,  true,  "1", "...EM"},
    {"1", false, true,  "1", "....."},
    {"3", false, true,  "1", "....."},
};
// clang-format on

class Notices : public test::RootFixture {
 protected:
  Notices() {
    test::call::Serve(m_runtime, m_memory);
    CCallManager::GetInstance();
    CZeltoManager::SetLoggedInState(true);
    CZeltoManager::SetOnlineState(true);
  }
  ~Notices() override { CCallManager::DeleteInstance(); }
};

TEST_F(Notices, StayAwayFromTheWidgetAndFromACall) {
  bool call = false;
  for (const Moment& moment : kMoments) {
    SCOPED_TRACE(&moment - kMoments);
    m_host.Execute("SetZeltoWidgetState", moment.widget);
    CZeltoManager::SetWidgetStarted(moment.widgetStarts);
    m_memory.Set("*UI/Setting/NOTIFICATION_POPUP", moment.wanted);
    if (moment.call && !std::exchange(call, true)) {
      Deliver(test::call::kCallClass, test::call::kNewCall, test::call::Id(test::call::kCall));
      Deliver(test::call::kMemberClass, test::call::kChanged, test::call::MemberStatus(8));
    }
    CZeltoManager::SetSigninPopupShowState(false);
    std::string allowed;
    allowed += CZeltoManager::CheckShowSignedInPopup() ? 'S' : '.';
    allowed += CZeltoManager::CheckShowOnlinePopup() ? 'O' : '.';
    allowed += CZeltoManager::CheckShowCallDurationPopup() ? 'D' : '.';
    allowed += CZeltoManager::CheckShowCallEndedPopup() ? 'E' : '.';
    allowed += CZeltoManager::CheckShowMissedCallPopup() ? 'M' : '.';
    EXPECT_EQ(allowed, moment.allowed);
    EXPECT_TRUE(CZeltoManager::GetSigninPopupShowState());
    EXPECT_FALSE(CZeltoManager::CheckShowSignedInPopup());
  }
}

TEST_F(Notices, OfASignInAreConsideredOnceSomebodyIsSignedInAndOnline) {
  for (const auto& [loggedIn, online] : {std::pair{false, false}, {false, true}, {true, false}}) {
    CZeltoManager::SetLoggedInState(loggedIn);
    CZeltoManager::SetOnlineState(online);
    EXPECT_FALSE(CZeltoManager::CheckShowSignedInPopup());
    EXPECT_FALSE(CZeltoManager::GetSigninPopupShowState());
  }
  CZeltoManager::SetOnlineState(true);
  EXPECT_TRUE(CZeltoManager::CheckShowSignedInPopup());
  EXPECT_FALSE(CZeltoManager::CheckShowSignedInPopup());
}

}  // namespace
