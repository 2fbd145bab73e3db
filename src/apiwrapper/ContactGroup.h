#pragma once

#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEPtrVector.h"

class Contact;

// A group of contacts: one that the service keeps, or one of the user's own.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class ContactGroup : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_TYPE = 1, P_CUSTOM_NAME = 2, P_3 = 3, P_4 = 4, P_5 = 5, P_6 = 6, P_7 = 7, P_8 = 8
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum TYPE : int {
    ALL_BUDDIES = 2,
    ZELTO_BUDDIES = 3,
    ZELTOOUT_BUDDIES = 4,
    UNKNOWN_OR_PENDINGAUTH_BUDDIES = 6,
    CONTACTS_WAITING_MY_AUTHORIZATION = 8,
    CONTACTS_BLOCKED_BY_ME = 10,
    CUSTOM_GROUP = 12
  };

  ContactGroup(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;
  // A contact joined or left the group. Null, and false, when several did.
  virtual void OnGroupChanged(Contact* contact, bool joined);

  // Slots of Contact.
  ZEPtrVector GetContacts();
  bool GiveDisplayName(const ZEString& name);
  bool CanAddContact(Contact* contact);
  bool AddContact(Contact* contact);
  bool CanRemoveContact();
  bool RemoveContact(Contact* contact);
  bool Delete(bool flag);
};
