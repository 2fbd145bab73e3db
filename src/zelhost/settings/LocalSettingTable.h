// The settings' keys in the runtime's store, and what a fresh store is filled with.
#pragma once

#include "zelhost/settings/LocalSettingKeys.h"

// By index. Keys that begin with "*" are the television's, the others belong to the signed-in account.
// clang-format off
inline constexpr const char* kLocalSettingKeys[] = {
    /*  0 */ "*UI/IsInitialized",
    /*  1 */ "*Lib/Account/MaxKeep",
    /*  2 */ "*UI/Login/AutoLoginZeltoStart",
    /*  3 */ "*UI/Login/LastLoggedInID",
    /*  4 */ "*UI/Login/LoggedInID1",
    /*  5 */ "*UI/Login/LoggedInID2",
    /*  6 */ "*UI/Login/LoggedInID3",
    /*  7 */ "*UI/Login/LoggedInID4",
    /*  8 */ "*UI/Login/LoggedInID5",
    /*  9 */ "*UI/Setting/AutoMicSetting",
    /* 10 */ "*UI/Setting/MIC_VOLUME",
    /* 11 */ "*UI/Setting/SPK_VOLUME",
    /* 12 */ "*UI/Setting/VMforRejectIncomingCall",
    /* 13 */ "*UI/Setting/VMforBusy",
    /* 14 */ "Lib/Account/IsInitialized",
    /* 15 */ "Lib/Video/RecvPolicy",
    /* 16 */ "Lib/Video/AdvertPolicy",
    /* 17 */ "Lib/Video/Disable",
    /* 18 */ "Lib/Call/NoAnswerTimeout",
    /* 19 */ "Lib/Call/ApplyCF",
    /* 20 */ "Lib/Call/SendToVM",
    /* 21 */ "*Lib/Chat/IgnoreReadChatMsg",
    /* 22 */ "*UI/Setting/AUTO_HZ",
    /* 23 */ "*UI/Setting/AUTO_FOCUS",
    /* 24 */ "*UI/Setting/NOTIFICATION_POPUP",
    /* 25 */ "Lib/Account/CAMERA_CHECK_DISABLE",
    /* 26 */ "*UI/Setting/CAMERA_LIGHT_MODE",
    /* 27 */ "*UI/Setting/LOGIN_MODE",
    /* 28 */ "*UI/Setting/AUTO_TRACKING",
    /* 29 */ "*UI/Setting/ZOOM",
    /* 30 */ "*UI/Setting/PAN",
    /* 31 */ "*UI/Setting/TILT",
    /* 32 */ "*UI/Setting/TV_MIX_RATIO",
};

// A value to write; `text` is null for a number.
struct LocalSettingDefault {
  int index;
  int number;
  const char* text;
};

// In the order of writing; the flag that says "done" goes last, so that an interrupted run is repeated.
inline constexpr LocalSettingDefault kTelevisionDefaults[] = {
    {kSettingMaxKeep,             5, nullptr},
    {kSettingAutoLogin,           0, nullptr},
    {kSettingLastLoggedInId,      0, ""},
    {kSettingVoicemailForReject,  0, nullptr},
    {kSettingVoicemailForBusy,    0, nullptr},
    {kSettingAutoMic,             1, nullptr},
    {kSettingMicVolume,          90, nullptr},
    {kSettingSpeakerVolume,      50, nullptr},
    {kSettingAutoHz,              0, nullptr},
    {kSettingAutoFocus,           1, nullptr},
    {kSettingNotificationPopup,   0, nullptr},
    {kSettingIgnoreReadChat,      1, nullptr},
    {kSettingLoginMode,           0, nullptr},
    {kSettingAutoTracking,        0, nullptr},
    {kSettingZoom,                0, nullptr},
    {kSettingPan,                 0, "0"},
    {kSettingTilt,                0, "0"},
    {kSettingTvMixRatio,         50, nullptr},
    {kSettingInitialized,         1, nullptr},
};

inline constexpr LocalSettingDefault kAccountDefaults[] = {
    {kSettingVideoReceivePolicy,    0, "contacts"},
    {kSettingVideoAdvertPolicy,     0, "contacts"},
    {kSettingVideoDisable,          0, nullptr},
    {kSettingCallForward,           0, nullptr},
    {kSettingNoAnswerTimeout,     120, nullptr},
    {kSettingSendToVoicemail,       0, nullptr},
    {kSettingCameraCheckDisable,    0, nullptr},
    {kSettingCameraLightMode,       2, nullptr},
    {kSettingAccountInitialized,    1, nullptr},
};
// clang-format on

static_assert(sizeof kLocalSettingKeys / sizeof kLocalSettingKeys[0] == kLocalSettings, "one key per index");
static_assert(sizeof kTelevisionDefaults / sizeof kTelevisionDefaults[0] == 19, "all of the television's");
static_assert(sizeof kAccountDefaults / sizeof kAccountDefaults[0] == 9, "all of the account's");
