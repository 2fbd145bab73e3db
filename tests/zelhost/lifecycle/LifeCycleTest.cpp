#include "zelhost/lifecycle/ZelhostLifeCycle.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <cstring>
#include <future>

#include "shmipc/shmipc.h"
#include "tests/support/SurvivalCheck.h"
#include "tests/zelhost/Service.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/lifecycle/RuntimeProcess.h"

using testing::ElementsAre;

namespace {

constexpr char kStart[] = "1986";
constexpr char kStop[] = "1386";
constexpr char kFilter[] = "1522";

class AService : public test::Service {
 protected:
  // Nothing may be left of it, whatever happened.
  void ExpectUnloadsWithin(double seconds) {
    EXPECT_LT(SecondsOf([] { EXPECT_TRUE(CZeltoManager::Unload()); }), seconds);
    EXPECT_EQ(CZeltoManager::GetZeltoState(), CZelhostLifeCycle::ZELTO_UNLOADED);
    EXPECT_EQ(zelhost::RuntimeProcess::Current(), nullptr);
    EXPECT_FALSE(m_device.Has("/tmp/shmipc2_conn"));
  }
  bool WaitForState(int state) {
    for (int step = 0; step < 4000 && CZeltoManager::GetZeltoState() != state; ++step) usleep(5'000);
    return CZeltoManager::GetZeltoState() == state;
  }
};

TEST_F(AService, ComesUpOnceAndTellsTheHost) {
  ASSERT_EQ(CZeltoManager::GetZeltoState(), CZelhostLifeCycle::ZELTO_UNLOADED);
  m_host.Answers("IsEmbeddedCamera", "1");
  const double loading = SecondsOf([&] {
    ASSERT_TRUE(Load());
    EXPECT_EQ(CZeltoManager::GetZeltoState(), CZelhostLifeCycle::ZELTO_LOADING);
    EXPECT_FALSE(Load());
    ASSERT_TRUE(m_host.WaitFor(CZeltoManager::ZELTO_RUNTIME_READY));
  });
  EXPECT_GE(loading, 6.0);  // what a runtime needs before it listens
  EXPECT_TRUE(CZeltoManager::IsZeltoReady());
  EXPECT_FALSE(Load());
  EXPECT_TRUE(m_device.Has("/mtd_rwcommon/moip/engines/Zelto/avatar"));

  const auto starts = m_runtime->requests(kStart);
  ASSERT_EQ(starts.size(), 1u);
  EXPECT_EQ(starts[0].arguments.at("1482"), "1");
  EXPECT_EQ(starts[0].arguments.at("1553"), "10071/1.0.0.0/");

  ASSERT_TRUE(m_runtime->waitForRequests(kFilter, 3));
  std::vector<std::string> filters;
  for (const ScriptedRequest& request : m_runtime->requests(kFilter)) filters.push_back(request.text);
  EXPECT_THAT(
      filters,
      ElementsAre("a 2046 1522 1857=\"1441,1449,1199,1032,1752,1993,1927,1585,1595,1274,1200,1011,1297,1824,"
                  "1442\"",
                  "a 1799 1522 1857=\"1704,1092,1931,1405,1099,1618,1250,1722,1484,2095,1813,1170,1321,1007,"
                  "1441,1449,2075,1073,1909,1324,1413,1754,1838,1565,1766,1604,1177,1446,1199,2004,1419,1359,"
                  "1724,1670,1527,1792,1307,1793,1570,1794,1865\"",
                  "a 1221 1522 1857=\"1583\""));
  ExpectUnloadsWithin(20);
}

TEST_F(AService, RefusesToLoadWithoutAnExecutableRuntime) {
  std::filesystem::permissions(m_device / "/mtd_rwcommon/moip/engines/Zelto/zelhost",
                               std::filesystem::perms::none);
  m_host.Answers("SupportDoubleTalk", "1");  // and there is no such one either
  EXPECT_FALSE(Load());
  EXPECT_EQ(CZeltoManager::GetZeltoState(), CZelhostLifeCycle::ZELTO_UNLOADED);
}

TEST_F(AService, ResetsItsDatabaseOnlyWhileUnloaded) {
  const std::string database = "/mtd_rwcommon/moip/engines/Zelto/.Zelto";
  std::filesystem::create_directories(m_device / (database + "/account"));
  ASSERT_TRUE(IsLoaded());
  EXPECT_FALSE(CZeltoManager::ResetDB());
  EXPECT_TRUE(m_device.Has(database));
  ExpectUnloadsWithin(20);
  EXPECT_TRUE(CZeltoManager::ResetDB());
  EXPECT_FALSE(m_device.Has(database));
}

TEST_F(AService, FindsARuntimeThatListensLate) {
  m_runtime.reset();
  ASSERT_TRUE(Load());
  zelto::SleepMilliseconds(8'000);
  EXPECT_EQ(CZeltoManager::GetZeltoState(), CZelhostLifeCycle::ZELTO_LOADING);
  Listen();
  EXPECT_TRUE(m_host.WaitFor(CZeltoManager::ZELTO_RUNTIME_READY));
  ExpectUnloadsWithin(20);
}

TEST_F(AService, GivesUpOnARuntimeThatNeverListens) {
  m_runtime.reset();
  test::SurvivalCheck survival({m_device / "/tmp"});
  ASSERT_TRUE(Load());
  EXPECT_TRUE(WaitForState(CZelhostLifeCycle::ZELTO_UNLOADED));
  { zelhost::ServiceHostLock lock("waiting for the end of the attempt"); }
  EXPECT_EQ(zelhost::RuntimeProcess::Current(), nullptr);
  Listen();
  EXPECT_TRUE(IsLoaded());  // neither thread nor channels of the failed attempt are in the way
  ExpectUnloadsWithin(20);
  m_runtime.reset();
}

TEST_F(AService, EndsARuntimeThatRefusesTheStart) {
  m_runtime->reply(kStart, ScriptedRuntime::pair("0", "2001"));
  ASSERT_TRUE(Load());
  ASSERT_TRUE(m_runtime->waitForRequests(kStop));
  EXPECT_TRUE(WaitForState(CZelhostLifeCycle::ZELTO_UNLOADED));
}

// Each of these would hold the stop request, and with it the unload, for ever.
TEST_F(AService, UnloadsThoughTheRuntimeDribbles) {
  ASSERT_TRUE(IsLoaded());
  m_runtime->on(kStop, [](ScriptedRuntime& runtime, const ScriptedRequest&) {
    runtime.sendBytes(std::string(1, '\0'));
  });
  ExpectUnloadsWithin(6);
}

TEST_F(AService, UnloadsThoughTheStopIsNeverAnsweredAndEventsNeverEnd) {
  ASSERT_TRUE(IsLoaded());
  m_runtime->stayMute(kStop);
  std::atomic<bool> stop{false};
  const auto flood = std::async(std::launch::async, [&] {
    while (!stop) {
      for (int i = 0; i < 20; ++i) m_runtime->sendEvent("1465", "1093");
      usleep(500);
    }
  });
  ExpectUnloadsWithin(6);
  stop = true;
}

TEST_F(AService, UnloadsWhileThePollThreadWaitsForTheUnloadingThread) {
  ASSERT_TRUE(IsLoaded());
  zelhost::ServiceHostLock lock("the test");
  zelto::SleepMilliseconds(200);
  ExpectUnloadsWithin(20);
}

// The poll thread is the one that asks for the camera, deep inside of what an unload would take down.
const char* UnloadingTelevision(const char* cmd, const char*, const char*, const char*, const char*, void*) {
  if (std::strcmp(cmd, "IsEmbeddedCamera") != 0) return nullptr;
  return CZeltoManager::Unload() ? "1" : "0";
}

TEST_F(AService, RefusesToUnloadOnItsOwnPollThread) {
  CZeltoManager::GetInstance()->RegisterCommonCtrlFunc(UnloadingTelevision, nullptr);
  ASSERT_TRUE(IsLoaded());
  EXPECT_EQ(m_runtime->requests(kStart).at(0).arguments.at("1553"), "10070/1.0.0.0/");
  ExpectUnloadsWithin(20);
}

TEST_F(AService, AnswersAStopWithinItsStartUpTime) {
  ASSERT_TRUE(Load());
  EXPECT_LT(SecondsOf([] { CZeltoManager::Unload(); }), 3);
}

TEST_F(AService, LoadsAgainWhenTheUnloadUnderWayIsOver) {
  ASSERT_TRUE(IsLoaded());
  m_runtime->stayMute(kStop);
  auto unload = std::async(std::launch::async, [] { return CZeltoManager::Unload(); });
  ASSERT_TRUE(WaitForState(CZelhostLifeCycle::ZELTO_UNLOADING));
  EXPECT_TRUE(IsLoaded());
  EXPECT_TRUE(unload.get());
}

TEST_F(AService, OpensItsChannelsThoughAKilledEngineLeftSegmentsBehind) {
  for (const auto open : {SHMIPC_open_audio_in_channel, SHMIPC_open_audio_out_channel,
                          SHMIPC_open_video_in_channel, SHMIPC_open_video_out_channel}) {
    SHMIPC_channel_t* leftOver = open(1);
    ASSERT_NE(leftOver, nullptr);
    SHMIPC_close_channel(leftOver);
  }
  ASSERT_TRUE(Load());
  SHMIPC_channel_t* audioIn = SHMIPC_open_audio_in_channel(0);
  ASSERT_NE(audioIn, nullptr);
  EXPECT_EQ(SHMIPC_initialize_sender(audioIn), 0);
  EXPECT_EQ(SHMIPC_wait_for_connection(audioIn, 0), 0);  // the engine is at the other end, afresh
  const auto* blob = static_cast<const std::uint32_t*>(SHMIPC_get_config(audioIn));
  ASSERT_NE(blob, nullptr);
  EXPECT_EQ(blob[0], 48000u);
  EXPECT_EQ(blob[1], 1u);
  SHMIPC_close_channel(audioIn);
  ExpectUnloadsWithin(20);
}

}  // namespace
