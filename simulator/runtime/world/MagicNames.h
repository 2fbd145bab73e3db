// What happens when somebody is called or written to: by name for those whose name stands for something, by
// presence for the others.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "simulator/runtime/media/MediaPort.h"

namespace simulator {

class CallCourse;
struct Object;

// One step of a far end: after so many milliseconds it does something with that value.
struct CallStep {
  int milliseconds;
  bool (CallCourse::*act)(int);
  int value;
};

// How a far end behaves.
struct FarEnd {
  const CallStep* steps = nullptr;
  std::size_t stepCount = 0;
  FarSound sound = FarSound::Tone;
  FarPicture picture = FarPicture::TestPicture;
  int members = 1;  // of the call when it is answered
  bool refusesVideo = false;
};

// Whether something happens at this name whoever has it. Such names are always there to be called.
bool IsMagicName(std::string_view identity);

// The far end behind an identity in its normal form; `contact` may be null.
FarEnd FarEndOf(std::string_view identity, const Object* contact);
// One that takes a voicemail at once, and one that delivers what was recorded.
FarEnd VoicemailFarEnd();
FarEnd DeliveringFarEnd();

// What somebody answers in a chat to what was said there; `contact` may be null.
struct ChatAnswer {
  std::string text;
  int times = 0;  // 0: nothing is answered
};
ChatAnswer ChatAnswerOf(std::string_view identity, const Object* contact, const std::string& said);

// A failure's reason, of CALLMEMBER_FAILUREREASON_MAP, and its text, which begins with the number.
struct CallFailure {
  int reason;
  std::string text;
};
CallFailure FailureOf(int number);
// The number of "fail-NNNNN"; 0 for another name.
int FailureNumber(std::string_view identity);

}  // namespace simulator
