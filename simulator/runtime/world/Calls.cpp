#include "simulator/runtime/world/Calls.h"

#include <algorithm>
#include <utility>

#include "simulator/runtime/service/AccountRules.h"

namespace simulator {
namespace {

// The engine may still ask for the last of a call.
constexpr int kForgetMilliseconds = 3000;

// Whoever calls back gives up after so many milliseconds. An engine refuses calls for a while after one has
// ended, so a refused caller tries again.
constexpr int kCallBackRings = 5000;
constexpr int kCallBackAttempts = 3;
constexpr int kNextAttempt = 2000;

}  // namespace

Calls::Calls(const CallContext& context, std::function<bool()> signedIn)
    : m_context(context), m_signedIn(std::move(signedIn)) {}

Calls::~Calls() = default;

CallCourse* Calls::Create() {
  if (m_calls.size() >= kMaxCalls || m_context.world.IsFull()) return nullptr;
  CallObserver& observer = *this;
  m_calls.push_back(std::make_unique<CallCourse>(m_context, observer));
  return m_calls.back().get();
}

CallCourse* Calls::Come(const IncomingCall& incoming) {
  const NormalizedIdentity from = NormalizeIdentity(incoming.from, false);
  if (from.verdict != NameVerdict::Good || !m_signedIn()) return nullptr;
  CallCourse* course = Create();
  if (course == nullptr) return nullptr;
  IncomingCall normalized = incoming;
  normalized.from = from.identity;
  course->Come(normalized);
  return course;
}

bool Calls::Place(CallCourse& course, std::string_view identity,
                  bool (CallCourse::*begin)(const std::string&)) {
  const NormalizedIdentity to = NormalizeIdentity(identity, false);
  return to.verdict == NameVerdict::Good && m_signedIn() && (course.*begin)(to.identity);
}

CallCourse* Calls::Find(unsigned id) {
  for (const auto& course : m_calls) {
    if (course->Id() == id) return course.get();
  }
  return nullptr;
}

CallCourse* Calls::OfMember(unsigned id) {
  for (const auto& course : m_calls) {
    if (course->Member(id) != nullptr) return course.get();
  }
  return nullptr;
}

CallCourse* Calls::OfVideo(unsigned id) {
  for (const auto& course : m_calls) {
    if (course->Video(id) != nullptr) return course.get();
  }
  return nullptr;
}

CallVideo* Calls::Video(unsigned id) {
  CallCourse* course = OfVideo(id);
  return course == nullptr ? nullptr : course->Video(id);
}

CallCourse* Calls::Current() {
  const auto current = std::find_if(m_calls.rbegin(), m_calls.rend(), [](const auto& course) {
    return course->HasBegun() && !course->IsOver();
  });
  return current == m_calls.rend() ? nullptr : current->get();
}

bool Calls::Forget(unsigned id) {
  const auto found =
      std::find_if(m_calls.begin(), m_calls.end(), [id](const auto& course) { return course->Id() == id; });
  if (found == m_calls.end() || !(*found)->IsOver()) return false;
  m_callsBack.erase(id);
  m_calls.erase(found);
  return true;
}

void Calls::EndAll() {
  for (const auto& course : m_calls) course->Finish(member::kFinished);
  m_callsBack.clear();
}

void Calls::CallIsOver(CallCourse& course) {
  m_context.scheduler.After(kForgetMilliseconds, [this, id = course.Id()] { Forget(id); });
  if (m_over) m_over(course);
  const auto attempts = m_callsBack.find(course.Id());
  if (attempts == m_callsBack.end()) return;
  const CallMember& caller = *course.Members().front();
  if (caller.Status() != member::kRefused || attempts->second <= 1) return;
  CallBack(caller.Identity(), kNextAttempt, attempts->second - 1);
}

void Calls::CallBackLater(const std::string& identity, int milliseconds) {
  CallBack(identity, milliseconds, kCallBackAttempts);
}

void Calls::CallBack(const std::string& identity, int milliseconds, int attempts) {
  m_context.scheduler.After(milliseconds, [this, identity, attempts] {
    IncomingCall incoming;
    incoming.from = identity;
    incoming.givesUpAfter = kCallBackRings;
    if (const CallCourse* course = Come(incoming)) m_callsBack[course->Id()] = attempts;
  });
}

}  // namespace simulator
