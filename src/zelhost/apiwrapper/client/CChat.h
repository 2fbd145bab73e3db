#pragma once

#include "apiwrapper/Chat.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A conversation in writing; leaves the root's chat list when it goes.
// Threads: the caller holds the service-host mutex.
class CChat : public ClientObject<Chat, kTraceChat> {
 public:
  using ClientObject::ClientObject;
  ~CChat() override;
};
