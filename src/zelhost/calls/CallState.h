// What the engine knows of the present call beside the call itself.
#pragma once

// Kinds of calls, as the widget counts them.
inline constexpr int kNoCallType = -1;
inline constexpr int kVoiceCall = 0;
inline constexpr int kVideoCall = 1;

inline constexpr int kNoPendingAnswer = -1;

// What of the media bridge a call and a voicemail use.
inline constexpr int kExchangeAll = 1;
inline constexpr int kExchangeAudio = 2;

// Begins anew as a whole with the end of every call.
struct CallState {
  int type = kNoCallType;
  int pendingAnswer = kNoPendingAnswer;  // the kind of the answer once the widget is there
  bool leavingVoicemail = false;
  bool onHold = false;
  bool inProgress = false;       // has been, whether or not it is on hold since
  bool ending = false;           // the runtime has ended it, the engine has not cleared it away
  bool hostCallStarted = false;  // the television shows the call, or plays a voicemail

  bool tvSourceMode = false;  // pictures go where the programme stays visible
  bool previewShown = false;
  bool sendingVideo = false;  // the user wants to
  bool receivingVideo = false;

  // Sending begins once both are known; it has begun when the third is set.
  bool sendVideoAvailable = false;
  bool memberVideoPropertySeen = false;
  bool sendingStarted = false;
  bool memberVideoAvailable = false;

  // What was last said about who speaks.
  int speakingMember = 0;
  bool speaking = false;
};
