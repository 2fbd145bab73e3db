// What becomes of an incoming call, and the alarms that forward it or let the next one in.
#include "Common/DecimalText.h"
#include "Common/Log.h"
#include "zelhost/ZelhostZeltoManager.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/apiwrapper/client/CAccount.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/calls/ZelhostCallManager.h"
#include "zelhost/contacts/ZelhostContactManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelhost::ServiceHostLock;

namespace {

constexpr int kCallsFromContactsOnly = 2;

constexpr std::int64_t kMicroseconds = 1'000'000;
// The widget's own count-down is seen to its end before the call goes.
constexpr int kForwardingGrace = 5;
// The widget needs a moment to leave a call's screens before the next call may ring.
constexpr int kSecondsBlockedAfterCall = 4;

int AccountNumber(int property) {
  return zelto::DecimalValue(CZelhostAccountManager::GetInstance()->GetAccountInfo(property));
}

bool IsSet(int setting) { return CZelhostLocalSetting::GetIntValue(setting) != 0; }

bool LetRing() {
  CZelhostHistoryManager::GetInstance()->StopPlayingVoicemail();
  return true;
}

}  // namespace

bool CZelhostCallManager::ProcessIncomingCallEvent() {
  if (IsRefusedByPolicy()) {
    CallEnd(false);
    return false;
  }
  if (!IsSet(kSettingCallForward) && !IsSet(kSettingSendToVoicemail)) return LetRing();
  return ForwardNowOrLater();
}

bool CZelhostCallManager::IsRefusedByPolicy() {
  if (m_blockingIncomingCall) {
    ZELTO_DEBUG("Reject by BlockIncomingCall");
    return true;
  }
  if (AccountNumber(Account::P_ZELTO_CALL_POLICY) == kCallsFromContactsOnly &&
      !CZelhostContactManager::GetInstance()->IsMyBuddy(m_members.Value(0, CallMember::P_IDENTITY))) {
    ZELTO_DEBUG("Reject by Call Policy");
    return true;
  }
  if (AccountNumber(Account::P_AVAILABILITY) == Account::AVAILABILITY_DO_NOT_DISTURB &&
      !CZelhostZeltoManager::GetInstance()->GetZeltoWidgetState()) {
    ZELTO_DEBUG("Reject by Online status : Do not disturb");
    return true;
  }
  return false;
}

bool CZelhostCallManager::ForwardNowOrLater() {
  const std::int64_t timeout = CZelhostLocalSetting::GetIntValue(kSettingNoAnswerTimeout);
  if (timeout == 0) {
    ForwardOrRedirect();
    return false;
  }
  if (timeout > 0) {
    m_forwardAlarm.Start((timeout + kForwardingGrace) * kMicroseconds, &t_CallForwardAlarmCallback);
  }
  return LetRing();
}

bool CZelhostCallManager::ForwardOrRedirect() {
  if (IsSet(kSettingCallForward)) {
    Forward();
  } else if (IsSet(kSettingSendToVoicemail)) {
    RedirectVoiceMail();
  } else {
    return false;
  }
  return true;
}

bool CZelhostCallManager::t_CallForwardAlarmCallback(const void* number) {
  ServiceHostLock lock("CallForwardAlarm");
  CZelhostCallManager* manager = m_instance.Existing();
  if (manager == nullptr || !manager->m_forwardAlarm.IsCurrent(number)) return false;
  if (!manager->ForwardOrRedirect()) ZELTO_FATAL("fowarding is not enabled");
  return true;
}

bool CZelhostCallManager::IsBlockingIncomingCall() {
  ServiceHostLock lock("IsBlockingIncomingCall");
  return m_blockingIncomingCall || m_state.ending;
}

bool CZelhostCallManager::BlockIncomingCall() {
  ServiceHostLock lock("BlockIncomingCall");
  if (g_lpZelto == nullptr) return false;
  m_blockingIncomingCall = true;
  if (m_unblockAlarm.Stop()) ZELTO_DEBUG("UnblockIncomingCallAlarm destroyed");
  return true;
}

bool CZelhostCallManager::UnblockIncomingCall(bool keep) {
  ServiceHostLock lock("UnblockIncomingCall");
  if (g_lpZelto == nullptr) return false;
  if (!keep) m_blockingIncomingCall = false;
  return true;
}

void CZelhostCallManager::BlockForAWhile() {
  if (m_blockingIncomingCall || !BlockIncomingCall()) return;
  m_unblockAlarm.Start(kSecondsBlockedAfterCall * kMicroseconds, &t_UnblockIncomingCallAlarmCallback);
}

bool CZelhostCallManager::t_UnblockIncomingCallAlarmCallback(const void* number) {
  ServiceHostLock lock("UnblockIncomingCallAlarm");
  CZelhostCallManager* manager = m_instance.Existing();
  if (manager == nullptr || !manager->m_unblockAlarm.IsCurrent(number)) return false;
  return manager->UnblockIncomingCall(false);
}
