// All calls of a session.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "simulator/runtime/world/CallContext.h"
#include "simulator/runtime/world/CallCourse.h"

namespace simulator {

// More calls than any engine makes: somebody asks for the sake of asking.
inline constexpr std::size_t kMaxCalls = 1000;

// Owns the calls, the ones under way and those that are over, which are forgotten a moment later. All end
// when the account signs out.
// Threads: none of its own; the scheduler drives it.
class Calls : private CallObserver {
 public:
  // `signedIn` tells whether calls can be made at all.
  Calls(const CallContext& context, std::function<bool()> signedIn);
  Calls(const Calls&) = delete;
  Calls& operator=(const Calls&) = delete;
  ~Calls() override;

  // A call that does not ring yet; null when there are too many.
  CallCourse* Create();
  // Begins a created call to an identity with CallCourse::Ring or LeaveVoicemail; false when nobody is
  // signed in, or that is nobody.
  bool Place(CallCourse& course, std::string_view identity, bool (CallCourse::*begin)(const std::string&));
  // Somebody calls; null when nobody is signed in, or that is nobody.
  CallCourse* Come(const IncomingCall& incoming);

  // Null for none.
  CallCourse* Find(unsigned id);
  CallCourse* OfMember(unsigned id);
  CallCourse* OfVideo(unsigned id);
  CallVideo* Video(unsigned id);
  // The call that has begun last and is not over; null for none.
  CallCourse* Current();
  const std::vector<std::unique_ptr<CallCourse>>& All() const { return m_calls; }

  // Forgets a call that is over at once; false for any other.
  bool Forget(unsigned id);
  // Told of every call that has ended, its objects being there for a while.
  void WhenOver(std::function<void(const CallCourse&)> over) { m_over = std::move(over); }

  // Ends every call, as when the account signs out.
  void EndAll();

 private:
  void CallIsOver(CallCourse& course) override;
  void CallBackLater(const std::string& identity, int milliseconds) override;
  void CallBack(const std::string& identity, int milliseconds, int attempts);

  const CallContext m_context;
  const std::function<bool()> m_signedIn;
  std::vector<std::unique_ptr<CallCourse>> m_calls;
  std::map<unsigned, int> m_callsBack;  // attempts left, by the call
  std::function<void(const CallCourse&)> m_over;
};

}  // namespace simulator
