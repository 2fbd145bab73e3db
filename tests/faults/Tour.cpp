#include "tests/faults/Tour.h"

#include <algorithm>
#include <future>
#include <nlohmann/json.hpp>

namespace test {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// For an event or a whole tour that must come: only a machine that stands still is as slow.
constexpr milliseconds kLongestEvent{15000};
constexpr milliseconds kLongestTour{60000};
// Under a fault what has not come after so many times the longest wait of a whole tour never comes.
constexpr int kPatience = 4;
constexpr milliseconds kLeastPatience{300};
constexpr milliseconds kSlice{5};
// After a reply has been withheld: until everybody who is going to wait does so.
constexpr milliseconds kUntilAllWait{60};

milliseconds Since(steady_clock::time_point start) {
  return std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
}

const char* NameOf(const TourStep& step) {
  if (step.command != nullptr) return step.command;
  return step.order != nullptr ? step.order : "A wait";
}

// The engine may be ended while the command hangs. That the call had found its way into the engine before is
// then ordered by time alone, which the thread sanitizer does not count.
__attribute__((no_sanitize("thread"))) const char* Call(IMoIPEngine& engine, const TourStep& step) {
  if (step.command == nullptr) return "";
  return engine.Execute(step.command, step.parameters[0], step.parameters[1], step.parameters[2],
                        step.parameters[3]);
}

}  // namespace

ATour::ATour(const std::vector<TourStep>& steps, const char* runtimePace) : m_steps(steps) {
  setenv("ZELHOST_PACE", runtimePace, 1);
}

ATour::~ATour() { unsetenv("ZELHOST_PACE"); }

bool ATour::Reaches(int event) {
  const auto isIt = [event](const television::Report& report) {
    return report.kind == television::Report::Kind::Event && report.type == event;
  };
  const auto start = steady_clock::now();
  while (steady_clock::now() < start + m_longestEvent && !m_switchingOff) {
    if (m_host.WaitFor(isIt, kSlice)) {
      if (!m_wasWhole) m_longestWait = std::max(m_longestWait, Since(start));
      return true;
    }
    if (!Lives(m_runtime)) return m_host.WaitFor(isIt, kSlice * 4);
  }
  return false;
}

bool ATour::Miss(const std::string& step, const std::string& how) {
  m_firstMiss = step + ' ' + how;
  return false;
}

bool ATour::TakeSteps(IMoIPEngine& engine) {
  bool whole = Reaches(kRuntimeReady) || Miss("Load", "without its event");
  for (const TourStep& step : m_steps) {
    if (m_switchingOff) return false;
    if (step.order != nullptr) Order(step.order);
    Before(engine, step);
    const char* text = Call(engine, step);
    std::string answer;
    {
      // The answer is the engine's, which may have gone by now.
      const std::lock_guard<std::mutex> lock(m_answerMutex);
      if (m_switchingOff) return false;
      answer = text;
    }
    if (whole && step.answer != nullptr && answer != step.answer) {
      whole = Miss(NameOf(step), "answered " + answer);
    }
    Meanwhile(engine, step);
    if (whole && step.event != 0 && !Reaches(step.event)) {
      whole = Miss(NameOf(step), "without event " + std::to_string(step.event));
    }
  }
  return whole;
}

void ATour::Order(const char* order) {
  try {
    Door(order);
  } catch (const std::exception&) {
  }
}

// Leaves what is known when the runtime cannot answer: it has not opened its door yet, or has died.
void ATour::AskRuntime() {
  try {
    const nlohmann::json status = nlohmann::json::parse(Door(R"({"order":"status"})"));
    m_frames = status.at("frames");
    m_faultWaits = status.at("faults") > 0;
  } catch (const std::exception&) {
  }
}

bool ATour::Run(Damage damage) {
  const auto start = steady_clock::now();
  const milliseconds patience = std::max(m_longestWait * kPatience, kLeastPatience);
  m_longestEvent = damage == Damage::None ? kLongestEvent : patience;
  m_faultWaits = damage == Damage::Hanging;
  m_firstMiss.clear();

  SwitchOn();
  m_runtime = m_clock.Started();
  std::future<bool> steps =
      std::async(std::launch::async, [this, &engine = Engine()] { return TakeSteps(engine); });
  const auto ready = [&](milliseconds time) { return steps.wait_for(time) == std::future_status::ready; };
  if (damage == Damage::Hanging) {
    while (!(m_returned = ready(kSlice)) && m_faultWaits && steady_clock::now() < start + kLongestTour) {
      AskRuntime();
    }
    m_returned = m_returned || ready(kUntilAllWait);
  } else {
    m_returned = ready(kLongestTour);
  }
  m_faultWaits = false;
  AskRuntime();
  {
    const std::lock_guard<std::mutex> lock(m_answerMutex);
    m_switchingOff = true;
  }
  SwitchOff();
  m_switchingOff = false;
  const bool whole = steps.get() && m_returned;
  m_wasWhole = m_wasWhole || whole;
  return whole;
}

void ATour::VerifySurvival() {
  unsetenv("ZELHOST_SCENARIO");
  EXPECT_TRUE(Run()) << FirstMiss();
}

}  // namespace test
