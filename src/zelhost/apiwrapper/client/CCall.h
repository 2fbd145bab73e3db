#pragma once

#include "apiwrapper/Call.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A call. Its changes are traced; it leaves the root's call list and the call manager when it goes.
// Threads: the caller holds the service-host mutex.
class CCall : public ClientObject<Call, kTraceCall> {
 public:
  using ClientObject::ClientObject;
  ~CCall() override;
};
