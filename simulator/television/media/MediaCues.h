// By which of the engine's control calls the television knows when its microphone and its camera are wanted.
#pragma once

namespace television {

enum class Cue { Call, NoCall, Camera, NoCamera };

struct MediaCue {
  const char* command;
  Cue cue;
};

// The camera sends within a call only. A camera's size comes with each begin of sending, preview or not; a
// preview alone is shown while a call rings as well. The end of sending takes the preview away, and where
// there is none, beside a programme, the far end's picture is released when the widget closes.
// clang-format off
inline constexpr MediaCue kMediaCues[] = {
    {"StartCall",       Cue::Call},
    {"StartCallWithTV", Cue::Call},
    {"StopCall",        Cue::NoCall},
    {"StopCallWithTV",  Cue::NoCall},
    {"SetCamVideoSize", Cue::Camera},
    {"StopPreview",     Cue::NoCamera},
    {"ReleaseMixVideo", Cue::NoCamera},
};
// clang-format on

}  // namespace television
