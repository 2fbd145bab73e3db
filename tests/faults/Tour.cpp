#include "tests/faults/Tour.h"

#include <signal.h>

#include <fstream>
#include <future>
#include <nlohmann/json.hpp>
#include <thread>

namespace test {

namespace {

using std::chrono::milliseconds;

struct Step {
  const char* command;
  const char* parameters[4];
  const char* answer;  // null: any
  int event;           // 0: none
};

// clang-format off
constexpr Step kTour[] = {
    {"GetZeltoState",       {},                                        "1",                 0},
    {"SetMicVolume",        {"33"},                                    "1",                 0},
    {"GetMicVolume",        {},                                        "33",                0},
    {"SaveDBPan",           {"a \\ \"quoted\", text"},                 "1",                 0},
    {"GetDBPan",            {},                                        "a \\ \"quoted\", text", 0},
    {"IsValidEmail",        {"viewer@example.org"},                    "1",                 0},
    {"ValidatePasswd",      {kDemoName, "abc12345"},                   "1",                 0},
    {"Login",               {kDemoName, kDemoPassword, "1"},           "1",                 kLoggedIn},
    {"GetLoginState",       {},                                        nullptr,             kContactListInSync},
    {"GetAccountInfo",      {"1"},                                     kDemoName,           0},
    {"SetProp",             {"16", "under way"},                       "1",                 kMoodChanged},
    {"SetCallForwardNumbers", {"+3581234"},                            "1",                 kCommitted},
    {"SetCallForwardTimer", {"45"},                                    "1",                 0},
    {"GetCallForwardTimer", {},                                        "45",                0},
    {"SetAvailability",     {"5"},                                     "1",                 0},
    {"Logout",              {"0"},                                     "1",                 kLoggedOut},
};
// clang-format on

// For what a living runtime never sends, and for a command that never returns.
constexpr milliseconds kLongestEvent{2500};
constexpr milliseconds kLongestTour{6000};
constexpr milliseconds kSlice{5};

}  // namespace

bool ATour::IsAlive() const {
  std::ifstream status("/proc/" + std::to_string(m_runtime) + "/stat");
  std::string line;
  std::getline(status, line);
  const std::size_t behindName = line.rfind(')');
  return behindName != std::string::npos && line.compare(behindName + 2, 1, "Z") != 0;
}

bool ATour::Reaches(int event) const {
  auto* host = const_cast<television::Host*>(&m_host);
  const auto isIt = [event](const television::Report& report) {
    return report.kind == television::Report::Kind::Event && report.type == event;
  };
  const auto limit = std::chrono::steady_clock::now() + kLongestEvent;
  while (std::chrono::steady_clock::now() < limit) {
    if (host->WaitFor(isIt, kSlice)) return true;
    if (!IsAlive()) return host->WaitFor(isIt, kSlice * 4);
  }
  return false;
}

bool ATour::TakeSteps(IMoIPEngine& engine) {
  bool whole = Reaches(kRuntimeReady);
  for (const Step& step : kTour) {
    if (m_switchingOff) return false;
    const std::string answer = engine.Execute(step.command, step.parameters[0], step.parameters[1],
                                              step.parameters[2], step.parameters[3]);
    if (step.answer != nullptr && answer != step.answer) whole = false;
    if (step.event != 0 && whole && !Reaches(step.event)) whole = false;
  }
  return whole;
}

bool ATour::Run() {
  SwitchOn();
  m_runtime = Runtime();
  std::future<bool> steps = std::async(std::launch::async, [this, &engine = Engine()] { return TakeSteps(engine); });
  const bool returned = steps.wait_for(kLongestTour) == std::future_status::ready;
  if (returned && IsAlive()) {
    try {
      m_frames = nlohmann::json::parse(Door(R"({"order":"status"})")).value("frames", 0);
    } catch (const std::exception&) {
      // A runtime that dies just now has told enough.
    }
  }
  m_switchingOff = true;
  SwitchOff();
  m_switchingOff = false;
  return steps.get() && returned;
}

void ATour::VerifySurvival() {
  unsetenv("ZELHOST_SCENARIO");
  EXPECT_TRUE(Run());
}

}  // namespace test
