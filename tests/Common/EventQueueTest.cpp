#include "Common/EventQueue.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace {

class AnOpenQueue : public testing::Test {
 protected:
  AnOpenQueue() { queue.Open(); }

  void Pass(const std::function<void(const CZeltoEvent&)>& process, std::size_t room) {
    queue.Tick();
    std::vector<CZeltoEvent> events(room);
    while (const std::size_t taken = queue.Take(events.data(), room)) {
      for (std::size_t event = 0; event < taken; ++event) process(events[event]);
    }
  }

  // The types that a pass delivers. The handler of event 1 sends an event 10 and a lazy event 11.
  std::vector<int> PassOf(std::size_t room = 64) {
    std::vector<int> types;
    const auto process = [&](const CZeltoEvent& event) {
      types.push_back(event.type);
      if (event.type != 1) return;
      queue.Send(10, 0);
      queue.Send(11, 0, 15);
    };
    Pass(process, room);
    return types;
  }

  zelto::EventQueue queue;
};

using Types = std::vector<int>;

TEST_F(AnOpenQueue, DeliversWhatAHandlerSendsBehindWhatWaits) {
  for (const std::size_t room : {1u, 2u, 64u}) {
    for (int type : {1, 2, 3}) queue.Send(type, 0);
    EXPECT_EQ(PassOf(room), (Types{1, 2, 3, 10})) << room;
    EXPECT_EQ(PassOf(room), Types{}) << room;
    EXPECT_EQ(PassOf(room), Types{11}) << room;
  }
}

TEST_F(AnOpenQueue, DeliversALazyEventAfterItsDelayInPassesAndLaterOnesBefore) {
  queue.Send(2, 0, 3000);
  queue.Send(3, 0);
  EXPECT_EQ(PassOf(), Types{3});
  for (int pass = 2; pass < 300; ++pass) ASSERT_EQ(PassOf(), Types{}) << pass;
  EXPECT_EQ(PassOf(), Types{2});
}

TEST_F(AnOpenQueue, EndsThePassAtTwoLazyEventsInARow) {
  for (int type : {2, 3, 4}) queue.Send(type, 0, 50);
  queue.Send(5, 0);
  EXPECT_EQ(PassOf(), Types{});  // now 3, 4, 5, 2
  EXPECT_EQ(PassOf(), Types{});  // now 4, 5, 2, 3
  EXPECT_EQ(PassOf(), Types{5});
}

TEST_F(AnOpenQueue, TakesBackOnlyTheFirstEventThatIsStillDelayed) {
  queue.Send(5, 0);
  queue.Send(6, 0);
  queue.Send(5, 0, 20);
  queue.Send(5, 0, 20);
  queue.DeleteLazy(5);
  queue.DeleteLazy(6);
  EXPECT_EQ(PassOf(), (Types{5, 6}));
  EXPECT_EQ(PassOf(), Types{5});
  queue.Send(5, 0, 10);
  queue.Tick();  // from here on it is due
  queue.DeleteLazy(5);
  EXPECT_EQ(PassOf(), Types{5});
}

TEST_F(AnOpenQueue, KeepsTheLongestDelayUntilItIsClosed) {
  queue.Send(2, 0, 2147483647);
  queue.Send(3, 0, -2147483647 - 1);
  EXPECT_EQ(PassOf(), Types{3});
  EXPECT_EQ(PassOf(), Types{});
  queue.Send(4, 0);
  queue.Close();
  queue.Send(5, 0);
  queue.Open();
  queue.Send(6, 0);
  EXPECT_EQ(PassOf(), Types{6});
}

TEST_F(AnOpenQueue, KeepsEverySendersOrderAndLosesNothing) {
  constexpr int kSenders = 4, kEach = 5000;
  std::vector<std::thread> senders;
  for (int sender = 0; sender < kSenders; ++sender) {
    senders.emplace_back([this, sender] {
      for (int i = 0; i < kEach; ++i) queue.Send(sender, i);
    });
  }
  int next[kSenders] = {};
  int received = 0;
  bool inOrder = true;
  const auto check = [&](const CZeltoEvent& event) {
    inOrder = inOrder && event.param == next[event.type]++;
    ++received;
  };
  while (received < kSenders * kEach) Pass(check, 64);
  for (std::thread& sender : senders) sender.join();
  EXPECT_TRUE(inOrder);
}

}  // namespace
