#pragma once

#include "apiwrapper/Sms.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A short message to telephone numbers.
// Threads: the caller holds the service-host mutex.
class CSms : public ClientObject<Sms, kTraceSms> {
 public:
  using ClientObject::ClientObject;

  void OnChange(int property, const ZEString& value) override;
};
