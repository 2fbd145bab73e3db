// The properties of voicemails that the runtime gives a meaning to, by their number.
#pragma once

namespace simulator::voicemail {

enum Property : int {
  kType = 1,
  kPartner = 2,
  kPartnerName = 3,
  kStatus = 4,
  kAt = 7,
  kDuration = 8,
  kPlayed = 10,  // seconds of it that have been heard
};

enum Type : int { kIncoming = 1 };

enum Status : int {
  kNew = 1,
  kSeen = 2,     // but not heard
  kMissing = 3,  // cannot be fetched
  kFetching = 4,
  kPlaying = 5,
  kHeard = 6,
  kDeleting = 11,
};

}  // namespace simulator::voicemail
