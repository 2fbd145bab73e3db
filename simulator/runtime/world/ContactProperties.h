// The properties of contacts and contact groups that the runtime gives a meaning to, by their number, and
// the groups that every account has.
#pragma once

namespace simulator {
namespace contact {

enum Property : int {
  kIdentity = 1,
  kPhoneNumber = 2,
  kType = 3,
  kFullName = 4,
  kGender = 6,
  kHomePhone = 11,
  kOfficePhone = 12,
  kMobilePhone = 13,
  kAvailability = 20,
  kDisplayName = 21,
  kGivenName = 22,  // by the user, shown in place of the contact's own
  kAuthLevel = 23,
  kRequested = 29,  // when the contact asked to be authorized, seconds since the epoch; 0 when it does not
  kPicture = 32,
  kMood = 33,
  kFirstNumber = 42,  // assigned number and its label, for each slot
  kLastNumber = 47,

  // Kept with the contact, but no properties of the protocol: the engine cannot ask for them.
  kPresence = 1000,  // availability, whether the user may see it or not
  kSpeedDial = 1001,
  kAnswer =
      1002,  // to the user's request to be authorized: 1 yes, 0 no; empty for what people do by themselves
  kAsked = 1003,  // with what words the user has asked
};

inline constexpr int kNumberSlots = 3;
constexpr int NumberOfSlot(int slot) { return kFirstNumber + 2 * (slot - 1); }
constexpr int LabelOfSlot(int slot) { return NumberOfSlot(slot) + 1; }
static_assert(LabelOfSlot(kNumberSlots) == kLastNumber);

enum Availability : int { kPending = 1, kPhone = 5, kOffline = 6, kOnline = 7, kAway = 8, kBusy = 10 };
enum AuthLevel : int { kNotAuthorized = 1, kAuthorized = 2, kBlocked = 3 };
enum Gender : int { kMale = 1, kFemale = 2 };

}  // namespace contact

namespace group {

enum Property : int { kType = 1, kName = 2, kContacts = 3 };

// Numbers of CONTACTGROUP_TYPE_MAP.
enum Type : int {
  kFirst = 1,
  kKnown = 1,       // everybody that the account has to do with
  kAll = 2,         // the whole list
  kAccounts = 3,    // of the list
  kPhones = 4,      // of the list
  kReachable = 5,   // of the list, and online
  kPending = 6,     // of the list, but have not authorized the account
  kWaiting = 8,     // ask to be authorized
  kAuthorized = 9,  // by the account
  kBlocked = 10,    // by the account
  kUngrouped = 11,  // of the list, in no custom group
  kCustom = 12,     // made by the user
  kLast = 14,
};

}  // namespace group
}  // namespace simulator
