#pragma once

#include "apiwrapper/Video.h"
#include "zelhost/apiwrapper/client/DescribedObject.h"

// One direction of a call member's video; its status means an event as long as there is a call.
// Threads: the caller holds the service-host mutex.
class CZeltoVideo : public DescribedObject<Video, kTraceVideo> {
 public:
  using DescribedObject::DescribedObject;

  void OnChange(int property, const ZEString& value) override;

 private:
  void OnSendStatus(int status);
  void OnRecvStatus(int status);
};
