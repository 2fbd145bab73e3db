// The settings that the engine keeps in the runtime's store, by index. The numbers are part of the
// interface to the commands that read and write settings directly.
#pragma once

enum LocalSetting {
  kSettingInitialized = 0,
  kSettingMaxKeep = 1,
  kSettingAutoLogin = 2,
  kSettingLastLoggedInId = 3,
  kSettingLoggedInId1 = 4,  // to kSettingLoggedInId1 + kLoggedInIds - 1
  kSettingAutoMic = 9,
  kSettingMicVolume = 10,
  kSettingSpeakerVolume = 11,
  kSettingVoicemailForReject = 12,
  kSettingVoicemailForBusy = 13,
  kSettingAccountInitialized = 14,
  kSettingVideoReceivePolicy = 15,
  kSettingVideoAdvertPolicy = 16,
  kSettingVideoDisable = 17,
  kSettingNoAnswerTimeout = 18,
  kSettingCallForward = 19,
  kSettingSendToVoicemail = 20,
  kSettingIgnoreReadChat = 21,
  kSettingAutoHz = 22,
  kSettingAutoFocus = 23,
  kSettingNotificationPopup = 24,
  kSettingCameraCheckDisable = 25,
  kSettingCameraLightMode = 26,
  kSettingLoginMode = 27,
  kSettingAutoTracking = 28,
  kSettingZoom = 29,
  kSettingPan = 30,
  kSettingTilt = 31,
  kSettingTvMixRatio = 32,
};

inline constexpr int kLocalSettings = 33;
inline constexpr int kLoggedInIds = 5;
