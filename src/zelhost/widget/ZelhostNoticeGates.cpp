// When a notice must stay away: while the widget or a call is on the screen.
#include "Common/EventReactionSteps.h"
#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/ZelhostZeltoManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelto::reactions::IsCallUp;

namespace {

bool Allow(const char* notice) {
  ZELTO_DEBUG("Please Show [%s] Noti ", notice);
  return true;
}

bool Refuse(const char* notice, const char* reason) {
  ZELTO_DEBUG("No [%s] Noti - %s", notice, reason);
  return false;
}

}  // namespace

bool CZelhostZeltoManager::CheckShowSignedInPopup() {
  if (!m_loggedIn || !m_online || m_signinPopupShown.exchange(true)) return false;
  if (IsCallUp()) return Refuse("SignIn", "call");
  if (GetZeltoWidgetState()) return Refuse("SignIn", "widget ");
  return Allow("SignIn");
}

bool CZelhostZeltoManager::CheckShowOnlinePopup() {
  if (IsCallUp()) return Refuse("Online", "call");
  if (GetZeltoWidgetState()) return Refuse("Online", "widget ");
  if (CZelhostLocalSetting::GetIntValue(kSettingNotificationPopup) == 0) return Refuse("Online", "disabled ");
  return Allow("Online");
}

bool CZelhostZeltoManager::CheckShowCallDurationPopup() {
  if (GetZeltoWidgetState() || CZeltoManager::IsWidgetStarted()) return false;
  return IsCallUp() || Refuse("Call Duration", "is not calling");
}

bool CZelhostZeltoManager::CheckShowCallEndedPopup() {
  return GetZeltoWidgetState() ? Refuse("Call Ended", "widget ") : Allow("Call Ended");
}

bool CZelhostZeltoManager::CheckShowMissedCallPopup() {
  return GetZeltoWidgetState() ? Refuse("Missed Call", "widget ") : Allow("Missed Call");
}
