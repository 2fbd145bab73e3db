// The engine's own reactions, ordered by event; those to one event run from top to bottom.
#pragma once

#include "Common/EventReactionSteps.h"
#include "Common/ZeltoManager.h"

namespace zelto::reactions {

struct Reaction {
  int type;
  bool (*when)();
  Step step;
  int argument;
};

using E = EngineEventTypes;

// clang-format off
inline constexpr Reaction kReactions[] = {
  {E::ACCOUNT_LOGGED_IN,            Always,                                    SetLoggedIn,          1},
  {E::ACCOUNT_LOGGED_IN,            Always,                                    SendPublic,           E::PUBLIC_SIGNED_IN},
  {E::ACCOUNT_LOGGED_IN,            CZeltoManager::CheckShowSignedInPopup,     Show,                 2},
  {E::ACCOUNT_LOGGED_OUT,           Always,                                    SetLoggedIn,          0},
  {E::ACCOUNT_LOGGED_OUT,           Always,                                    ForgetSignInPopup,    0},
  {E::ACCOUNT_LOGGED_OUT,           Always,                                    SendPublic,           E::PUBLIC_SIGNED_OUT},
  {E::ACCOUNT_LOGGED_OUT,           Always,                                    HideAll,              0},
  {E::CALLMEMBER_STATUS_6,          Always,                                    SendPublic,           E::PUBLIC_OUTGOING_RING},
  {E::CALLMEMBER_STATUS_6,          IsWidgetShown,                             UnmuteSpeaker,        0},
  {E::CALLMEMBER_INPROGRESS,        Always,                                    SendPublic,           E::PUBLIC_RING_STOPPED},
  {E::INCOMING_CALL,                HostPresentsCalls,                         ShowIncoming,         0},
  {E::INCOMING_CALL,                Always,                                    SendPublic,           E::PUBLIC_INCOMING_RING},
  {E::INCOMING_CALL,                IsWidgetShown,                             UnmuteSpeaker,        0},
  {E::CALLMEMBER_STATUS_15,         Always,                                    Hide,                 6},
  {E::CONTACT_AUTHREQUEST_RECEIVED, IsNoCallUp,                                Show,                 5},
  {E::INCOMING_CONFERENCE_CALL,     HostPresentsCalls,                         ShowIncoming,         1},
  {E::INCOMING_CONFERENCE_CALL,     Always,                                    SendPublic,           E::PUBLIC_INCOMING_RING},
  {E::INCOMING_CONFERENCE_CALL,     IsWidgetShown,                             UnmuteSpeaker,        0},
  {E::CONFERENCE_CALL_ENDED,        Always,                                    Hide,                 6},
  {E::CONFERENCE_CALL_ENDED,        Always,                                    Hide,                 0},
  {E::CONFERENCE_CALL_ENDED,        Always,                                    SendPublic,           E::PUBLIC_RING_STOPPED},
  {E::INCOMING_VOICEMAIL,           IsNoCallUp,                                Show,                 4},
  {E::CALL_ENDED,                   Always,                                    Hide,                 6},
  {E::CALL_ENDED,                   Always,                                    Hide,                 0},
  {E::CALL_ENDED,                   Always,                                    SendPublic,           E::PUBLIC_RING_STOPPED},
  {E::CALL_ENDED_OTHER,             Always,                                    Hide,                 6},
  {E::CALL_DURATION,                CZeltoManager::CheckShowCallDurationPopup, Show,                 6},
  {E::ACCOUNT_AVAILABILITY_CHANGED, Always,                                    SetOnline,            3},
  {E::ACCOUNT_AVAILABILITY_CHANGED, CZeltoManager::CheckShowSignedInPopup,     Show,                 2},
  {E::CONTACT_STATUS_CHANGED,       Always,                                    ReportContactStatus,  0},
  {E::CONTACT_STATUS_CHANGED,       Always,                                    ShowContactOnline,    3},
  {E::ZELTO_RUNTIME_READY,          Always,                                    SendPublic,           E::PUBLIC_RUNTIME_READY},
  {E::ZELTO_RUNTIME_READY,          CZeltoManager::GetAutoStart,               SignInAutomatically,  0},
  {E::HISTORY_CHANGED,              IsWidgetHidden,                            SendPublic,           E::PUBLIC_HISTORY_OR_WIDGET},
  {E::CONNECTING_WND_HIDDEN,        Always,                                    SendPublic,           E::PUBLIC_CONNECTING_HIDDEN},
  {E::CONNECTING_WND_HIDDEN,        IsCallUp,                                  UnmuteForCall,        0},
  {E::CONNECTING_WND_HIDDEN,        Always,                                    RestoreSpeaker,       0},
  {E::CONNECTING_WND_SHOWN,         IsCallUp,                                  SilenceSpeaker,       0},
  {E::CONNECTING_WND_SHOWN,         Always,                                    ShowConnectingScreen, 0},
  {E::CALL_ENDED_POPUP,             CZeltoManager::CheckShowCallEndedPopup,    Show,                 8},
  {E::MISSED_CALL,                  CZeltoManager::CheckShowMissedCallPopup,   ShowAgain,            7},
  {E::MISSED_CALLS_READ,            MayNotShowMissedCall,                      Hide,                 7},
};
// clang-format on

inline constexpr int kLastReaction = E::MISSED_CALLS_READ;

}  // namespace zelto::reactions
