#include "Common/ZeltoManager.h"

#include <stdexcept>
#include <thread>

#include "Common/CallManager.h"
#include "tests/Common/EngineFixture.h"
#include "tests/Common/NoThreads.h"
#include "tests/support/FastClock.h"

namespace {

using test::FakeService;
using test::Log;

struct Handler : CZeltoEventHandler {
  bool OnEvent(const CZeltoEvent* event) override { return test::Run(onEvent, event); }
  bool AfterEvent(const CZeltoEvent* event) override { return test::Run(afterEvent, event); }
  test::Hook onEvent, afterEvent;
};

class ARunningEngine : public test::EngineFixture {
 protected:
  ~ARunningEngine() override { Destroy(); }

  // So many threads that do this; they are joined.
  template <class Body>
  static void InThreads(int count, Body body) {
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i) threads.emplace_back(body);
    for (std::thread& thread : threads) thread.join();
  }

  Handler handler;
};

TEST_F(ARunningEngine, DeliversEventsInOrderAndDropsUnknownOnes) {
  CZeltoManager::SendEvent(255, 0);
  CZeltoManager::SendEvent(307, 65);
  CZeltoManager::SendEvent(199112, 0);
  CZeltoManager::SendEvent(CZeltoManager::CALLMEMBER_SPEAKING + 2, -2147483647 - 1);
  CZeltoManager::SendEvent(-5, 0);
  CZeltoManager::SendEvent(199111, 1);
  ASSERT_TRUE(host.WaitFor("199111(1, null)"));
  EXPECT_EQ(host.TakeLog(), (Log{"307(65, null)", "100002(-2147483648, null)", "199111(1, null)"}));
  for (int type : {-1, 0, 255, 199112}) {
    EXPECT_FALSE(CZeltoManager::SetEventHandler(static_cast<CZeltoManager::EVENT_TYPE>(type), &handler));
  }
}

TEST_F(ARunningEngine, LetsAHandlerReactBeforeAndAfterTheHostOrSwallowTheEvent) {
  std::string order;
  handler.onEvent = [&](const CZeltoEvent* event) {
    return order += " on" + std::to_string(event->param), event->param == 9;
  };
  handler.afterEvent = [&](const CZeltoEvent*) { return order += " after", false; };
  host.onEvent = [&](const CEngineEvent& event) { order += " host" + std::to_string(event.type); };
  EXPECT_TRUE(CZeltoManager::SetEventHandler(CZeltoManager::ACCOUNT_LOGGED_IN, &handler));
  CZeltoManager::SendEvent(256, 9);
  CZeltoManager::SendEvent(256, 8);
  Destroy();
  EXPECT_EQ(order, " on9 host256 after host19 on8 host19");
}

TEST_F(ARunningEngine, GoesOnAfterAHandlerAHostOrACommandThatThrows) {
  handler.onEvent = [](const CZeltoEvent*) -> bool { throw std::bad_alloc(); };
  CZeltoManager::SetEventHandler(CZeltoManager::ACCOUNT_LOGGED_IN, &handler);
  host.onEvent = [](const CEngineEvent&) { throw 1; };
  CZeltoManager::SendEvent(256, 0);
  CZeltoManager::SendEvent(300, 1);
  CZeltoManager::SendEvent(300, 2);
  EXPECT_TRUE(host.WaitFor("300(2, null)"));
  FakeService::host->onExecute = [](const std::string&) -> const char* { throw std::bad_alloc(); };
  EXPECT_STREQ(engine->Execute("Load", nullptr, nullptr, nullptr, nullptr), "");
}

TEST_F(ARunningEngine, GivesTheHostTextsThatItMayWriteInto) {
  char text[] = "text";
  host.onEvent = [](const CEngineEvent& event) { event.param1[0] = event.param2[0] = 'X'; };
  CZeltoManager::NotifyEngineEvent(300, text, "constant");
  CZeltoManager::NotifyHardwiredEvent(21, text, "constant");
  EXPECT_EQ(host.TakeLog(), (Log{"300(text, constant)", "21(text, constant)"}));
  EXPECT_STREQ(text, "text");
}

#ifdef ZELTO_DEBUG_LOCKS
TEST_F(ARunningEngine, EndsTheProcessWhenTheHostReentersIt) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  host.onEvent = [this](const CEngineEvent&) { engine->Execute("Load", nullptr, nullptr, nullptr, nullptr); };
  EXPECT_DEATH(CZeltoManager::NotifyEngineEvent(300, nullptr, nullptr), "");
}
#else
TEST_F(ARunningEngine, RefusesWhatAReenteringHostWouldWaitForForEver) {
  std::string answer = "not asked";
  host.onEvent = [&](const CEngineEvent&) {
    answer = CZeltoManager::CallCommonControl("GetTVModel");
    CZeltoManager::NotifyEngineEvent(301, nullptr, nullptr);
    engine->RegisterEventCallback(nullptr, nullptr);
    engine->RegisterDataCallback(nullptr, nullptr);
    CZeltoManager::Destroy(engine);
    EXPECT_EQ(CZeltoManager::Create(), engine);
  };
  CZeltoManager::NotifyEngineEvent(300, nullptr, nullptr);
  EXPECT_EQ(host.TakeLog(), Log{"300(null, null)"});
  EXPECT_EQ(answer, "");
  EXPECT_EQ(FakeService::host->loads, 0);
}
#endif

TEST_F(ARunningEngine, EndsInOrder) {
  std::string order;
  CCallManager::GetInstance();
  FakeService::call->inCall = true;
  FakeService::onBeginShutdown = [&] { order += "shutdown"; };
  FakeService::call->onCallEnd = [&](bool force) {
    order += force ? ", call" : "";
    CZeltoManager::CallCommonControl("StillThere");
  };
  FakeService::host->onDelete = [&] {
    order += ", service";
    CZeltoManager::CallCommonControl("NotThere");
    order += CZeltoManager::IsZeltoReady() ? " ready" : "";
  };
  CZeltoManager::SendEvent(CZeltoManager::CALL_DURATION, 1);  // before the end, and so still delivered
  Destroy();
  EXPECT_EQ(order, "shutdown, call, service ready");
  EXPECT_EQ(host.TakeLog(), (Log{"307(1, null)", "StillThere[]"}));
  EXPECT_EQ(test::FakeCall::alive, 0);
}

TEST_F(ARunningEngine, EndsAlthoughEventsRaiseEventsForEver) {
  const test::FastClock fast;
  handler.onEvent = [](const CZeltoEvent* event) { return CZeltoManager::SendEvent(event->type, 0), true; };
  CZeltoManager::SetEventHandler(CZeltoManager::CALL_ENDED, &handler);
  CZeltoManager::SendEvent(303, 0);
  ASSERT_TRUE(host.WaitFor("303(0, null)"));
  Destroy();
  EXPECT_EQ(CZeltoManager::GetInstance(), nullptr);
}

// What a late thread does must neither touch freed memory nor bring the engine back. The host is entered by
// one thread at a time.
TEST_F(ARunningEngine, MayBeEndedUnderThreadsThatAreLate) {
  std::atomic<bool> stop{false};
  std::atomic<int> inside{0}, most{0};
  host.onEvent = [&](const CEngineEvent&) {
    most = std::max(most.load(), ++inside);
    std::this_thread::yield();
    --inside;
  };
  std::thread ending([&] {
    for (int round = 0; round < 30; ++round) {
      Destroy();
      EXPECT_EQ(CZeltoManager::GetInstance(), nullptr);
      EXPECT_EQ(CZeltoManager::GetZeltoManagerImp(), nullptr);
      engine = host.StartEngine();
      EXPECT_NE(engine, nullptr);
    }
    stop = true;
  });
  InThreads(3, [&] {
    while (!stop) {
      CZeltoManager::GetInstance()->SendEvent(300, 1);
      CZeltoManager::GetInstance()->LazySendEvent(20, 301, 1);
      CZeltoManager::GetInstance()->DeleteLazyEvent(301);
      CZeltoManager::GetInstance()->NotifyHardwiredEvent(22, nullptr, nullptr);
      CZeltoManager::GetInstance()->CallCommonControl("GetTVModel");
      CZeltoManager::GetInstance()->SetEventHandler(CZeltoManager::CALL_ENDED, nullptr);
      CZeltoManager::GetInstance()->GetRunWidgetParam();
      zelhost::ServiceHostLock lock("test");
      CZeltoManager::GetInstance()->IsZeltoReady();
    }
  });
  ending.join();
  Destroy();
  EXPECT_EQ(most, 1);
}

TEST_F(ARunningEngine, MayBeMadeAndEndedByManyThreadsAtOnce) {
  Destroy();
  std::atomic<int> made{0};
  InThreads(4, [&] {
    for (int round = 0; round < 20; ++round) {
      CZeltoManager* mine = CZeltoManager::Create();
      if (mine != nullptr) ++made;
      CZeltoManager::Destroy(mine);  // the first one ends it, the others are refused
    }
  });
  EXPECT_EQ(made, 80);
  EXPECT_EQ(CZeltoManager::GetInstance(), nullptr);
}

TEST_F(ARunningEngine, StartsAfreshAfterItsEndAndCallsNoFunctionThatIsNotRegistered) {
  CZeltoManager::SetEventHandler(CZeltoManager::CALL_ENDED, &handler);
  handler.onEvent = [](const CZeltoEvent*) { return false; };
  CZeltoManager::SetRunWidgetParam("left over");
  CZeltoManager::SetWidgetStarted(true);
  Destroy();
  EXPECT_FALSE(CZeltoManager::IsZeltoReady());
  EXPECT_EQ(CZeltoManager::GetCountryList("de"), nullptr);
  engine = CZeltoManager::Create();
  engine->RegisterDataCallback(nullptr, nullptr);
  EXPECT_EQ(FakeService::host->loads, 1);
  EXPECT_TRUE(CZeltoManager::IsZeltoReady());
  EXPECT_STREQ(CZeltoManager::GetCountryList("de"), "de");
  EXPECT_EQ(CZeltoManager::GetRunWidgetParam(), "");
  EXPECT_FALSE(CZeltoManager::IsWidgetStarted());
  const CAVData record{0, 0, 0, nullptr};
  CZeltoManager::SendAVData(&record, nullptr);
  CZeltoManager::NotifyEngineEvent(300, nullptr, nullptr);
  EXPECT_EQ(CZeltoManager::CallCommonControl("GetTVModel"), "");
  EXPECT_EQ(host.TakeLog(), Log{});
  EXPECT_EQ(host.StartEngine(), engine);
  CZeltoManager::SendEvent(303, 4);
  EXPECT_TRUE(host.WaitFor("303(4, null)"));
}

TEST(AnEngineWithoutItsThread, IsNotBuiltUntilThereIsOne) {
  {
    const test::NoThreads system;
    EXPECT_EQ(CZeltoManager::Create(), nullptr);
    EXPECT_EQ(CZeltoManager::Create(), nullptr);
  }
  CZeltoManager* engine = CZeltoManager::Create();
  EXPECT_NE(engine, nullptr);
  CZeltoManager::Destroy(engine);
}

}  // namespace
