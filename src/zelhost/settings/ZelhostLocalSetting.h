#pragma once

#include "apiwrapper/ZEString.h"
#include "zelhost/settings/LocalSettingKeys.h"

// The one way to the settings, which live in the runtime's key-value store.
// Threads: any; every operation holds the service-host mutex while it asks the runtime. Without a root
// object reads answer 0 or the null text and writes are dropped. Indexes outside the table answer the
// same and write nothing.
class CZelhostLocalSetting {
 public:
  static int GetIntValue(int index);
  static ZEString GetStrValue(int index);
  // Writing kSettingAutoMic also switches the automatic microphone of the media bridge.
  static void SetIntValue(int index, int value);
  static void SetStrValue(int index, const ZEString& value);

  // Whether the television's defaults have been written.
  static bool IsInitialized();
  // Writes the television's defaults; the flag that says so goes last.
  static void Initialize();
  // Writes the signed-in account's defaults; the flag that says so goes last. Answers the flag: 1, or 0
  // without a root object.
  static int PersonalInitialize();
  // The same when the flag is not set yet. Answers the flag.
  static int CheckInitPersonalData();
  // Puts a name in front of the five most recent ones and remembers it as the last.
  static void SaveLoggedInID(const ZEString& name);
};
