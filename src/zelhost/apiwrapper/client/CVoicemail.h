#pragma once

#include "apiwrapper/Voicemail.h"
#include "zelhost/apiwrapper/client/DescribedObject.h"

// A voicemail, received or being left; its changes mean events.
// Threads: the caller holds the service-host mutex.
class CVoicemail : public DescribedObject<Voicemail, kTraceVoicemail> {
 public:
  using DescribedObject::DescribedObject;
  // Leaves the root's voicemail list and the history manager.
  ~CVoicemail() override;

  void OnChange(int property, const ZEString& value) override;
  void OnDelete() override;

 private:
  void OnStatus(int status);
};
