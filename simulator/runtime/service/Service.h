// Where a real service is plugged in: what the runtime needs to ask somebody who knows all accounts.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/runtime/service/ChatService.h"
#include "simulator/runtime/service/Conditions.h"
#include "simulator/runtime/service/HistoryService.h"
#include "simulator/runtime/service/LogoutReasons.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

struct Registration {
  std::string name;
  std::string password;
  std::string email;  // may be empty
  bool offers = false;
};

// How the service behaves towards an account, beyond its data.
enum class Trait {
  None,
  Elsewhere,    // signs in at another place a moment after the sign-in here
  Unreachable,  // the service cannot be reached
  TooMany,      // too many attempts
  Damaged,      // the account's data turn out to be damaged
  FailsCommit,  // server-side values are never taken
  FailsSync,    // the contact list never synchronises
  Slow,         // every step of the sign-in takes a second
};

struct Capability {
  int status = 1;           // of ACCOUNT_CAPABILITYSTATUS_MAP; 1 is "none"
  std::int64_t expiry = 0;  // seconds since the epoch, 0 for never
};

// All operations answer at once; a service that has to wait gets its own thread behind them.
// Threads: called by the event loop's only thread.
class Service : public ChatService, public HistoryService {
 public:
  using Properties = std::map<int, Value>;  // by their number, of an account where nothing else is said

  virtual bool Exists(std::string_view name) = 0;
  // LogoutReason::None when the password opens the account.
  virtual LogoutReason SignIn(std::string_view name, std::string_view password) = 0;
  // LogoutReason::None when the account now exists.
  virtual LogoutReason Register(const Registration& registration) = 0;
  // False when the old password is wrong.
  virtual bool ChangePassword(std::string_view name, std::string_view before, std::string_view now) = 0;
  // Free account names that resemble a taken one.
  virtual std::vector<std::string> SuggestNames(std::string_view name) = 0;
  virtual Trait TraitOf(std::string_view name) = 0;

  virtual Properties Profile(std::string_view name) = 0;
  // False when nothing was stored, be it that the account does not exist.
  virtual bool StoreProfile(std::string_view name, const Properties& values) = 0;
  virtual Capability CapabilityOf(std::string_view name, int capability) = 0;

  // Contact availability of an account (CONTACT_AVAILABILITY_MAP) at the moment; offline when it does not
  // exist.
  virtual int PresenceOf(std::string_view name) = 0;

  // The contact list.
  virtual std::vector<std::string> Contacts(std::string_view name) = 0;
  // False when nothing was changed.
  virtual bool AddContact(std::string_view name, std::string_view contact) = 0;
  virtual bool RemoveContact(std::string_view name, std::string_view contact) = 0;
  // For trying out long lists: adds so many people who did not exist, and answers who they are.
  virtual std::vector<std::string> AddInventedContacts(std::string_view name, int count, unsigned seed) = 0;

  // What an account keeps about others, listed or not: properties of contacts by their number.
  virtual std::map<std::string, Properties> Notes(std::string_view name) = 0;
  // An empty value takes the note away.
  virtual void Note(std::string_view name, std::string_view contact, int property,
                    std::string_view value) = 0;

  // The groups that the account's user has made.
  struct Group {
    std::int64_t number;  // never 0
    std::string name;
    std::vector<std::string> members;
  };
  virtual std::vector<Group> Groups(std::string_view name) = 0;
  virtual std::int64_t CreateGroup(std::string_view name) = 0;
  // False when the account has no such group.
  virtual bool RenameGroup(std::string_view name, std::int64_t group, std::string_view to) = 0;
  virtual bool DeleteGroup(std::string_view name, std::int64_t group) = 0;
  virtual void SetGroupMember(std::int64_t group, std::string_view contact, bool member) = 0;

  // The directory: names of accounts for which the query holds, at most so many, in the order of the names.
  // Its properties are those of a profile up to kLastSearchable, and the name.
  static constexpr int kLastSearchable = 13;
  virtual std::vector<std::string> FindPeople(const Query& query, std::size_t most) = 0;

  // Makes many changes fast: all or nothing, stored when this returns.
  virtual void Together(const std::function<void()>& changes) = 0;
};

}  // namespace simulator
