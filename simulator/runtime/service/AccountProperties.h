// The properties of an account that the runtime gives a meaning to, by their number, and the values of
// those that have a course.
#pragma once

namespace simulator {
namespace account {

enum Property : int {
  kName = 1,
  kFullName = 2,
  kGender = 4,
  kLanguage = 5,
  kCountry = 6,
  kCity = 8,
  kEmails = 12,
  kPicture = 15,
  kMood = 16,
  kHighestCapability = 19,
  kAvailability = 20,
  kStatus = 21,
  kPasswordStatus = 22,
  kLogoutReason = 23,
  kCommitStatus = 24,
  kSuggestedNames = 25,
  kListSync = 30,
  kChatPolicy = 35,
  kCallPolicy = 36,
  kPhoneCallPolicy = 37,
  kPicturePolicy = 38,
};

enum Status : int {
  kSignedOut = 1,
  kSignedOutPasswordStored = 2,
  kConnecting = 3,
  kReachingService = 4,
  kSigningIn = 5,
  kPreparing = 6,
  kSignedIn = 7,
  kSigningOut = 8,
};

enum PasswordStatus : int {
  kPasswordChanged = 1,
  kPasswordChanging = 2,
  kOldPasswordWrong = 3,
  kPasswordUnreachable = 4,
  kNewPasswordSameAsOld = 5,
  kNewPasswordBad = 6,
  kNotSignedIn = 7,
};

enum CommitStatus : int { kCommitted = 1, kCommitting = 2, kCommitFailed = 3 };

enum ListSync : int { kSyncNone = 1, kSyncWaiting = 2, kSyncRunning = 3, kInSync = 5, kSyncFailed = 6 };

// What the runtime decides itself: nobody else sets these.
inline constexpr int kOwnedByRuntime[] = {kName,         kHighestCapability, kAvailability,
                                          kStatus,       kPasswordStatus,    kLogoutReason,
                                          kCommitStatus, kSuggestedNames,    kListSync};

constexpr bool IsOwnedByRuntime(int property) {
  for (const int owned : kOwnedByRuntime) {
    if (owned == property) return true;
  }
  return false;
}

}  // namespace account
}  // namespace simulator
