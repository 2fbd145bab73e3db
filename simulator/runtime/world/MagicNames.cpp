#include "simulator/runtime/world/MagicNames.h"

#include <csignal>
#include <iterator>

#include "simulator/runtime/protocol/Message.h"
#include "simulator/runtime/service/AccountRules.h"
#include "simulator/runtime/world/CallCourse.h"
#include "simulator/runtime/world/ContactProperties.h"

namespace simulator {
namespace {

using Course = CallCourse;

constexpr int kReach = 100;  // until the far end rings
constexpr int kRing = 1000;
constexpr int kLongestRecording = 120000;

constexpr char kFailPrefix[] = "fail-";

// clang-format off
constexpr CallStep kAnswersSoon[]       = {{kReach, &Course::StartRinging, 0},
                                           {kRing, &Course::Answer, 0}};
constexpr CallStep kAnswersAfterTwo[]   = {{kReach, &Course::StartRinging, 0},
                                           {2 * kRing, &Course::Answer, 0}};
constexpr CallStep kAnswersAfterThree[] = {{kReach, &Course::StartRinging, 0},
                                           {3 * kRing, &Course::Answer, 0}};
constexpr CallStep kRingsInVain[]       = {{kReach, &Course::StartRinging, 0},
                                           {30 * kRing, &Course::Finish, member::kUnanswered}};
constexpr CallStep kIsBusy[]            = {{kRing, &Course::Finish, member::kBusy}};
constexpr CallStep kFails[]             = {{kReach, &Course::Fail, 0}};
constexpr CallStep kCallsBack[]         = {{kReach, &Course::StartRinging, 0},
                                           {kRing, &Course::PlanCallBack, 2000},
                                           {0, &Course::Finish, member::kRefused}};
constexpr CallStep kHangsUp[]           = {{kReach, &Course::StartRinging, 0},
                                           {kRing, &Course::Answer, 0},
                                           {3000, &Course::HangUp, 0}};
constexpr CallStep kHolds[]             = {{kReach, &Course::StartRinging, 0},
                                           {kRing, &Course::Answer, 0},
                                           {3000, &Course::HoldThere, 1},
                                           {3000, &Course::HoldThere, 0}};
constexpr CallStep kForwards[]          = {{kReach, &Course::StartRinging, 0},
                                           {3 * kRing, &Course::Voicemail, member::kGreetingComes},
                                           {200, &Course::Voicemail, member::kGreeting},
                                           {4000, &Course::Voicemail, member::kRecording},
                                           {kLongestRecording, &Course::HangUp, 0}};
constexpr CallStep kRecords[]           = {{kReach, &Course::Voicemail, member::kGreetingComes},
                                           {200, &Course::Voicemail, member::kGreeting},
                                           {4000, &Course::Voicemail, member::kRecording},
                                           {kLongestRecording, &Course::HangUp, 0}};
constexpr CallStep kDelivers[]          = {{500, &Course::Voicemail, member::kDelivered},
                                           {100, &Course::Finish, 0}};
constexpr CallStep kCrashes[]           = {{kReach, &Course::StartRinging, 0},
                                           {kRing, &Course::Strike, SIGKILL}};
constexpr CallStep kFreezes[]           = {{kReach, &Course::StartRinging, 0},
                                           {kRing, &Course::Strike, SIGSTOP}};
constexpr CallStep kTalksNonsense[]     = {{kReach, &Course::StartRinging, 0},
                                           {kRing, &Course::Answer, 0},
                                           {500, &Course::Garbage, 0}};
constexpr CallStep kStorms[]            = {{kReach, &Course::StartRinging, 0},
                                           {kRing, &Course::Answer, 0},
                                           {500, &Course::Storm, 2000},
                                           {3000, &Course::HangUp, 0}};
// clang-format on

template <std::size_t N>
constexpr FarEnd Does(const CallStep (&steps)[N], FarSound sound = FarSound::Tone,
                      FarPicture picture = FarPicture::TestPicture) {
  FarEnd farEnd;
  farEnd.steps = steps;
  farEnd.stepCount = N;
  farEnd.sound = sound;
  farEnd.picture = picture;
  return farEnd;
}

constexpr FarEnd WithMembers(FarEnd farEnd, int members) {
  farEnd.members = members;
  return farEnd;
}

constexpr FarEnd RefusingVideo(FarEnd farEnd) {
  farEnd.refusesVideo = true;
  return farEnd;
}

struct NameRow {
  std::string_view name;
  FarEnd farEnd;
};

// clang-format off
constexpr NameRow kNames[] = {
    {"sndtest",     Does(kAnswersAfterTwo, FarSound::Echo, FarPicture::Echo)},
    {"busy",        Does(kIsBusy)},
    {"noanswer",    Does(kRingsInVain)},
    {"missed2",     Does(kCallsBack)},
    {"hangup3",     Does(kHangsUp)},
    {"refusevideo", RefusingVideo(Does(kAnswersSoon))},
    {"conference",  WithMembers(Does(kAnswersSoon), 3)},
    {"holder",      Does(kHolds)},
    {"voicemail",   Does(kForwards)},
    {"crash",       Does(kCrashes)},
    {"hang",        Does(kFreezes)},
    {"garbage",     Does(kTalksNonsense)},
    {"storm",       Does(kStorms)},
};
// clang-format on

const NameRow* FindName(std::string_view identity) {
  for (const NameRow& row : kNames) {
    if (row.name == identity) return &row;
  }
  return nullptr;
}

bool CanBeReached(const Object* contact) {
  if (contact == nullptr) return false;
  // Somebody who hides from the account can be called all the same.
  const int presence = contact->GetInt(contact::kPresence);
  const int availability = presence != 0 ? presence : contact->GetInt(contact::kAvailability);
  return availability != 0 && availability != contact::kPending && availability != contact::kOffline;
}

struct AnswerRow {
  std::string_view name;
  const char* before;  // what was said; null: nothing is answered
  int times;
};

// clang-format off
// Everybody else says that he has read it.
constexpr AnswerRow kAnswers[] = {
    {"sndtest",  "",              1},
    {"busy",     "Later! About ", 1},
    {"storm",    "",              200},
    {"noanswer", nullptr,         0},
};
// clang-format on
constexpr AnswerRow kOrdinaryAnswer = {"", "You wrote: ", 1};

struct FailureRow {
  int number;
  int reason;
  const char* words;
};

// clang-format off
constexpr FailureRow kFailures[] = {
    { 6102, 1,  "the call was ended"},
    { 6423, 2,  "the far end does not exist"},
    { 9401, 3,  "not enough credit"},
    { 9402, 4,  "payment is required"},
    { 9403, 5,  "the number cannot be called"},
    { 9407, 5,  "the number is not valid"},
    { 9408, 5,  "the number does not answer"},
    { 9409, 6,  "the number is blocked"},
    {10403, 7,  "the far end does not take calls from here"},
    {10404, 8,  "the far end cannot be found"},
    {10484, 9,  "the number is incomplete"},
    {10604, 10, "the far end is nowhere"},
    {13406, 11, "sound and pictures do not fit"},
};
// clang-format on

constexpr int kOtherReason = 12;

}  // namespace

bool IsMagicName(std::string_view identity) {
  return FindName(identity) != nullptr || FailureNumber(identity) != 0;
}

int FailureNumber(std::string_view identity) {
  constexpr std::size_t kPrefixSize = sizeof kFailPrefix - 1;
  if (identity.substr(0, kPrefixSize) != kFailPrefix) return 0;
  return ToInt(identity.substr(kPrefixSize));
}

FarEnd FarEndOf(std::string_view identity, const Object* contact) {
  if (const NameRow* row = FindName(identity)) return row->farEnd;
  if (FailureNumber(identity) != 0) return Does(kFails);
  if (TypeOfIdentity(identity) == IdentityType::Phone) {
    return Does(kAnswersAfterThree, FarSound::Tone, FarPicture::None);
  }
  return CanBeReached(contact) ? Does(kAnswersAfterThree) : Does(kRingsInVain);
}

FarEnd VoicemailFarEnd() { return Does(kRecords); }
FarEnd DeliveringFarEnd() { return Does(kDelivers); }

ChatAnswer ChatAnswerOf(std::string_view identity, const Object* contact, const std::string& said) {
  AnswerRow answer = kOrdinaryAnswer;
  for (const AnswerRow& row : kAnswers) {
    if (row.name == identity) answer = row;
  }
  if (answer.before == nullptr || (!IsMagicName(identity) && !CanBeReached(contact))) return {};
  return {answer.before + said, answer.times};
}

CallFailure FailureOf(int number) {
  for (const FailureRow& row : kFailures) {
    if (row.number == number) return {row.reason, std::to_string(number) + " " + row.words};
  }
  return {kOtherReason, std::to_string(number) + " the call failed"};
}

}  // namespace simulator
