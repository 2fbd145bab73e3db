// The small functions that the reaction table is made of.
#pragma once

#include "Common/EventReactions.h"

namespace zelto::reactions {

// --- Conditions.

bool Always();
bool IsWidgetShown();
bool IsWidgetHidden();
bool IsCallUp();
bool IsNoCallUp();
// Whether the host, and not the widget on the screen, presents incoming calls.
bool HostPresentsCalls();
bool MayNotShowMissedCall();

// --- Steps. The argument is the table row's.

using Step = void (*)(const CZeltoEvent& event, int argument, ReactionState& state);

void SendPublic(const CZeltoEvent&, int number, ReactionState&);
void Show(const CZeltoEvent& event, int notice, ReactionState&);
void Hide(const CZeltoEvent&, int notice, ReactionState&);
void ShowAgain(const CZeltoEvent& event, int notice, ReactionState&);
// An incoming call's notice takes the place of the one that says that a call has ended.
void ShowIncoming(const CZeltoEvent& event, int notice, ReactionState&);
void HideAll(const CZeltoEvent&, int, ReactionState&);

void SetLoggedIn(const CZeltoEvent&, int loggedIn, ReactionState&);
void ForgetSignInPopup(const CZeltoEvent&, int, ReactionState&);
void SetOnline(const CZeltoEvent& event, int availability, ReactionState&);
void ReportContactStatus(const CZeltoEvent&, int, ReactionState&);
void ShowContactOnline(const CZeltoEvent& event, int notice, ReactionState&);
void SignInAutomatically(const CZeltoEvent&, int, ReactionState&);

void UnmuteSpeaker(const CZeltoEvent&, int, ReactionState&);
void UnmuteForCall(const CZeltoEvent&, int, ReactionState&);
void RestoreSpeaker(const CZeltoEvent&, int, ReactionState& state);
void SilenceSpeaker(const CZeltoEvent&, int, ReactionState& state);
void ShowConnectingScreen(const CZeltoEvent&, int, ReactionState&);

}  // namespace zelto::reactions
