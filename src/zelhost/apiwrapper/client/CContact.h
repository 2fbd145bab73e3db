#pragma once

#include "apiwrapper/Contact.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A person or telephone number of the contact list.
// Threads: the caller holds the service-host mutex.
class CContact : public ClientObject<Contact, kTraceContact> {
 public:
  using ClientObject::ClientObject;

  void OnContactGoneOffline() override;
};
