// How loud the call and the programme are.
#include <algorithm>

#include "zelhost/Television.h"
#include "zelhost/ZelhostZeltoManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

namespace {

// Answers what the television was told.
int SendVolume(const char* control, int volume) {
  const int sent = std::clamp(volume, 0, CZelhostZeltoManager::kLoudest);
  zelhost::Tell(control, zelhost::Decimal(sent).Text());
  return sent;
}

}  // namespace

void CZelhostZeltoManager::SetSpeakerVolume(int volume) { SendVolume("SetSpeakerVolume", volume); }
void CZelhostZeltoManager::SetCallMixVolume(int volume) {
  CZelhostLocalSetting::SetIntValue(kSettingSpeakerVolume, SendVolume("SetSubMixAudioVolume", volume));
}
void CZelhostZeltoManager::SetTVMixVolume(int volume) {
  m_tvAudioMixed = true;
  CZelhostLocalSetting::SetIntValue(kSettingTvMixRatio, SendVolume("SetMainMixAudioVolume", volume));
}

int CZelhostZeltoManager::GetSpeakerVolume() { return zelhost::AskNumber("GetSpeakerVolume"); }
int CZelhostZeltoManager::GetCallMixVolume() {
  return CZelhostLocalSetting::GetIntValue(kSettingSpeakerVolume);
}
int CZelhostZeltoManager::GetTVMixVolume() { return zelhost::AskNumber("GetMainMixAudioVolume"); }
