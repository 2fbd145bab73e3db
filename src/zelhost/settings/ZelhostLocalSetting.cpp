#include "zelhost/settings/ZelhostLocalSetting.h"

#include <algorithm>
#include <array>

#include "Common/Log.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/media/ZelhostIPCManager.h"
#include "zelhost/settings/LocalSettingTable.h"

namespace {

// Null when the setting can't be reached: no such index, or no runtime.
const char* ReachableKey(int index) {
  if (index < 0 || index >= kLocalSettings || g_lpZelto == nullptr) return nullptr;
  return kLocalSettingKeys[index];
}

template <std::size_t kCount>
void WriteDefaults(const LocalSettingDefault (&defaults)[kCount]) {
  for (const LocalSettingDefault& setting : defaults) {
    if (setting.text != nullptr) {
      CZelhostLocalSetting::SetStrValue(setting.index, setting.text);
    } else {
      CZelhostLocalSetting::SetIntValue(setting.index, setting.number);
    }
  }
}

}  // namespace

int CZelhostLocalSetting::GetIntValue(int index) {
  zelhost::ServiceHostLock lock("GetIntValue");
  const char* key = ReachableKey(index);
  return key == nullptr ? 0 : g_lpZelto->GetInt(key);
}

ZEString CZelhostLocalSetting::GetStrValue(int index) {
  zelhost::ServiceHostLock lock("GetStrValue");
  const char* key = ReachableKey(index);
  return key == nullptr ? ZEString() : g_lpZelto->GetStr(key);
}

void CZelhostLocalSetting::SetIntValue(int index, int value) {
  zelhost::ServiceHostLock lock("SetIntValue");
  const char* key = ReachableKey(index);
  if (key == nullptr) return;
  g_lpZelto->SetInt(key, value);
  if (index == kSettingAutoMic) CZelhostIPCManager::GetInstance()->SetAutoMic(value != 0);
}

void CZelhostLocalSetting::SetStrValue(int index, const ZEString& value) {
  zelhost::ServiceHostLock lock("SetStrValue");
  const char* key = ReachableKey(index);
  if (key != nullptr) g_lpZelto->SetStr(key, value);
}

bool CZelhostLocalSetting::IsInitialized() {
  const int initialized = GetIntValue(kSettingInitialized);
  ZELTO_DEBUG("IsInitialized = %d \n", initialized);
  return initialized != 0;
}

void CZelhostLocalSetting::Initialize() {
  zelhost::ServiceHostLock lock("Initialize");
  WriteDefaults(kTelevisionDefaults);
  ZELTO_DEBUG("UISetting is Initialized ");
}

int CZelhostLocalSetting::PersonalInitialize() {
  zelhost::ServiceHostLock lock("PersonalInitialize");
  ZELTO_INFO("PersonalInitialize ");
  WriteDefaults(kAccountDefaults);
  return g_lpZelto == nullptr ? 0 : 1;
}

int CZelhostLocalSetting::CheckInitPersonalData() {
  zelhost::ServiceHostLock lock("CheckInitPersonalData");
  const int initialized = GetIntValue(kSettingAccountInitialized);
  if (initialized != 0) return initialized;
  ZELTO_DEBUG("Personal Data Not Setting !!");
  return PersonalInitialize();
}

// Most recent first: the name goes to the front and those before its old place move down by one; without
// an old place the oldest name falls out.
void CZelhostLocalSetting::SaveLoggedInID(const ZEString& name) {
  zelhost::ServiceHostLock lock("SaveLoggedInID");
  SetStrValue(kSettingLastLoggedInId, name);
  std::array<ZEString, kLoggedInIds> names;
  for (int slot = 0; slot < kLoggedInIds; ++slot) {
    names[static_cast<std::size_t>(slot)] = GetStrValue(kSettingLoggedInId1 + slot);
  }
  auto old = std::find(names.begin(), names.end(), name);
  if (old != names.end()) {
    ZELTO_DEBUG("loggedInID[i] == m_StrZeltoName");
  } else {
    old = names.end() - 1;
  }
  std::rotate(names.begin(), old, old + 1);
  names[0] = name;
  for (int slot = 0; slot < kLoggedInIds; ++slot) {
    SetStrValue(kSettingLoggedInId1 + slot, names[static_cast<std::size_t>(slot)]);
  }
}
