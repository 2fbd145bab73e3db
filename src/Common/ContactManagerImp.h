#pragma once

struct CZeltoEvent;

// The signed-in account's contacts: queries on the sorted list and the operations that change it.
// The order of the operations is that of the implementing class, CZelhostContactManager.
// Threads: any; an implementation takes the service-host mutex.
// Failures answer false, 0, -1 or null. Texts answered stay the manager's and valid until its next
// answer of the same kind. A contact's name is its identity or, without one, its telephone number.
class CContactManagerImp {
 public:
  CContactManagerImp() = default;
  CContactManagerImp(const CContactManagerImp&) = delete;
  CContactManagerImp& operator=(const CContactManagerImp&) = delete;
  virtual ~CContactManagerImp() = default;

  // Registers the contact facade for its engine events.
  virtual void Init() = 0;
  // True lets the event through to the host. On the event thread.
  virtual bool OnEvent(const CZeltoEvent* event) = 0;

  virtual int GetNumOfContacts() = 0;
  virtual int GetNumOfContactsInCategory(int category) = 0;
  virtual const char* GetContactInfo(int index, int property) = 0;
  virtual const char* GetContactInfo(const char* name, int property) = 0;
  // Records of `num` contacts, `before` of them ahead of the named one.
  virtual const char* GetContactInfo(const char* name, int num, int before) = 0;

  // Records from position `start` on, at most `num`, without those that the operation's name excludes.
  virtual const char* GetContactListWithoutCallMember(int start, int num) = 0;
  virtual const char* GetContactListWithoutUnauthorizedContacts(int start, int num) = 0;
  virtual const char* GetContactListWithoutCallMemberAndUnauthorizedContacts(int start, int num) = 0;
  virtual int GetNumOfContactsWithoutUnauthorizedContacts() = 0;

  virtual bool Remove(const char* identity) = 0;
  virtual bool Block(const char* identity, bool remove) = 0;
  virtual bool Unblock(const char* identity) = 0;
  virtual bool IsBlocked(const char* identity) = 0;
  virtual const char* GetBlockedContact(int index) = 0;
  virtual const char* GetBlockedContactList() = 0;
  virtual bool AddContact(const char* identity, const char* message) = 0;
  virtual bool AddZeltoOutContact(const char* number, const char* displayName) = 0;
  virtual bool Authorize(const char* identity, bool reject, bool block) = 0;

  virtual int GetIndexOfContact(const char* name) = 0;  // -1 when unknown
  virtual bool IsMyBuddy(const char* identity) = 0;

  // Searches; results arrive as events and are then listed.
  virtual bool SearchNewContact(const char* text) = 0;
  virtual bool SearchContactProfile(const char* identity) = 0;
  virtual const char* GetSearchedContactList() = 0;
  virtual const char* GetProfileInfo(const char* name) = 0;

  virtual bool Rename(const char* identity, const char* displayName) = 0;
  virtual bool SetAssignedPhoneNumber(const char* identity, unsigned int slot, const char* type,
                                      const char* number) = 0;
  virtual bool HasCapability(const char* identity, int capability, bool flag) = 0;
  virtual const char* GetOnlinedContactName() = 0;
  virtual const char* GetStateChangedContact() = 0;
  virtual int GetTypeOfIdentity(const char* identity) = 0;  // 1 when it cannot be told

  // Candidates for calling by voice, and the one chosen.
  virtual const char* GetOnlineContacts() = 0;
  virtual bool SetCallee(const char* name) = 0;
  virtual const char* GetCallee() = 0;

  virtual const char* FindContactWithEmail(const char* text) = 0;
  virtual const char* GetContactImage(const char* name) = 0;  // path of a picture file
  virtual int GetContactStatus(const char* name) = 0;         // 0 to 4, -1 when unknown
  virtual const char* GetZeltoNameWithDisplayName(const char* displayName) = 0;
};
