#pragma once

#include "apiwrapper/ContactGroup.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// A hardwired or custom group of contacts: tells the contact list and the widget who joins or leaves the
// groups that matter to them.
// Threads: the caller holds the service-host mutex.
class CContactGroup : public ClientObject<ContactGroup, kTraceContactGroup> {
 public:
  using ClientObject::ClientObject;
  // Whether the contact is in that hardwired group; false without the group.
  static bool Holds(CZelto& root, TYPE type, Contact* contact);

  void OnChange(int property, const ZEString& value) override;
  void OnGroupChanged(Contact* contact, bool joined) override;

 private:
  // A custom group's own name, or the protocol's name of its type.
  ZEString Name();
  int Type();
  void TraceChange(Contact* contact, bool joined);
  void OnWaitingContact(Contact* contact, bool joined);

  int m_type = 0;  // 0 until the runtime has told
  ZEString m_customName;
};
