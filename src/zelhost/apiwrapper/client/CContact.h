#pragma once

#include "apiwrapper/Contact.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A person or telephone number that the account knows: keeps the contact list's entry current.
// Threads: the caller holds the service-host mutex.
class CContact : public ClientObject<Contact, kTraceContact> {
 public:
  using ClientObject::ClientObject;

  // What a change brings about may delete the object.
  void OnChange(int property, const ZEString& value) override;
  void OnContactGoneOffline() override;

 private:
  // Identity or, without one, phone number; empty when the runtime gives neither. It is asked each time, since
  // an identity may change.
  ZEString Key();
};
