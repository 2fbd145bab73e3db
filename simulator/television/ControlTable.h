// The engine's control commands and what the television does on each. A command may have several rows.
#pragma once

namespace television {

enum class ControlEffect {
  Answer,     // answers the value
  AnswerOne,  // the value is a list; answers the entry whose number the first parameter is
  Store,      // the first parameter becomes the value, without one the text in `text`; answers "1"
  StoreAll,   // the parameters together become the value, without any the text in `text`; answers "1"
  Fixed,      // the text in `text` becomes the value; answers "1"
  Snapshot,   // the parameters become the value, the camera's picture a file; answers "1", "0" without a
              // picture
  LocalTime,  // the first parameter, seconds since the epoch, by strftime's format in `text`; kept as the
              // value
  EpochTime,  // answers the television's clock
};

struct ControlRow {
  const char* command;
  ControlEffect effect;
  const char* value;  // name of the value in TelevisionState
  const char* text;
};

// What the television does on an event.
struct EventRow {
  int type;
  const char* value;
  const char* text;  // becomes the value
};

struct StateRow {
  const char* name;
  const char* initial;
};

// clang-format off

// The values with which a television is switched on.
inline constexpr StateRow kInitialState[] = {
    {"model",            "ZTV-55"},
    {"autoStart",        "0"},
    {"language",         "12"},  // English
    {"clockOffset",      "0"},   // seconds that the television's clock is ahead of this machine's
    {"speakerVolume",    "20"},
    {"mainMixVolume",    "100"},
    {"subMixVolume",     "100"},
    {"speakerMuted",     "0"},
    {"receiverMuted",    "0"},
    {"doubleTalk",       "0"},
    {"multitasking",     "1"},
    {"embeddedCamera",   "0"},
    {"watchingTv",       "1"},
    {"micCount",         "2"},
    {"micDistances",     "45 20"},  // centimetres
    {"beamFormer",       "0"},
    {"cameraReady",      "1"},
    {"camera",           "off"},
    {"cameraLight",      "0"},
    {"cameraLightMode",  "0"},
    {"autoFocus",        "1"},
    {"preview",          "off"},
    {"cameraRect",       ""},
    {"extVideo",         "closed"},
    {"extVideoRect",     ""},
    {"extVideoDiscard",  "0"},
    {"extAudio",         "closed"},
    {"pig",              "off"},
    {"pipSource",        "tuner"},
    {"lastSource",       "TV"},
    {"afterSource",      ""},
    {"tvMode",           "0"},
    {"widgetState",      "0"},
    {"widget",           "closed"},
    {"widgetParam",      ""},
    {"enhancement",      "0"},
    {"call",             "none"},
    {"ring",             "none"},
    {"connecting",       "hidden"},
    {"helpbar",          "hidden"},
    {"recognition",      "1"},
    {"remoteInput",      ""},
    {"previousApp",      "0"},
    {"snapshotSize",     ""},
    {"emp",              "connected"},
    {"captureTest",      "0"},
    {"lastTime",         ""},    // the last time that was put into local form
};

inline constexpr ControlRow kControls[] = {
    // programmes, widgets, language, clock
    {"GetTVModel",                        ControlEffect::Answer,    "model",           ""},
    {"GetAutoStart",                      ControlEffect::Answer,    "autoStart",       ""},
    {"SetAutoStart",                      ControlEffect::Store,     "autoStart",       ""},
    {"GetCurrentLangID",                  ControlEffect::Answer,    "language",        ""},
    {"GetEpochTime",                      ControlEffect::EpochTime, "clockOffset",     ""},
    {"GetLocalTime",                      ControlEffect::LocalTime, "lastTime",        "%Y-%m-%d %H:%M:%S"},
    {"GetLocalTime12",                    ControlEffect::LocalTime, "lastTime",        "%Y-%m-%d %I:%M %p"},
    {"IsSupportMultitasking",             ControlEffect::Answer,    "multitasking",    ""},
    {"IsZeltoSupportMultitasking",        ControlEffect::Answer,    "multitasking",    ""},
    {"IsWidgetSupportMultitasking",       ControlEffect::Answer,    "multitasking",    ""},
    {"IsUserWatchingTV",                  ControlEffect::Answer,    "watchingTv",      ""},
    {"RunPreviousApp",                    ControlEffect::Fixed,     "previousApp",     "1"},
    {"StartWidget",                       ControlEffect::Fixed,     "widget",          "started"},
    {"StartWidgetWithParam",              ControlEffect::Store,     "widgetParam",     ""},
    {"SetWidgetState",                    ControlEffect::Store,     "widgetState",     ""},
    {"SetRemoteInputType",                ControlEffect::Store,     "remoteInput",     ""},
    {"StopRecognition",                   ControlEffect::Store,     "recognition",     ""},
    {"DisconnectEmp",                     ControlEffect::Fixed,     "emp",             "disconnected"},
    // sound
    {"GetSpeakerVolume",                  ControlEffect::Answer,    "speakerVolume",   ""},
    {"SetSpeakerVolume",                  ControlEffect::Store,     "speakerVolume",   ""},
    {"MuteSpeakerVolume",                 ControlEffect::Store,     "speakerMuted",    "0"},
    {"MuteReceiverSound",                 ControlEffect::Store,     "receiverMuted",   ""},
    {"GetMainMixAudioVolume",             ControlEffect::Answer,    "mainMixVolume",   ""},
    {"SetMainMixAudioVolume",             ControlEffect::Store,     "mainMixVolume",   ""},
    {"SetSubMixAudioVolume",              ControlEffect::Store,     "subMixVolume",    ""},
    {"SupportDoubleTalk",                 ControlEffect::Answer,    "doubleTalk",      ""},
    {"OpenExtAudio",                      ControlEffect::Fixed,     "extAudio",        "open"},
    {"CloseExtAudio",                     ControlEffect::Fixed,     "extAudio",        "closed"},
    // camera and microphones
    {"IsEmbeddedCamera",                  ControlEffect::Answer,    "embeddedCamera",  ""},
    {"GetCameraNumOfMic",                 ControlEffect::Answer,    "micCount",        ""},
    {"GetCameraMicDistance",              ControlEffect::AnswerOne, "micDistances",    ""},
    {"IsCameraBeamFormerEnabled",         ControlEffect::Answer,    "beamFormer",      ""},
    {"IsCameraReady",                     ControlEffect::Answer,    "cameraReady",     ""},
    {"StartCamera",                       ControlEffect::Fixed,     "camera",          "on"},
    {"StopCamera",                        ControlEffect::Fixed,     "camera",          "off"},
    {"CaptureTest",                       ControlEffect::Fixed,     "captureTest",     "1"},
    {"IsCameraLightSupported",            ControlEffect::Answer,    "cameraLight",     ""},
    {"SetCameraLightMode",                ControlEffect::Store,     "cameraLightMode", ""},
    {"SetAutoFocus",                      ControlEffect::Store,     "autoFocus",       ""},
    {"StartPreview",                      ControlEffect::StoreAll,  "preview",         "on"},
    {"StopPreview",                       ControlEffect::Fixed,     "preview",         "off"},
    {"SetCamVideoSize",                   ControlEffect::StoreAll,  "cameraRect",      ""},
    // video of the far end, picture layout
    {"OpenExtVideo",                      ControlEffect::Fixed,     "extVideo",        "open"},
    {"StartExtVideo",                     ControlEffect::Fixed,     "extVideo",        "started"},
    {"CloseExtVideo",                     ControlEffect::Fixed,     "extVideo",        "closed"},
    {"ReleaseMixVideo",                   ControlEffect::Fixed,     "extVideo",        "closed"},
    {"SetExtVideoSize",                   ControlEffect::StoreAll,  "extVideoRect",    ""},
    {"DiscardExtVideoRenderCommand",      ControlEffect::Store,     "extVideoDiscard", ""},
    {"StartPIGMode",                      ControlEffect::StoreAll,  "pig",             "on"},
    {"StopPIGMode",                       ControlEffect::Fixed,     "pig",             "off"},
    {"SetPIPSourceMedia",                 ControlEffect::Fixed,     "pipSource",       "call"},
    {"RegisterAfterSourceChangeCallback", ControlEffect::Store,     "afterSource",     ""},
    {"GetLastSourceMode",                 ControlEffect::Answer,    "lastSource",      ""},
    {"SetTVMode",                         ControlEffect::Store,     "tvMode",          ""},
    {"SetMoIPVideoEnhancement",           ControlEffect::Store,     "enhancement",     ""},
    {"MinimizeSnapShot",                  ControlEffect::Snapshot,  "snapshotSize",    ""},
    // call
    {"StartCall",                         ControlEffect::Fixed,     "call",            "full screen"},
    {"StartCallWithTV",                   ControlEffect::Fixed,     "call",            "with programme"},
    {"StopCall",                          ControlEffect::Fixed,     "call",            "none"},
    {"StopCallWithTV",                    ControlEffect::Fixed,     "call",            "none"},
    {"StopCallWithTV",                    ControlEffect::Fixed,     "pipSource",       "tuner"},
    {"HideVoiceHelpbar",                  ControlEffect::Fixed,     "helpbar",         "hidden"},
};

inline constexpr EventRow kEventEffects[] = {
    {7, "ring", "incoming"},
    {8, "ring", "outgoing"},
    {9, "ring", "none"},
    {23, "connecting", "shown"},
    {24, "connecting", "hidden"},
};

// clang-format on

}  // namespace television
