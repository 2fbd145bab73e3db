#pragma once

#include "apiwrapper/Video.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// One direction of a call member's video.
// Threads: the caller holds the service-host mutex.
class CZeltoVideo : public ClientObject<Video, kTraceVideo> {
 public:
  using ClientObject::ClientObject;
};
