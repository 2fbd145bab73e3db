// The event pipeline beside a lock-free queue: what it costs to send an event, and to take it off again and
// hand it to the host.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <boost/lockfree/queue.hpp>
#include <charconv>
#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include "Common/EventQueue.h"
#include "Common/EventThread.h"
#include "Common/HostControl.h"

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr int kEventType = 258;  // without a handler and without a reaction
constexpr std::size_t kLargest = 100'000;
constexpr std::size_t kBurst = 1000;  // sends under one reading of the clock

int g_delivered = 0;

bool OnHostsEvent(const CEngineEvent* event, void*) {
  g_delivered += event->type;
  return true;
}

struct PlainEvent {
  int type, param, delay;
};

// Both queues behind the same three words; both hand the host the same record.
struct LockFreeQueue {
  LockFreeQueue() : queue(kLargest + kBurst) {}
  void Send(int param) { queue.push({kEventType, param, 0}); }
  void Take(std::size_t events) {
    PlainEvent event;
    while (events-- > 0 && queue.pop(event)) benchmark::DoNotOptimize(event);
  }
  void Drain() {
    PlainEvent event;
    while (queue.pop(event)) {
      char digits[16];
      *std::to_chars(digits, digits + sizeof digits - 1, event.param).ptr = '\0';
      const CEngineEvent record{event.type, digits, nullptr};
      callback(&record, nullptr);
    }
  }
  boost::lockfree::queue<PlainEvent> queue;
  MoIPEventCallback volatile callback = OnHostsEvent;
};

struct EnginesQueue {
  EnginesQueue() {
    zelto::EventQueue::Get().Open();
    zelto::HostControl::Get().SetEventCallback(OnHostsEvent, nullptr);
  }
  ~EnginesQueue() {
    zelto::EventQueue::Get().Close();
    zelto::HostControl::Get().Clear();
  }
  void Send(int param) { zelto::EventQueue::Get().Send(kEventType, param); }
  void Take(std::size_t events) {
    CZeltoEvent taken[64];
    while (events > 0) events -= zelto::EventQueue::Get().Take(taken, std::min<std::size_t>(events, 64));
  }
  void Drain() { thread.OnEvent(); }
  zelto::EventThread thread;  // never started: the passes run here
};

// The clock's own time, taken off each measurement.
Seconds ClockCost() {
  static const Seconds cost = [] {
    constexpr int kReadings = 100'000;
    const auto start = Clock::now();
    for (int i = 0; i < kReadings; ++i) benchmark::DoNotOptimize(Clock::now());
    return Seconds(Clock::now() - start) / kReadings;
  }();
  return cost;
}

// One iteration of a benchmark: the median of many rounds, so that rounds in which the machine did something
// else do not count. `round` answers how long it took; the time reported is that of one of its `events`.
template <class Round>
void TakeMedian(benchmark::State& state, std::size_t rounds, std::size_t events, Round round) {
  std::vector<double> times(rounds);
  for (double& time : times) time = (round() - ClockCost()).count();
  const auto median = times.begin() + static_cast<std::ptrdiff_t>(rounds / 2);
  std::nth_element(times.begin(), median, times.end());
  state.SetIterationTime(std::max(0.0, *median / static_cast<double>(events)));
}

// Sends while `queued` events wait.
template <class Queue>
void SendEvent(benchmark::State& state, std::size_t queued, std::size_t rounds) {
  Queue queue;
  for (std::size_t i = 0; i < queued; ++i) queue.Send(1);
  for (auto _ : state) {
    TakeMedian(state, rounds, kBurst, [&] {
      const auto start = Clock::now();
      for (std::size_t i = 0; i < kBurst; ++i) queue.Send(1);
      const Seconds passed = Clock::now() - start;
      queue.Take(kBurst);
      return passed;
    });
  }
  queue.Take(queued);
}

// Drains a queue of `queued` events.
template <class Queue>
void DrainEvent(benchmark::State& state, std::size_t queued, std::size_t rounds) {
  Queue queue;
  for (auto _ : state) {
    TakeMedian(state, rounds, queued, [&] {
      for (std::size_t i = 0; i < queued; ++i) queue.Send(1);
      const auto start = Clock::now();
      queue.Drain();
      return Seconds(Clock::now() - start);
    });
  }
  benchmark::DoNotOptimize(g_delivered);
}

// A pass over a queue in which nothing but `queued` events wait that are delayed for long.
void IdlePass(benchmark::State& state, std::size_t queued) {
  EnginesQueue queue;
  for (std::size_t i = 0; i < queued; ++i) zelto::EventQueue::Get().Send(kEventType, 1, 1 << 30);
  for (auto _ : state) queue.Drain();
}

}  // namespace

int main(int argc, char** argv) {
  // An engine is never alone: with a second thread the C library's mutexes cost what they cost there.
  std::promise<void> done;
  std::thread second([finished = done.get_future()] { finished.wait(); });

  // Times are those of one event, so the number of iterations is given instead of grown until they add up.
  constexpr std::size_t kMany = 1001;
  constexpr std::size_t kFew = 15;
  const auto add = [](const char* name, auto body, std::size_t queued, std::size_t rounds) {
    benchmark::RegisterBenchmark(name, body, queued, rounds)->UseManualTime()->Iterations(20);
  };
  add("SendEvent/zelto", SendEvent<EnginesQueue>, 10, kMany);
  add("SendEvent/zelto100000", SendEvent<EnginesQueue>, kLargest, kMany);
  add("SendEvent/boost_lockfree", SendEvent<LockFreeQueue>, 10, kMany);
  add("DrainEvent/zelto10", DrainEvent<EnginesQueue>, 10, kMany);
  add("DrainEvent/zelto100000", DrainEvent<EnginesQueue>, kLargest, kFew);
  add("DrainEvent/boost_lockfree", DrainEvent<LockFreeQueue>, 10, kMany);
  add("DrainEvent/boost_lockfree100000", DrainEvent<LockFreeQueue>, kLargest, kFew);
  benchmark::RegisterBenchmark("IdlePass/empty", IdlePass, 0);
  benchmark::RegisterBenchmark("IdlePass/delayed100000", IdlePass, kLargest);

  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  done.set_value();
  second.join();
}
