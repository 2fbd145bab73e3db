// The properties of calls, their members and their videos that the runtime gives a meaning to, by their
// number, and the values of those that have a course.
#pragma once

namespace simulator {
namespace call {

enum Property : int {
  kStartTime = 1,
  kUnseen = 4,
  kPartner = 5,
  kDuration = 7,
  kActiveMembers = 10,
  kOngoing = 11,
  kIncoming = 17,
  kConference = 18,
};

// Numbers of CALLMEMBER_ENDACTION_MAP.
enum EndAction : int { kHangUp = 1, kToVoicemail = 2, kForward = 3, kCancelVoicemail = 4 };

}  // namespace call

namespace member {

enum Property : int {
  kIdentity = 1,
  kDisplayName = 2,
  kType = 8,
  kStatus = 9,
  kFailureReason = 10,
  kVoiceLevel = 12,
  kFailureText = 13,
  kVideoStatus = 18,
  kMikeStatus = 20,
  kQuality = 22,
  kDuration = 36,
};

enum Status : int {
  kNew = 1,
  kReaching = 2,
  kUnanswered = 3,
  kFailed = 4,
  kRinging = 6,
  kTalking = 8,
  kHeldHere = 9,
  kHeldThere = 10,
  kFinished = 11,
  kMissed = 12,
  kRefused = 13,
  kBusy = 14,
  kCancelled = 15,
  kGreetingComes = 16,
  kGreeting = 17,
  kRecording = 18,
  kDelivering = 19,
  kDelivered = 20,
  kGivenUp = 21,
  kNotDelivered = 22,
};

enum VideoStatus : int { kNoVideo = 1, kCanSend = 2, kCanReceive = 3, kCanBoth = 4 };
enum MikeStatus : int { kMikeOpen = 1, kMikeAsked = 2, kMikeClosed = 3 };

}  // namespace member

namespace video {

enum Property : int { kStatus = 1 };

enum Status : int {
  kNone = 1,
  kAvailable = 2,
  kStarting = 3,
  kRefused = 4,
  kRunning = 5,
  kStopping = 6,
  kPaused = 7,
};

}  // namespace video
}  // namespace simulator
