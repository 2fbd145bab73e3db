// The properties of contacts and contact groups that the runtime gives a meaning to, by their number, and
// the groups that every account has.
#pragma once

namespace simulator {
namespace contact {

enum Property : int {
  kIdentity = 1,
  kPhoneNumber = 2,
  kType = 3,
  kAvailability = 20,
  kDisplayName = 21,
  kAuthLevel = 23,
  kPicture = 32,
  kMood = 33,
};

enum Availability : int { kPending = 1, kPhone = 5, kOffline = 6, kOnline = 7 };
enum AuthLevel : int { kNotAuthorized = 1, kAuthorized = 2, kBlocked = 3 };

}  // namespace contact

namespace group {

enum Property : int { kType = 1, kName = 2, kContacts = 3 };

// Numbers of CONTACTGROUP_TYPE_MAP.
enum Type : int { kFirst = 1, kAll = 2, kAccounts = 3, kPhones = 4, kPending = 6, kBlocked = 10, kLast = 14 };

}  // namespace group
}  // namespace simulator
