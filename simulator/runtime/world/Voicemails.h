// The voicemails that others have left for the account that is signed in.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "simulator/runtime/media/MediaPort.h"
#include "simulator/runtime/service/Service.h"
#include "simulator/runtime/world/Contacts.h"
#include "simulator/runtime/world/Scheduler.h"
#include "simulator/runtime/world/SignIn.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

inline constexpr int kLongestVoicemail = 600;  // seconds

struct VoicemailContext {
  World& world;
  Contacts& contacts;
  Service& service;
  Scheduler& scheduler;
  const SignIn& signIn;
  MediaPort* media;              // null: played without a sound
  std::int64_t clockDifference;  // seconds that the television's clock is ahead
  std::function<bool()> inUse;   // whether a call has the sound
};

// They are taken from the service when they are first asked for after a sign-in; every change is stored there
// before anybody hears of it. While nobody is signed in there are none. The same account finds the same
// objects when it signs in again. One is played at a time, and none beside a call.
// Threads: none of its own; the scheduler plays.
class Voicemails {
 public:
  // The references must outlive this object.
  explicit Voicemails(VoicemailContext context) : m_context(std::move(context)) {}
  Voicemails(const Voicemails&) = delete;
  Voicemails& operator=(const Voicemails&) = delete;
  ~Voicemails() { StopPlaying(); }

  // In the order in which they came.
  std::vector<unsigned> All();

  // Somebody has left one, the engine being told; null when nobody is signed in or that is nobody.
  Object* Come(std::string_view from, int seconds);
  // For trying out long lists: so many, all heard but the newest, one every two hours. The engine is not
  // told, and finds them when it looks. False when there is no room.
  bool Invent(int count);

  // False for an object that is none, and while a call has the sound; ends another one.
  bool Play(unsigned id);
  void Stop(unsigned id);
  // As when the account signs out.
  void StopPlaying();
  bool MarkSeen(unsigned id);
  // The object is gone when this answers true.
  bool Delete(unsigned id);

 private:
  bool IsReady();
  unsigned Insert(const VoicemailRecord& record);
  VoicemailRecord* Of(unsigned id);
  void SetStatus(unsigned id, int status);
  void Begin();
  void Tick();

  const VoicemailContext m_context;
  std::string m_account;  // whose voicemails these are
  std::unordered_map<unsigned, VoicemailRecord> m_voicemails;
  unsigned m_playing = 0;
  int m_second = 0;
  bool m_sounds = false;
  Scheduler::Id m_next = 0;
};

}  // namespace simulator
