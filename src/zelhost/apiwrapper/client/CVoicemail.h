#pragma once

#include "apiwrapper/Voicemail.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A voicemail; leaves the root's voicemail list when it goes.
// Threads: the caller holds the service-host mutex.
class CVoicemail : public ClientObject<Voicemail, kTraceVoicemail> {
 public:
  using ClientObject::ClientObject;
  ~CVoicemail() override;
};
