#include "simulator/runtime/world/CallCourse.h"

#include <algorithm>
#include <ctime>

#include "apiwrapper/tables/Classes.h"
#include "apiwrapper/tables/Events.h"

namespace simulator {
namespace {

// Those who are there when somebody answers as a conference.
constexpr const char* kGuests[] = {"guest.one", "guest.two"};

}  // namespace

CallCourse::CallCourse(const CallContext& context, CallObserver& observer)
    : m_context(context), m_observer(observer), m_id(context.world.Create(CALL_CLASS).id) {
  Object& object = *m_context.world.Find(m_id);
  for (const int property : {call::kStartTime, call::kUnseen, call::kDuration, call::kActiveMembers,
                             call::kOngoing, call::kIncoming, call::kConference}) {
    m_context.world.PutInt(object, property, 0);
  }
}

CallCourse::~CallCourse() {
  m_phase = Phase::Over;
  for (const Scheduler::Id action : {m_script, m_ticking, m_offering}) m_context.scheduler.Cancel(action);
  UpdateMedia();
  m_members.clear();
  m_context.world.Delete(m_id);
}

CallMember* CallCourse::Member(unsigned id) const {
  for (const auto& member : m_members) {
    if (member->Id() == id) return member.get();
  }
  return nullptr;
}

CallVideo* CallCourse::Video(unsigned id) const {
  for (const auto& member : m_members) {
    if (CallVideo* video = member->Video(id)) return video;
  }
  return nullptr;
}

bool CallCourse::HasMember(int status) const {
  return std::any_of(m_members.begin(), m_members.end(),
                     [status](const auto& member) { return member->Status() == status; });
}

void CallCourse::SetCall(int property, long long value) {
  if (Object* object = m_context.world.Find(m_id)) m_context.world.SetInt(*object, property, value);
}

void CallCourse::AddMember(const std::string& identity, int status) {
  m_members.push_back(std::make_unique<CallMember>(m_context, identity, status, [this] { VideoChanged(); }));
  CallVideo* sent = m_members.back()->Sent();
  if (sent != nullptr) sent->Refuse(m_farEnd.refusesVideo);
}

void CallCourse::AddGuests(int members, int status) {
  for (const char* guest : kGuests) {
    if (m_members.size() < static_cast<std::size_t>(members)) AddMember(guest, status);
  }
}

// The beginning.

bool CallCourse::Ring(const std::string& identity) {
  if (!Begin(identity, FarEndOf(identity, m_context.contacts.Find(identity)), member::kNew)) return false;
  m_members.front()->SetStatus(member::kReaching);
  RunScript(m_farEnd);
  return true;
}

bool CallCourse::LeaveVoicemail(const std::string& identity) {
  if (!Begin(identity, VoicemailFarEnd(), member::kNew)) return false;
  RunScript(m_farEnd);
  return true;
}

bool CallCourse::Come(const IncomingCall& incoming) {
  if (m_phase != Phase::New) return false;
  m_incoming = true;
  SetCall(call::kIncoming, 1);
  SetCall(call::kConference, incoming.conference);
  FarEnd farEnd = FarEndOf(incoming.from, m_context.contacts.Find(incoming.from));
  farEnd.stepCount = 0;
  if (incoming.conference) farEnd.members = 1 + static_cast<int>(std::size(kGuests));
  m_showsVideo = incoming.video;
  Begin(incoming.from, farEnd, member::kRinging);
  if (incoming.video && m_members.front()->Received() != nullptr) m_members.front()->Received()->Offer();
  m_script = m_context.scheduler.After(incoming.givesUpAfter, [this] { HangUp(0); });
  return true;
}

bool CallCourse::Begin(const std::string& identity, FarEnd farEnd, int status) {
  if (m_phase != Phase::New) return false;
  m_phase = Phase::Ringing;
  m_farEnd = farEnd;
  AddMember(identity, status);
  // The others talk already, and wait for this side.
  if (m_incoming) AddGuests(m_farEnd.members, member::kTalking);
  Object* object = m_context.world.Find(m_id);
  if (object == nullptr) return false;
  m_context.world.Set(*object, call::kPartner, identity);
  SetCall(call::kStartTime, std::time(nullptr) + m_context.clockDifference);
  SetCall(call::kOngoing, 1);
  m_context.world.Event(*object, ZEEventNumber::NewCall);
  return true;
}

// The script.

void CallCourse::RunScript(const FarEnd& farEnd) {
  m_farEnd.steps = farEnd.steps;
  m_farEnd.stepCount = farEnd.stepCount;
  m_step = 0;
  ScheduleStep();
}

void CallCourse::ScheduleStep() {
  m_context.scheduler.Cancel(m_script);
  if (IsOver() || m_step >= m_farEnd.stepCount) return;
  m_script = m_context.scheduler.After(m_farEnd.steps[m_step].milliseconds, [this] { RunStep(); });
}

void CallCourse::RunStep() {
  const CallStep* const script = m_farEnd.steps;
  const CallStep& step = script[m_step++];
  (this->*step.act)(step.value);
  // A step may have begun another script.
  if (m_farEnd.steps == script) ScheduleStep();
}

bool CallCourse::SkipGreeting() {
  if (!HasMember(member::kGreetingComes) && !HasMember(member::kGreeting)) return false;
  while (m_step < m_farEnd.stepCount && !IsOver() && !HasMember(member::kRecording)) RunStep();
  return true;
}

// From the first ring to talking.

bool CallCourse::StartRinging(int) {
  if (m_phase != Phase::Ringing || m_incoming) return false;
  m_members.front()->SetStatus(member::kRinging);
  return true;
}

bool CallCourse::Answer(int) {
  if (m_phase != Phase::Ringing || m_incoming) return false;
  StartTalking();
  return true;
}

bool CallCourse::Accept() {
  if (m_phase != Phase::Ringing || !m_incoming) return false;
  StartTalking();
  return true;
}

void CallCourse::StartTalking() {
  m_context.scheduler.Cancel(m_script);
  m_phase = Phase::Talking;
  m_members.front()->SetStatus(member::kTalking);
  AddGuests(m_farEnd.members, member::kTalking);
  CountMembers();
  OfferVideo();
  StartTicking();
  UpdateMedia();
}

// The call is a conference once it has had more than one.
void CallCourse::CountMembers() {
  const auto active = std::count_if(m_members.begin(), m_members.end(),
                                    [](const auto& member) { return member->IsConnected(); });
  SetCall(call::kActiveMembers, active);
  if (active > 1) SetCall(call::kConference, 1);
}

bool CallCourse::Voicemail(int status) {
  if (m_phase != Phase::Ringing && m_phase != Phase::Voicemail) return false;
  m_phase = Phase::Voicemail;
  m_members.front()->SetStatus(status);
  if (status == member::kRecording) StartTicking();
  UpdateMedia();
  return true;
}

// Who else is there.

bool CallCourse::Join(const std::string& identity) {
  if (m_phase != Phase::Talking) return false;
  AddMember(identity, member::kTalking);
  CountMembers();
  return true;
}

bool CallCourse::Leave(const std::string& identity) {
  for (const auto& member : m_members) {
    if (member->Identity() == identity && member->IsConnected()) return EndMember(*member, call::kHangUp);
  }
  return false;
}

bool CallCourse::Assimilate(CallCourse& other) {
  if (&other == this || m_phase != Phase::Talking || other.m_phase != Phase::Talking) return false;
  for (const auto& member : other.m_members) {
    if (member->IsConnected()) AddMember(member->Identity(), member::kTalking);
  }
  other.Finish(member::kFinished);
  CountMembers();
  return true;
}

}  // namespace simulator
