#include "tests/system/CallScenario.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <thread>
#include <utility>

namespace test {

namespace {

// Asked by the media threads and for notices, whatever else goes on.
constexpr const char* kAskedAtAnyTime[] = {"GetCurrentLangID", "IsCameraReady", "IsCameraBeamFormerEnabled",
                                           "GetCameraNumOfMic", "GetCameraMicDistance"};

constexpr int kSoundRecord = 0;

bool IsAskedAtAnyTime(const std::string& command) {
  return std::find(std::begin(kAskedAtAnyTime), std::end(kAskedAtAnyTime), command) !=
         std::end(kAskedAtAnyTime);
}

std::string Written(const television::Report& report) {
  std::string parameters;
  for (std::size_t i = 0; i < report.parameters.size(); ++i) {
    parameters += (i == 0 ? "" : ", ") + report.parameters[i];
  }
  return report.command + '(' + parameters + ") ";
}

}  // namespace

void ACalledViewer::SetUp() {
  m_host.SetMediaSink([this](const CAVData& record, unsigned*) {
    if (record.type == kSoundRecord) ++m_sounds;
  });
  SwitchOnAndWait();
  SignIn();
  m_host.SetObserver([this](const television::Report& report) {
    const std::lock_guard lock(m_mutex);
    if (report.kind == television::Report::Kind::Event) {
      m_events.push_back(report.type);
    } else if (!IsAskedAtAnyTime(report.command)) {
      m_controls += Written(report);
    }
  });
}

// An event that stands behind all others in the queue.
void ACalledViewer::Settle() {
  constexpr int kLastTimer = 412;
  Execute("OSDTimerExpired", "9");
  EXPECT_TRUE(Arrives(kLastTimer));
}

std::string ACalledViewer::Told() {
  Settle();
  const std::lock_guard lock(m_mutex);
  return std::exchange(m_controls, {});
}

int ACalledViewer::Heard(int event) {
  Settle();
  const std::lock_guard lock(m_mutex);
  return static_cast<int>(std::count(m_events.begin(), m_events.end(), event));
}

int ACalledViewer::IsCalled(const std::string& from, CallKind kind) {
  const nlohmann::json order = {{"order", "call"},
                                {"from", from},
                                {"video", kind == CallKind::Video ? 1 : 0},
                                {"conference", kind == CallKind::Conference ? 1 : 0}};
  return nlohmann::json::parse(Door(order.dump())).value("call", 0);
}

void ACalledViewer::Rings(CallKind kind) {
  IsCalled("maria", kind);
  ASSERT_TRUE(Arrives(kind == CallKind::Conference ? kIncomingConference : kIncomingCall));
  ASSERT_TRUE(kind != CallKind::Video || Arrives(kVideoOffered));
}

void ACalledViewer::Answers(CallKind kind) {
  EXPECT_EQ(Execute(kind == CallKind::Video ? "AnswerWithVideo" : "AnswerWithVoice"), "1");
}

void ACalledViewer::Talks(CallKind kind) {
  ASSERT_TRUE(Arrives(kCallInProgress));
  ASSERT_TRUE(Arrives(kMyVideoAvailable));
  ASSERT_TRUE(kind != CallKind::Video || Arrives(kVideoRunning));
}

void ACalledViewer::HangsUp() { EXPECT_EQ(Execute("CallEnd", "0"), "1"); }

void ACalledViewer::IsHungUpOn() {
  const auto answer = nlohmann::json::parse(Door(R"({"order":"hangup"})"));
  EXPECT_TRUE(answer.value("ok", false)) << answer;
}

void ACalledViewer::CallIsOver(CallKind kind) {
  ASSERT_TRUE(Arrives(kind == CallKind::Conference ? kConferenceEnded : kCallEnded));
  ASSERT_TRUE(Arrives(kMembersCleared));
}

// Ten packets of a hundred a second.
bool ACalledViewer::HearsSomething() {
  constexpr int kPackets = 10;
  m_sounds = 0;
  for (int steps = 0; m_sounds < kPackets && steps < 50; ++steps) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return m_sounds >= kPackets;
}

int ACalledViewer::StatusThere(int call) {
  const auto answer =
      nlohmann::json::parse(Door(R"({"order":"call","call":")" + std::to_string(call) + "\"}"));
  return answer.contains("members") ? answer["members"][0].value("status", 0) : 0;
}

}  // namespace test
