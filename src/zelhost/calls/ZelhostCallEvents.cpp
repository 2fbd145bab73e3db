// What the call manager does about engine events: the tables of both passes, and the first one, before the
// host hears of the event.
#include "Common/CallManager.h"
#include "Common/Log.h"
#include "Common/ZeltoEvent.h"
#include "Common/ZeltoManager.h"
#include "zelhost/calls/ZelhostCallManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"

using zelhost::ServiceHostLock;
using E = CZeltoManager;

// Says whether the host hears of an event.
struct CZelhostCallManager::Decision {
  int type;
  bool (CZelhostCallManager::*decide)();
};

// The reactions to one event run from top to bottom.
struct CZelhostCallManager::Reaction {
  int type;
  void (CZelhostCallManager::*react)(const CZeltoEvent& event);
};

namespace {

// clang-format off
constexpr E::EVENT_TYPE kHandledEvents[] = {
    E::CALLMEMBER_CALL_FAILED,    E::CALLMEMBER_INPROGRESS,        E::CALLMEMBER_STATUS_9,
    E::CALLMEMBER_STATUS_10,      E::CONFERENCE_CALL_ENDED,        E::CALL_ENDED,
    E::CALL_ENDED_OTHER,          E::CALL_ACTIVE_MEMBERS_ONE,      E::CALL_DURATION,
    E::VIDEO_STATUS_1,            E::VIDEO_STATUS_2,               E::VIDEO_STATUS_3,
    E::VIDEO_STATUS_4,            E::VIDEO_STATUS_5,               E::VIDEO_STATUS_6,
    E::VIDEO_STATUS_7,            E::INCOMING_CALL,                E::INCOMING_CONFERENCE_CALL,
    E::CALLMEMBER_STATUS_6,       E::CALLMEMBER_MYVIDEO_AVAILABLE, E::CALLMEMBER_VIDEO_PROPERTY,
    E::CALLMEMBER_PROPERTY15,     E::CALLMEMBER_STATUS_12,         E::CALLMEMBER_REFUSE_RECEIVE_VIDEO,
    E::VOICEMAIL_STATUS_4,        E::CALLMEMBER_PROPERTY37,        E::VOICEMAIL_STATUS_5,
    E::VOICEMAIL_STATUS_6,        E::VOICEMAIL_STATUS_3,           E::VOICEMAIL_STATUS_13,
    E::VOICEMAIL_STATUS_7,        E::CALLMEMBER_STATUS_17,         E::CALLMEMBER_STATUS_18,
    E::CALLMEMBER_STATUS_20,      E::CALLMEMBER_STATUS_21,         E::CALLMEMBER_STATUS_22,
};
// clang-format on
static_assert(sizeof kHandledEvents / sizeof kHandledEvents[0] == 36, "the call facade reacts to 36 events");

constexpr char kMemberTypeAfterRefusal[] = "4";

}  // namespace

void CZelhostCallManager::Init() {
  for (const E::EVENT_TYPE type : kHandledEvents) E::SetEventHandler(type, CCallManager::GetInstance());
}

bool CZelhostCallManager::OnEvent(const CZeltoEvent* event) {
  using Self = CZelhostCallManager;
  // clang-format off
  static constexpr Decision kDecisions[] = {
      {E::CALLMEMBER_INPROGRESS,    &Self::StopRingForCall},
      {E::INCOMING_CALL,            &Self::ProcessIncomingCallEvent},
      {E::INCOMING_CONFERENCE_CALL, &Self::ProcessIncomingCallEvent},
  };
  static constexpr Reaction kReactions[] = {
      {E::CALLMEMBER_STATUS_9,     &Self::NoteHold},
      {E::CALLMEMBER_STATUS_10,    &Self::NoteHold},
      {E::CALLMEMBER_STATUS_12,    &Self::NoteMissed},
      {E::CONFERENCE_CALL_ENDED,   &Self::BeginCallEnd},
      {E::CALL_ENDED,              &Self::BeginCallEnd},
      {E::CALL_ENDED_OTHER,        &Self::BeginCallEnd},
      {E::CALLMEMBER_PROPERTY37,   &Self::StopRing},
      {E::VOICEMAIL_STATUS_5,      &Self::StopRing},
      {E::CALLMEMBER_STATUS_17,    &Self::StopRing},
      {E::CALLMEMBER_STATUS_18,    &Self::StopRing},
      {E::CALL_DURATION,           &Self::NoteDuration},
      {E::CALLMEMBER_PROPERTY15,   &Self::StopOwnVideo},
      {E::CALL_ACTIVE_MEMBERS_ONE, &Self::RebuildMembers},
      {E::VIDEO_STATUS_1,          &Self::NoteMemberVideo},
      {E::VIDEO_STATUS_1,          &Self::StopReceiving},
      {E::VIDEO_STATUS_2,          &Self::NoteMemberVideo},
      {E::VIDEO_STATUS_3,          &Self::ReceiveVideo},
      {E::VIDEO_STATUS_5,          &Self::ReceiveVideo},
      {E::VIDEO_STATUS_6,          &Self::NoteMemberVideo},
      {E::VIDEO_STATUS_6,          &Self::StopReceiving},
      {E::VIDEO_STATUS_7,          &Self::StopReceiving},
      {E::VOICEMAIL_STATUS_6,      &Self::RefreshHistory},
      {E::VOICEMAIL_STATUS_12,     &Self::ForgetVoicemail},
      {E::VOICEMAIL_STATUS_14,     &Self::ForgetVoicemail},
      {E::VOICEMAIL_STATUS_7,      &Self::ForgetVoicemail},
  };
  // clang-format on
  ServiceHostLock lock("call event");
  ZELTO_DEBUG("event type = %d, param=%d\n", event->type - zelto::kFirstEventType, event->param);
  for (const Decision& decision : kDecisions) {
    if (decision.type == event->type) return (this->*decision.decide)();
  }
  for (const Reaction& reaction : kReactions) {
    if (reaction.type == event->type) (this->*reaction.react)(*event);
  }
  return true;
}

bool CZelhostCallManager::AfterEvent(const CZeltoEvent* event) {
  using Self = CZelhostCallManager;
  // clang-format off
  static constexpr Reaction kReactions[] = {
      {E::CALLMEMBER_INPROGRESS,        &Self::StartCall},
      {E::CALLMEMBER_CALL_FAILED,       &Self::HideVoiceHelpbar},
      {E::CONFERENCE_CALL_ENDED,        &Self::FinishCall},
      {E::CALL_ENDED,                   &Self::FinishCall},
      {E::CALL_ENDED_OTHER,             &Self::FinishCall},
      {E::CALLMEMBER_PROPERTY37,        &Self::BeginVoicemail},
      {E::VOICEMAIL_STATUS_5,           &Self::BeginVoicemail},
      {E::CALLMEMBER_STATUS_17,         &Self::BeginVoicemail},
      {E::CALLMEMBER_STATUS_18,         &Self::BeginVoicemail},
      {E::VOICEMAIL_STATUS_6,           &Self::EndGreeting},
      {E::VOICEMAIL_STATUS_3,           &Self::EndVoicemail},
      {E::VOICEMAIL_STATUS_13,          &Self::EndVoicemail},
      {E::CALLMEMBER_STATUS_20,         &Self::EndVoicemail},
      {E::CALLMEMBER_STATUS_21,         &Self::EndVoicemail},
      {E::CALLMEMBER_STATUS_22,         &Self::EndVoicemail},
      {E::CALLMEMBER_MYVIDEO_AVAILABLE, &Self::NoteSendVideo},
      {E::CALLMEMBER_VIDEO_PROPERTY,    &Self::NoteMemberVideoProperty},
  };
  // clang-format on
  ServiceHostLock lock("after call event");
  ZELTO_DEBUG("[CZelhostCallManager::AfterEvent]event type = %d, param=%d\n",
              event->type - zelto::kFirstEventType, event->param);
  for (const Reaction& reaction : kReactions) {
    if (reaction.type == event->type) (this->*reaction.react)(*event);
  }
  return true;
}

bool CZelhostCallManager::StopRingForCall() {
  if (m_pCall == nullptr) {
    ZELTO_FATAL("!!!! call already disconnected !!!!");
    return false;
  }
  NotifyRingStopped();
  return true;
}

void CZelhostCallManager::NotifyRingStopped() {
  E::NotifyHardwiredEvent(E::PUBLIC_RING_STOPPED, nullptr, nullptr);
}

void CZelhostCallManager::StopRing(const CZeltoEvent&) { NotifyRingStopped(); }
void CZelhostCallManager::NoteHold(const CZeltoEvent&) { m_state.onHold = true; }
void CZelhostCallManager::NoteMissed(const CZeltoEvent&) { m_missed = true; }
void CZelhostCallManager::NoteDuration(const CZeltoEvent& event) { m_duration = event.param; }

void CZelhostCallManager::BeginCallEnd(const CZeltoEvent&) {
  ZELTO_DEBUG("Call ended");
  m_state.memberVideoAvailable = false;
  m_state.pendingAnswer = kNoPendingAnswer;
  m_state.leavingVoicemail = false;
  NotifyRingStopped();
  BlockForAWhile();
}

void CZelhostCallManager::StopOwnVideo(const CZeltoEvent&) {
  if (m_state.sendingVideo) {
    StopSendingToMember();
    StopPreviewIfShown();
    m_state.sendingVideo = false;
  }
  m_members.Store(0, CallMember::P_TYPE, kMemberTypeAfterRefusal);
}

void CZelhostCallManager::RebuildMembers(const CZeltoEvent&) { SetCallMembers(m_pCall); }

void CZelhostCallManager::NoteMemberVideo(const CZeltoEvent& event) {
  m_state.memberVideoAvailable = event.type == E::VIDEO_STATUS_2;
}

void CZelhostCallManager::ReceiveVideo(const CZeltoEvent&) {
  ZELTO_DEBUG("Callmember sending the video");
  if (TakesVideoFrom(m_members.Value(0, CallMember::P_IDENTITY))) StartRecvVideo();
}

void CZelhostCallManager::StopReceiving(const CZeltoEvent&) { StopRecvVideo(); }

// A greeting that is followed by a recording has left nothing behind yet.
void CZelhostCallManager::RefreshHistory(const CZeltoEvent&) {
  if (!m_state.leavingVoicemail) CZelhostHistoryManager::GetInstance()->RefreshHistoryList();
}

void CZelhostCallManager::ForgetVoicemail(const CZeltoEvent&) {
  CZelhostHistoryManager::GetInstance()->SetCurrentPlayingVoicemail(nullptr);
}
