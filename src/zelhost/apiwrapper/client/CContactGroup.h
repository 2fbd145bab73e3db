#pragma once

#include "apiwrapper/ContactGroup.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A hardwired or custom group of contacts.
// Threads: the caller holds the service-host mutex.
class CContactGroup : public ClientObject<ContactGroup, kTraceContactGroup> {
 public:
  using ClientObject::ClientObject;

  void OnGroupChanged(Contact* contact, bool added) override;
};
