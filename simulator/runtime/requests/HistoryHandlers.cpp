#include "apiwrapper/tables/ClassMethods.h"
#include "apiwrapper/tables/RootMethods.h"
#include "simulator/runtime/Session.h"
#include "simulator/runtime/requests/Exchange.h"
#include "simulator/runtime/requests/Handlers.h"

namespace simulator {
namespace {

// Calls that are over; what is done with one of them is among the call handlers.

template <std::vector<unsigned> (PastCalls::*kList)()>
void List(Session& session, Exchange& exchange) {
  exchange.AnswerObjects(ZEKey::Result, (session.pastCalls.*kList)());
}

void ClearCallHistory(Session& session, Exchange& exchange) {
  session.pastCalls.Clear(exchange.Enumerator(ZEKey::Type), exchange.Text(ZEKey::HistoryIdentity));
}

// Voicemails.

void StartPlayback(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.voicemails.Play(exchange.Target().id));
}

void StopPlayback(Session& session, Exchange& exchange) { session.voicemails.Stop(exchange.Target().id); }
void Delete(Session& session, Exchange& exchange) { session.voicemails.Delete(exchange.Target().id); }

void MarkSeen(Session& session, Exchange& exchange) {
  exchange.Answer(ZEKey::Result, session.voicemails.MarkSeen(exchange.Target().id));
}

// No voicemail is recorded other than in a call, and none is passed on.
// clang-format off
constexpr HandlerRow kRows[] = {
    {&RootMethod::GetHistoricalCalls,     List<&PastCalls::All>},
    {&RootMethod::GetUnseenMissedCalls,   List<&PastCalls::UnseenMissed>},
    {&RootMethod::ClearCallHistory,       ClearCallHistory},
    {&RootMethod::GetGreeting,            Decline},
    {&VoicemailMethod::StartPlayback,     StartPlayback},
    {&VoicemailMethod::StopPlayback,      StopPlayback},
    {&VoicemailMethod::Delete,            Delete},
    {&VoicemailMethod::MarkSeen,          MarkSeen},
    {&VoicemailMethod::StartRecording,    Decline},
    {&VoicemailMethod::StopRecording,     TakeNote},
    {&VoicemailMethod::Cancel,            TakeNote},
    {&VoicemailMethod::SetOrigin,         TakeNote},
    {&VoicemailMethod::ForwardToContacts, Decline},
    {&VoicemailMethod::ForwardToGroups,   Decline},
    {&VoicemailMethod::CheckPermission,   Decline},
};
// clang-format on

}  // namespace

HandlerRows HistoryHandlers() { return RowsOf(kRows); }

}  // namespace simulator
