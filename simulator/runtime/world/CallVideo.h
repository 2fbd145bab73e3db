// One direction of a member's pictures.
#pragma once

#include <functional>

#include "simulator/runtime/world/CallProperties.h"
#include "simulator/runtime/world/Scheduler.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// Leads a video object through its statuses: none, available, starting, then running or refused; stopping;
// paused while the call is held. Sent pictures run when the engine starts them, received ones when they come
// from the far end and the engine has started them. What does not fit the status changes nothing.
// Threads: none of its own; the scheduler drives it.
class CallVideo {
 public:
  enum class Direction { Send, Receive };

  // `changed` is told of every new status and must not delete the video.
  CallVideo(World& world, Scheduler& scheduler, Direction direction, std::function<void()> changed);
  CallVideo(const CallVideo&) = delete;
  CallVideo& operator=(const CallVideo&) = delete;
  ~CallVideo();

  unsigned Id() const { return m_id; }
  int Status() const { return m_status; }
  bool IsRunning() const { return m_status == video::kRunning; }

  // The engine's wishes.
  void Start();
  void Stop();

  // What the call makes possible, and no longer.
  void Offer();
  void Withdraw();
  void Pause();
  void Resume();
  // The far end's pictures are on their way; for those that are received.
  void Arrive();
  // The far end takes none from now on; for those that are sent.
  void Refuse(bool refuses);
  // All at once, as when the call is over.
  void End();

 private:
  enum class Cause { Start, Stop, Offer, Withdraw, Pause, Resume, Arrive };
  struct Transition;
  static const Transition kTransitions[];

  void Take(Cause cause);
  // What the next status will be, in place of what was planned before.
  void Plan(int status);
  void SetStatus(int status);

  World& m_world;
  Scheduler& m_scheduler;
  const Direction m_direction;
  const std::function<void()> m_changed;
  unsigned m_id;
  int m_status = video::kNone;
  bool m_wanted = false;  // by the engine
  bool m_refuses = false;
  Scheduler::Id m_pending = 0;  // 0: nothing is planned
};

}  // namespace simulator
