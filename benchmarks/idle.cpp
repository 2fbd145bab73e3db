// What an engine costs that is loaded and has nothing to do, beside two bare threads that sleep 10 and 30 ms
// in turn. Reported: processor time of this process (the runtime is another one) for each second, and how
// often a second it was woken.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "Common/ZeltoManager.h"
#include "tests/support/DeviceRoot.h"

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto kWindow = 1s;
constexpr std::size_t kWindows = 9;
constexpr auto kReadyLimit = 20s;

struct Usage {
  double processor;  // seconds
  double wakeUps;

  static Usage Now() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
      return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return {seconds(usage.ru_utime) + seconds(usage.ru_stime), static_cast<double>(usage.ru_nvcsw)};
  }
};

// The median of the windows, so that a moment in which the machine was busy does not count.
void MeasureWindows(benchmark::State& state) {
  const double seconds = std::chrono::duration<double>(kWindow).count();
  std::array<Usage, kWindows> windows;
  for (Usage& window : windows) {
    const Usage before = Usage::Now();
    std::this_thread::sleep_for(kWindow);
    const Usage after = Usage::Now();
    window = {(after.processor - before.processor) / seconds, (after.wakeUps - before.wakeUps) / seconds};
  }
  std::sort(windows.begin(), windows.end(),
            [](const Usage& left, const Usage& right) { return left.processor < right.processor; });
  const Usage& median = windows[kWindows / 2];
  state.SetIterationTime(median.processor);
  state.counters["wake_ups_per_s"] = median.wakeUps;
}

void Bare(benchmark::State& state) {
  std::atomic<bool> stop{false};
  std::vector<std::thread> threads;
  for (const auto pause : {10ms, 30ms}) {
    threads.emplace_back([&stop, pause] {
      while (!stop) std::this_thread::sleep_for(pause);
    });
  }
  for (auto _ : state) MeasureWindows(state);
  stop = true;
  for (std::thread& thread : threads) thread.join();
}

// On a fresh device, with the runtime that lies beside this program.
void Engine(benchmark::State& state) {
  const test::DeviceRoot device;
  const fs::path programs = fs::read_symlink("/proc/self/exe").parent_path();
  fs::create_symlink(programs / "zelhost", device / "/mtd_rwcommon/moip/engines/Zelto/zelhost");
  CZeltoManager* engine = CZeltoManager::Create();
  engine->RegisterDataCallback([](const CAVData*, void*, void*) { return true; }, nullptr);
  const auto limit = std::chrono::steady_clock::now() + kReadyLimit;
  while (!CZeltoManager::IsZeltoReady() && std::chrono::steady_clock::now() < limit) {
    std::this_thread::sleep_for(50ms);
  }
  if (!CZeltoManager::IsZeltoReady()) state.SkipWithError("the runtime did not come up");
  for (auto _ : state) MeasureWindows(state);
  CZeltoManager::Destroy(engine);
}

BENCHMARK(Engine)->Name("Idle/zelto")->UseManualTime()->Iterations(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(Bare)->Name("Idle/bare")->UseManualTime()->Iterations(1)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
