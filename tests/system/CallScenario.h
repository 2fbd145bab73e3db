// A viewer who is signed in and called, and what the television is told meanwhile.
#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <vector>

#include "tests/system/SwitchedOnTelevision.h"

namespace test {

constexpr int kCallInProgress = 263;
constexpr int kIncomingCall = 267;
constexpr int kIncomingConference = 289;
constexpr int kConferenceEnded = 291;
constexpr int kCallEnded = 303;
constexpr int kMembersCleared = 280;
constexpr int kAvailabilityChanged = 346;
constexpr int kVideoOffered = 351;
constexpr int kVideoRunning = 354;
constexpr int kMyVideoAvailable = 419;

// How a member of a call has ended, as the far end sees it.
constexpr int kFinishedThere = 11;
constexpr int kRefusedThere = 13;

enum class CallKind { Voice, Video, Conference };

class ACalledViewer : public ATelevision {
 protected:
  ~ACalledViewer() override { SwitchOff(); }  // which tells the television a last time
  void SetUp() override;

  // The host controls since the last call, in order, each as "StartPIGMode(0, 0, 1920, 1080) ". Questions
  // that come from elsewhere at any time are left out. Waits until the engine has worked off its events.
  std::string Told();
  // How many events of the type the host has been given since the sign-in.
  int Heard(int event);

  // How the widget reports itself; its answer.
  std::string Enter(const char* widget) { return Execute("SetZeltoWidgetState", widget); }
  // Somebody calls; the number of the call.
  int IsCalled(const std::string& from = "maria", CallKind kind = CallKind::Voice);
  // The same, until it rings.
  void Rings(CallKind kind = CallKind::Voice);
  void Answers(CallKind kind = CallKind::Voice);
  // Until everything that begins with the answer has begun.
  void Talks(CallKind kind = CallKind::Voice);
  void HangsUp();
  void IsHungUpOn();
  // Until everything that comes with the end of a call is over.
  void CallIsOver(CallKind kind = CallKind::Voice);
  // Whether sound from the far end goes on reaching the speakers.
  bool HearsSomething();
  // The status of a call's first member.
  int StatusThere(int call);

 private:
  void Settle();

  std::atomic<int> m_sounds{0};  // packets that have reached the speakers
  std::mutex m_mutex;
  std::string m_controls;
  std::vector<int> m_events;
};

}  // namespace test
