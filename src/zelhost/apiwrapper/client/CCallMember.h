#pragma once

#include "apiwrapper/CallMember.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// One person of a call; traces its changes and the tones it sends.
// Threads: the caller holds the service-host mutex.
class CCallMember : public ClientObject<CallMember, kTraceCallMember> {
 public:
  using ClientObject::ClientObject;

  void OnIncomingDTMF(CallMember::DTMF tone) override;
};
