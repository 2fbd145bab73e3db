// One call, from its first ring to its end.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "simulator/runtime/world/CallContext.h"
#include "simulator/runtime/world/CallMember.h"
#include "simulator/runtime/world/MagicNames.h"

namespace simulator {

struct IncomingCall {
  std::string from;
  bool video = false;
  bool conference = false;
  int givesUpAfter = 60000;  // milliseconds
};

class CallCourse;

// Told at the end of an operation; must not delete the call that tells.
class CallObserver {
 public:
  virtual ~CallObserver() = default;
  virtual void CallIsOver(CallCourse& course) = 0;
  // Somebody wants to call back after so many milliseconds.
  virtual void CallBackLater(const std::string& identity, int milliseconds) = 0;
};

// The parties of a call, what the engine may ask of it, and what the far end does: by the script that its
// name stands for, or by order. Operations that do not fit the moment change nothing and answer false.
// Threads: none of its own; the scheduler drives it.
class CallCourse {
 public:
  CallCourse(const CallContext& context, CallObserver& observer);
  CallCourse(const CallCourse&) = delete;
  CallCourse& operator=(const CallCourse&) = delete;
  // Deletes the call's objects, the engine being told; sound and pictures end.
  ~CallCourse();

  unsigned Id() const { return m_id; }
  bool HasBegun() const { return m_phase != Phase::New; }
  bool IsOver() const { return m_phase == Phase::Over; }
  // Whether sound flows.
  bool Sounds() const { return m_sounds; }
  const std::vector<std::unique_ptr<CallMember>>& Members() const { return m_members; }
  CallMember* Member(unsigned id) const;
  CallVideo* Video(unsigned id) const;

  // The beginning: by this side, or by the far end.
  bool Ring(const std::string& identity);
  bool LeaveVoicemail(const std::string& identity);
  bool Come(const IncomingCall& incoming);

  // What this side does.
  bool Accept();
  bool End(int action);
  bool EndMember(CallMember& member, int action);
  bool Hold(bool hold);
  bool HoldMember(CallMember& member, bool hold);
  bool CanHold() const { return m_phase == Phase::Talking && HasMember(member::kTalking); }
  bool CanResume() const { return HasMember(member::kHeldHere); }
  void Mute(bool mute);
  // Whoever echoes sends it back.
  void PlayTone(int tone);
  bool SkipGreeting();
  // Takes the members of the other call, which is then over.
  bool Assimilate(CallCourse& other);

  // What the far end does: steps of the scripts, and orders.
  bool StartRinging(int);
  bool Answer(int);
  bool HangUp(int);
  bool Finish(int status);  // 0: the members keep theirs
  bool Fail(int number);    // 0: the one in the far end's name
  bool HoldThere(int hold);
  bool Voicemail(int status);
  bool PlanCallBack(int milliseconds);
  bool ShowVideo(int show);
  bool RefuseVideo(int refuse);
  bool SendTone(int tone);
  bool Join(const std::string& identity);
  bool Leave(const std::string& identity);
  // Lets that member speak and the others be silent; empty for whoever speaks by itself.
  void Speak(const std::string& identity) { m_speaker = identity; }

  // Mishaps.
  bool Strike(int signal);  // hits the process
  bool Garbage(int);
  bool Storm(int changes);

 private:
  enum class Phase { New, Ringing, Talking, Voicemail, Over };

  bool Begin(const std::string& identity, FarEnd farEnd, int status);
  void RunScript(const FarEnd& farEnd);
  void ScheduleStep();
  void RunStep();
  void StartTalking();
  void StartTicking();
  void OfferVideo();
  bool EndVoicemail(int action);
  void AddMember(const std::string& identity, int status);
  void AddGuests(int members, int status);
  void CountMembers();
  bool HasMember(int status) const;
  bool SetHeld(bool held, int status);
  bool SetMemberHeld(CallMember& member, bool held, int status);
  void SetCall(int property, long long value);
  void VideoChanged();
  void UpdateMedia();
  FarSound SoundToPlay() const;
  FarPicture PictureToShow() const;
  void Tick();
  int LevelOf(std::size_t index) const;

  const CallContext& m_context;
  CallObserver& m_observer;
  const unsigned m_id;
  Phase m_phase = Phase::New;
  bool m_incoming = false;
  bool m_muted = false;
  bool m_showsVideo = false;  // from the beginning
  FarEnd m_farEnd;
  std::size_t m_step = 0;
  std::vector<std::unique_ptr<CallMember>> m_members;
  std::string m_speaker;
  int m_ticks = 0;
  Scheduler::Id m_script = 0;
  Scheduler::Id m_ticking = 0;
  Scheduler::Id m_offering = 0;
  // What was last asked of the sound and pictures.
  bool m_sounds = false;
  FarSound m_sound = FarSound::None;
  FarPicture m_picture = FarPicture::None;
};

}  // namespace simulator
