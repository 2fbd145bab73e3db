// The notices: what each says and offers. Rows of the same number are told apart by their condition; the
// first one whose condition holds is shown.
#pragma once

#include "Common/NoticeSteps.h"
#include "Common/ZeltoTexts.h"

namespace zelto::notices {

struct Button {
  int label = -1;                 // number of a text; -1: no button
  const char* command = nullptr;  // that the host executes; null: the button only closes the notice
};

struct Notice {
  int id;
  bool (*when)();
  int shownAs;   // the number that the host gets: a conference's invitation is hidden like a call's
  int duration;  // milliseconds on the screen; 0 until it is hidden
  Write title;
  Write description;
  int text;  // the description's
  Button buttons[3];
};

inline constexpr int kShort = 3'000;
inline constexpr int kLong = 10'000;
inline constexpr int kAnHour = 3'600'000;
inline constexpr int kDurationNotice = 6;
inline constexpr int kNoticeCount = 9;

// clang-format off
inline constexpr Notice kNotices[] = {
    {0, IsCameraReady, 0, 0,       Product,    NamingCaller,   kTextCalling,
        {{kTextVideoCall, "AnswerWithVideo"}, {kTextVoiceCall, "AnswerWithVoice"}, {kTextDecline, "RejectCall"}}},
    {0, Always,        0, 0,       Product,    NamingCaller,   kTextCalling,
        {{kTextVoiceCall, "AnswerWithVoice"}, {kTextDecline, "RejectCall"}}},
    {1, Always,        0, 0,       Product,    NamingCaller,   kTextConferenceInvitation,
        {{kTextAnswer, "AnswerWithVoice"}, {kTextDecline, "CallEnd"}}},
    {2, Always,        2, kShort,  Product,    Plain,          kTextSignedIn,          {}},
    {3, Always,        3, kLong,   Product,    NamingOnlined,  kTextIsOnline,          {{kTextOk}}},
    {4, Always,        4, kLong,   Product,    Plain,          kTextNewVoicemail,      {{kTextOk}}},
    {5, Always,        5, kLong,   Product,    Plain,          kTextNewContactRequest, {{kTextOk}}},
    {6, Always,        6, kShort,  CallerName, Duration,       kTextOk,
        {{kTextEndCall, "CallEnd"}, {kTextGoToProduct, "StartWidget"}}},
    {7, HasOneMissed,  7, kAnHour, Product,    NamingMissed,   kTextMissedCall,
        {{kTextGoToProduct, "CheckMissedCall"}}},
    {7, Always,        7, kAnHour, Product,    CountingMissed, kTextMissedCalls,
        {{kTextGoToProduct, "CheckMissedCall"}}},
    {8, Always,        8, kLong,   Product,    Plain,          kTextCallEnded,         {{kTextOk}}},
};
// clang-format on

}  // namespace zelto::notices
