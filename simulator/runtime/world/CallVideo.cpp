#include "simulator/runtime/world/CallVideo.h"

#include <utility>

#include "apiwrapper/tables/Classes.h"

namespace simulator {
namespace {

constexpr int kStepMilliseconds = 50;

// Running, or refused when the far end refuses.
constexpr int kSettled = -1;
// There is no further status.
constexpr int kStays = 0;

}  // namespace

struct CallVideo::Transition {
  Cause cause;
  int from;
  int to;
  int then;  // a moment later
};

// clang-format off
const CallVideo::Transition CallVideo::kTransitions[] = {
    {Cause::Offer,    video::kNone,      video::kAvailable, kStays},
    {Cause::Start,    video::kAvailable, video::kStarting,  kSettled},
    {Cause::Start,    video::kStarting,  video::kStarting,  kSettled},
    {Cause::Start,    video::kStopping,  video::kStarting,  kSettled},
    {Cause::Start,    video::kRefused,   video::kStarting,  kSettled},
    {Cause::Stop,     video::kStarting,  video::kStopping,  video::kAvailable},
    {Cause::Stop,     video::kRunning,   video::kStopping,  video::kAvailable},
    {Cause::Stop,     video::kRefused,   video::kAvailable, kStays},
    {Cause::Arrive,   video::kAvailable, video::kStarting,  kStays},
    {Cause::Arrive,   video::kStopping,  video::kStarting,  kStays},
    {Cause::Arrive,   video::kPaused,    video::kStarting,  kStays},
    {Cause::Withdraw, video::kAvailable, video::kNone,      kStays},
    {Cause::Withdraw, video::kStarting,  video::kStopping,  video::kNone},
    {Cause::Withdraw, video::kRunning,   video::kStopping,  video::kNone},
    {Cause::Withdraw, video::kRefused,   video::kNone,      kStays},
    {Cause::Withdraw, video::kStopping,  video::kStopping,  video::kNone},
    {Cause::Withdraw, video::kPaused,    video::kNone,      kStays},
    {Cause::Pause,    video::kStarting,  video::kPaused,    kStays},
    {Cause::Pause,    video::kRunning,   video::kPaused,    kStays},
    {Cause::Resume,   video::kPaused,    video::kStarting,  kSettled},
};
// clang-format on

CallVideo::CallVideo(World& world, Scheduler& scheduler, Direction direction, std::function<void()> changed)
    : m_world(world),
      m_scheduler(scheduler),
      m_direction(direction),
      m_changed(std::move(changed)),
      m_id(world.Create(VIDEO_CLASS).id) {
  m_world.PutInt(*m_world.Find(m_id), video::kStatus, m_status);
}

CallVideo::~CallVideo() {
  Plan(kStays);
  m_world.Delete(m_id);
}

void CallVideo::Start() {
  m_wanted = true;
  const bool underWay = m_status == video::kStarting && m_pending != 0;
  if (!underWay) Take(Cause::Start);
}

void CallVideo::Stop() {
  m_wanted = false;
  Take(Cause::Stop);
}

void CallVideo::Offer() { Take(Cause::Offer); }
void CallVideo::Withdraw() { Take(Cause::Withdraw); }
void CallVideo::Pause() { Take(Cause::Pause); }

void CallVideo::Resume() {
  if (m_wanted) {
    Take(Cause::Resume);
  } else if (m_direction == Direction::Receive) {
    Take(Cause::Arrive);
  } else if (m_status == video::kPaused) {
    SetStatus(video::kAvailable);
  }
}

void CallVideo::Arrive() {
  Take(Cause::Offer);
  Take(Cause::Arrive);
}

void CallVideo::Refuse(bool refuses) {
  m_refuses = refuses;
  if (!refuses || (m_status != video::kStarting && !IsRunning())) return;
  Plan(kStays);
  SetStatus(video::kRefused);
}

void CallVideo::End() {
  Plan(kStays);
  m_wanted = false;
  SetStatus(video::kNone);
}

void CallVideo::Take(Cause cause) {
  for (const Transition& row : kTransitions) {
    if (row.cause != cause || row.from != m_status) continue;
    Plan(row.then);
    SetStatus(row.to);
    return;
  }
}

void CallVideo::Plan(int status) {
  m_scheduler.Cancel(m_pending);
  m_pending = 0;
  if (status == kStays) return;
  m_pending = m_scheduler.After(kStepMilliseconds, [this, status] {
    m_pending = 0;
    const int settled = m_refuses ? video::kRefused : video::kRunning;
    SetStatus(status == kSettled ? settled : status);
  });
}

void CallVideo::SetStatus(int status) {
  if (status == m_status) return;
  m_status = status;
  if (Object* object = m_world.Find(m_id)) m_world.SetInt(*object, video::kStatus, status);
  m_changed();
}

}  // namespace simulator
