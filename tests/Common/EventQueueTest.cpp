#include "Common/EventQueue.h"

#include <gtest/gtest.h>

#include <functional>
#include <list>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace {

using zelto::EventQueue;

using Processed = std::vector<std::string>;

std::string Written(const CZeltoEvent& event) {
  return std::to_string(event.type) + ":" + std::to_string(event.param) + ":" + std::to_string(event.delay);
}

// The rules of the queue word for word, without any thought for speed.
class PlainQueue {
 public:
  void Send(int type, int param, int delay) { m_events.push_back({type, param, delay}); }

  void DeleteLazy(int type) {
    for (auto event = m_events.begin(); event != m_events.end(); ++event) {
      if (event->type != type || event->delay <= 0) continue;
      m_events.erase(event);
      return;
    }
  }

  void Pass(const std::function<void(const CZeltoEvent&)>& process) {
    for (CZeltoEvent& event : m_events) {
      if (event.delay > 0) event.delay -= 10;
    }
    while (!m_events.empty()) {
      CZeltoEvent event = TakeFirst();
      if (event.delay > 0) {
        m_events.push_back(event);
        if (m_events.size() < 2 || m_events.front().delay > 0) return;
        event = TakeFirst();
      }
      process(event);
    }
  }

 private:
  CZeltoEvent TakeFirst() {
    const CZeltoEvent event = m_events.front();
    m_events.pop_front();
    return event;
  }

  std::list<CZeltoEvent> m_events;
};

void Pass(EventQueue& queue, const std::function<void(const CZeltoEvent&)>& process, std::size_t room = 64) {
  queue.Tick();
  std::vector<CZeltoEvent> events(room);
  while (const std::size_t taken = queue.Take(events.data(), room)) {
    for (std::size_t event = 0; event < taken; ++event) process(events[event]);
  }
}

Processed PassOf(EventQueue& queue) {
  Processed processed;
  Pass(queue, [&](const CZeltoEvent& event) { processed.push_back(Written(event)); });
  return processed;
}

class AnOpenQueue : public testing::Test {
 protected:
  AnOpenQueue() { queue.Open(); }
  EventQueue queue;
};

// A handler that, by the event's parameter alone, sends others and takes lazy ones back: both queues see
// the same one. Parameters grow by a factor, so that every chain of events ends.
template <class Queue>
void React(Queue& queue, const CZeltoEvent& event) {
  if (event.param > 2000) return;
  std::mt19937 choice(static_cast<unsigned>(event.param));
  const auto sent = choice() % 3;
  for (unsigned long i = 0; i < sent; ++i) {
    const int delay = choice() % 3 == 0 ? static_cast<int>(choice() % 60) : 0;
    queue.Send(static_cast<int>(choice() % 4), event.param * 7 + static_cast<int>(i) + 1, delay);
  }
  if (choice() % 4 == 0) queue.DeleteLazy(static_cast<int>(choice() % 4));
}

TEST_F(AnOpenQueue, DeliversRandomScriptsInThePlainRulesOrder) {
  std::size_t compared = 0;
  for (unsigned seed = 0; seed < 400; ++seed) {
    PlainQueue plain;
    queue.Close();
    queue.Open();
    std::mt19937 script(seed);
    for (int step = 0; step < 120; ++step) {
      const int type = static_cast<int>(script() % 4);
      switch (script() % 8) {
        case 0: {
          const std::size_t room = 1 + script() % 8;
          Processed expected, seen;
          plain.Pass(
              [&](const CZeltoEvent& event) { expected.push_back(Written(event)), React(plain, event); });
          Pass(
              queue, [&](const CZeltoEvent& event) { seen.push_back(Written(event)), React(queue, event); },
              room);
          ASSERT_EQ(seen, expected) << "seed " << seed << " step " << step;
          compared += expected.size();
          break;
        }
        case 1:
          plain.DeleteLazy(type), queue.DeleteLazy(type);
          break;
        case 2:
        case 3:
        case 4: {
          const int delay = static_cast<int>(script() % 90) - 5;
          plain.Send(type, step + 1, delay), queue.Send(type, step + 1, delay);
          break;
        }
        default:
          plain.Send(type, step + 1, 0), queue.Send(type, step + 1, 0);
      }
    }
  }
  EXPECT_GT(compared, 10000u);
}

TEST_F(AnOpenQueue, DeliversALazyEventAfterItsDelayInPassesAndLaterOnesBefore) {
  queue.Send(429, 1, 3000);
  queue.Send(300, 2);
  EXPECT_EQ(PassOf(queue), Processed{"300:2:0"});
  for (int pass = 2; pass < 300; ++pass) ASSERT_EQ(PassOf(queue), Processed{}) << pass;
  EXPECT_EQ(PassOf(queue), Processed{"429:1:0"});
}

TEST_F(AnOpenQueue, EndsThePassAtTwoLazyEventsInARow) {
  queue.Send(1, 1, 50);
  queue.Send(2, 2, 50);
  queue.Send(3, 3);
  EXPECT_EQ(PassOf(queue), Processed{});
  EXPECT_EQ(PassOf(queue), Processed{"3:3:0"});
}

TEST_F(AnOpenQueue, TakesBackOnlyTheFirstEventThatIsStillDelayed) {
  queue.Send(5, 1);
  queue.Send(5, 2, 20);
  queue.Send(5, 3, 20);
  queue.DeleteLazy(5);
  queue.DeleteLazy(6);
  EXPECT_EQ(PassOf(queue), Processed{"5:1:0"});
  EXPECT_EQ(PassOf(queue), Processed{"5:3:0"});
  queue.Send(5, 4, 10);
  queue.Tick();  // from here on it is due
  queue.DeleteLazy(5);
  EXPECT_EQ(PassOf(queue), Processed{"5:4:0"});
}

TEST_F(AnOpenQueue, KeepsTheLongestDelay) {
  queue.Send(1, 1, 2147483647);
  queue.Send(2, 2, -2147483647 - 1);
  EXPECT_EQ(PassOf(queue), Processed{"2:2:-2147483648"});
  EXPECT_EQ(PassOf(queue), Processed{});
}

TEST_F(AnOpenQueue, DropsEverythingWhenItIsClosed) {
  queue.Send(1, 1);
  queue.Close();
  queue.Send(2, 2);
  EXPECT_EQ(PassOf(queue), Processed{});
  queue.Open();
  EXPECT_EQ(PassOf(queue), Processed{});
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
  while (received < kSenders * kEach) {
    Pass(queue, [&](const CZeltoEvent& event) {
      inOrder = inOrder && event.param == next[event.type]++;
      ++received;
    });
  }
  for (std::thread& sender : senders) sender.join();
  EXPECT_TRUE(inOrder);
}

}  // namespace
