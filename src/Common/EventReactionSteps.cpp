#include "Common/EventReactionSteps.h"

#include <string>

#include "Common/AccountManager.h"
#include "Common/CallManager.h"
#include "Common/ContactManager.h"
#include "Common/DecimalText.h"
#include "Common/Log.h"
#include "Common/ZeltoManager.h"

// Managers are asked under the service-host mutex, so that nobody unloads them meanwhile; the host is told
// after it has been released.
namespace zelto::reactions {
namespace {

constexpr int kCallEndedNotice = 8;
constexpr int kAvailabilityOnline = 7;  // of a contact

}  // namespace

bool Always() { return true; }
bool IsWidgetShown() { return CZeltoManager::GetZeltoWidgetState(); }
bool IsWidgetHidden() { return !IsWidgetShown(); }
bool IsNoCallUp() { return !IsCallUp(); }
bool HostPresentsCalls() { return !CZeltoManager::WidgetHandleIncomingCall() || IsWidgetHidden(); }
bool MayNotShowMissedCall() { return !CZeltoManager::CheckShowMissedCallPopup(); }

bool IsCallUp() {
  zelhost::ServiceHostLock lock("IsCallUp");
  return CCallManager::HasManager() && CCallManager::GetInstance()->IsInCall();
}

void SendPublic(const CZeltoEvent&, int number, ReactionState&) {
  CZeltoManager::NotifyHardwiredEvent(static_cast<unsigned>(number), nullptr, nullptr);
}

void Show(const CZeltoEvent& event, int notice, ReactionState&) {
  CZeltoManager::ShowNotification(notice, event.param);
}

void Hide(const CZeltoEvent&, int notice, ReactionState&) { CZeltoManager::HideNotification(notice); }

void ShowAgain(const CZeltoEvent& event, int notice, ReactionState&) {
  CZeltoManager::HideNotification(notice);
  CZeltoManager::ShowNotification(notice, event.param);
}

void ShowIncoming(const CZeltoEvent& event, int notice, ReactionState&) {
  CZeltoManager::HideNotification(kCallEndedNotice);
  CZeltoManager::ShowNotification(notice, event.param);
}

void HideAll(const CZeltoEvent&, int, ReactionState&) { CZeltoManager::HideAllNotification(); }

void SetLoggedIn(const CZeltoEvent&, int loggedIn, ReactionState&) {
  CZeltoManager::SetLoggedInState(loggedIn != 0);
}

void ForgetSignInPopup(const CZeltoEvent&, int, ReactionState&) {
  CZeltoManager::SetSigninPopupShowState(false);
}

void SetOnline(const CZeltoEvent& event, int availability, ReactionState&) {
  CZeltoManager::SetOnlineState(event.param == availability);
}

void ReportContactStatus(const CZeltoEvent&, int, ReactionState&) {
  std::string contact;
  std::string status;
  {
    zelhost::ServiceHostLock lock("ReportContactStatus");
    if (!CContactManager::HasManager()) return;
    CContactManager* contacts = CContactManager::GetInstance();
    const char* name = contacts->GetStateChangedContact();
    if (name == nullptr) return;
    contact = name;
    status = std::to_string(contacts->GetContactStatus(contact.c_str()));
  }
  CZeltoManager::NotifyHardwiredEvent(EngineEventTypes::PUBLIC_CONTACT_AVAILABILITY, contact.c_str(),
                                      status.c_str());
}

void ShowContactOnline(const CZeltoEvent& event, int notice, ReactionState&) {
  if (event.param != kAvailabilityOnline || !CZeltoManager::CheckShowOnlinePopup()) return;
  CZeltoManager::ShowNotification(notice, event.param);
}

void SignInAutomatically(const CZeltoEvent&, int, ReactionState&) {
  zelhost::ServiceHostLock lock("SignInAutomatically");
  CAccountManager* account = CAccountManager::GetInstance();
  if (account->GetLoginState() == 0) account->Login(nullptr, nullptr, true);
}

void UnmuteSpeaker(const CZeltoEvent&, int, ReactionState&) {
  CZeltoManager::CallCommonControl("MuteSpeakerVolume", "0");
}

void UnmuteForCall(const CZeltoEvent& event, int argument, ReactionState& state) {
  ZELTO_DEBUG("!!!!!! UnMuteSpeakerVolume !!!!!");
  UnmuteSpeaker(event, argument, state);
}

// Also when the call is over by now: otherwise the speaker would stay silent.
void RestoreSpeaker(const CZeltoEvent&, int, ReactionState& state) {
  if (state.savedSpeakerVolume <= 0) return;
  CZeltoManager::CallCommonControl("SetSpeakerVolume", std::to_string(state.savedSpeakerVolume).c_str());
  state.savedSpeakerVolume = 0;
}

void SilenceSpeaker(const CZeltoEvent&, int, ReactionState& state) {
  ZELTO_DEBUG("!!!!!! MuteSpeakerVolume !!!!!");
  const int volume = DecimalValue(CZeltoManager::CallCommonControl("GetSpeakerVolume").c_str());
  // A second screen finds the speaker silent already: what the first one saved stays.
  if (volume > 0) state.savedSpeakerVolume = volume;
  CZeltoManager::CallCommonControl("SetSpeakerVolume", "0");
}

void ShowConnectingScreen(const CZeltoEvent&, int, ReactionState&) {
  CZeltoManager::NotifyHardwiredEvent(EngineEventTypes::PUBLIC_CONNECTING_SHOWN, "Resource/zelto_bg.png",
                                      nullptr);
}

}  // namespace zelto::reactions
