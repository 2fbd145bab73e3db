// Makes entries of the history out of what a search among the runtime's objects has found.
#pragma once

#include <memory>
#include <vector>

#include "apiwrapper/ZEIntDict.h"
#include "apiwrapper/ZEPtrVector.h"
#include "zelhost/history/HistoryInfo.h"

class Zelto;

// Threads: the caller holds the service-host mutex.
namespace zelhost {

using HistoryEntries = std::vector<std::unique_ptr<CHistoryInfo>>;

// Entries for the calls or voicemails in the slots; empty slots and what does not belong into the history are
// left out. The properties of all objects of a class come with one request; only the members of a call must
// be asked for call by call.
HistoryEntries ReadCalls(Zelto& root, const ZEPtrVector& calls);
HistoryEntries ReadVoicemails(Zelto& root, const ZEPtrVector& voicemails);
// Null for a voicemail that does not belong into the history.
std::unique_ptr<CHistoryInfo> ReadVoicemail(Voicemail* voicemail);

// The properties of one call member.
using CallMembers = std::vector<ZEIntDict>;
// Fill an entry from the object's properties; false when it does not belong into the history: a call without
// members, a voicemail that nobody left for this account.
bool SetCallHistoryProperty(CHistoryInfo& entry, const ZEIntDict& call, const CallMembers& members);
bool SetVoiceMailHistoryProperty(CHistoryInfo& entry, const ZEIntDict& voicemail);

}  // namespace zelhost
