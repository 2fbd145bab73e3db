// The calls of the account that is signed in that are over.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "simulator/runtime/service/Service.h"
#include "simulator/runtime/world/CallCourse.h"
#include "simulator/runtime/world/SignIn.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

// A call that is over has an object of its own here, beside the one that it had while it lived and that goes
// soon. Calls are taken from the service when they are first asked for after a sign-in; every change is
// stored there before anybody hears of it. While nobody is signed in there are none. The same account finds
// the same objects when it signs in again.
// Threads: none of its own.
class PastCalls {
 public:
  PastCalls(World& world, Contacts& contacts, Service& service, const SignIn& signIn)
      : m_world(world), m_contacts(contacts), m_service(service), m_signIn(signIn) {}
  PastCalls(const PastCalls&) = delete;
  PastCalls& operator=(const PastCalls&) = delete;

  // Keeps a call that has just ended; one that never rang is none.
  void Keep(const CallCourse& course);

  // The newest come first.
  std::vector<unsigned> All();
  std::vector<unsigned> UnseenMissed();
  // Members of a call, made when they are asked for; none for an object that is no such call.
  std::vector<unsigned> Members(unsigned call);

  // Also by the object that the call had while it lived. False for an object that is neither.
  bool SetUnseen(unsigned call, bool unseen);
  bool Delete(unsigned call);

  // Numbers of CALL_CLEARCALLHISTORYTYPE_MAP.
  enum Kind : int { kAll = 1, kMissed = 2, kIncoming = 3, kOutgoing = 4 };
  // Deletes those of a kind, of everybody or of those with one identity.
  void Clear(int kind, const std::string& identity);

  // For trying out long lists: so many calls within the last so many hours, the newest three of them missed.
  // The engine is not told, and finds them when it looks. False when there is no room.
  bool Invent(int count, std::int64_t now);

 private:
  struct Call {
    CallRecord record;
    std::vector<unsigned> members;
  };

  bool IsReady();
  void Forget();
  // Answers the object, 0 when there is no room.
  unsigned Insert(CallRecord record);
  Call* Of(unsigned id);

  World& m_world;
  Contacts& m_contacts;
  Service& m_service;
  const SignIn& m_signIn;
  std::string m_account;  // whose calls these are
  std::unordered_map<unsigned, Call> m_calls;
  std::unordered_map<unsigned, unsigned> m_lived;  // the object here, by the one that the call had
};

}  // namespace simulator
