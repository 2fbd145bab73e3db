// How calls end.
#include <algorithm>

#include "apiwrapper/tables/Classes.h"
#include "simulator/runtime/world/CallCourse.h"

namespace simulator {
namespace {

struct EndingRow {
  bool incoming;
  bool here;   // this side ends it
  int action;  // of this side
  int status;
};

// clang-format off
// Of a call that has not been answered; others are finished.
constexpr EndingRow kEndings[] = {
    {false, true,  call::kHangUp,      member::kCancelled},
    {false, false, call::kHangUp,      member::kRefused},
    {true,  true,  call::kHangUp,      member::kRefused},
    {true,  true,  call::kToVoicemail, member::kRefused},
    {true,  true,  call::kForward,     member::kFinished},
    {true,  false, call::kHangUp,      member::kMissed},
};
// clang-format on

int EndingStatus(bool incoming, bool here, int action) {
  for (const EndingRow& row : kEndings) {
    if (row.incoming == incoming && row.here == here && row.action == action) return row.status;
  }
  return 0;
}

}  // namespace

bool CallCourse::End(int action) {
  switch (m_phase) {
    case Phase::New:
      return Finish(0);
    case Phase::Ringing: {
      const int status = EndingStatus(m_incoming, true, action);
      return status != 0 && Finish(status);
    }
    case Phase::Talking:
      return action == call::kHangUp && Finish(member::kFinished);
    case Phase::Voicemail:
      return EndVoicemail(action);
    case Phase::Over:
      break;
  }
  return false;
}

bool CallCourse::HangUp(int) {
  if (m_phase == Phase::Voicemail) return EndVoicemail(call::kHangUp);
  if (m_phase == Phase::Talking) return Finish(member::kFinished);
  return m_phase == Phase::Ringing && Finish(EndingStatus(m_incoming, false, call::kHangUp));
}

bool CallCourse::EndVoicemail(int action) {
  if (action != call::kHangUp && action != call::kCancelVoicemail) return false;
  if (HasMember(member::kDelivering)) return action == call::kCancelVoicemail && Finish(member::kGivenUp);
  if (action == call::kCancelVoicemail || !HasMember(member::kRecording)) return Finish(member::kGivenUp);
  Voicemail(member::kDelivering);
  RunScript(DeliveringFarEnd());
  return true;
}

bool CallCourse::Fail(int number) {
  if (m_phase == Phase::New || IsOver()) return false;
  const auto& partner = *m_members.front();
  const CallFailure failure = FailureOf(number != 0 ? number : FailureNumber(partner.Identity()));
  for (const auto& member : m_members) {
    member->SetText(member::kFailureText, failure.text);
    member->SetNumber(member::kFailureReason, failure.reason);
  }
  return Finish(member::kFailed);
}

bool CallCourse::Finish(int status) {
  if (IsOver()) return false;
  m_phase = Phase::Over;
  for (const Scheduler::Id action : {m_script, m_ticking, m_offering}) m_context.scheduler.Cancel(action);
  for (const auto& member : m_members) {
    if (!member->IsThere()) continue;
    member->EndVideo();
    if (status != 0) member->SetStatus(status);
  }
  UpdateMedia();
  CountMembers();
  if (status == member::kMissed) SetCall(call::kUnseen, 1);
  SetCall(call::kOngoing, 0);
  m_observer.CallIsOver(*this);
  return true;
}

bool CallCourse::EndMember(CallMember& member, int action) {
  if (!member.IsThere()) return false;
  const bool last = std::count_if(m_members.begin(), m_members.end(),
                                  [](const auto& other) { return other->IsThere(); }) == 1;
  if (last) return End(action);
  if (action != call::kHangUp) return false;
  member.EndVideo();
  member.SetStatus(member::kFinished);
  CountMembers();
  return true;
}

bool CallCourse::PlanCallBack(int milliseconds) {
  if (m_members.empty()) return false;
  m_observer.CallBackLater(m_members.front()->Identity(), milliseconds);
  return true;
}

}  // namespace simulator
