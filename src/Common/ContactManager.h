// The facade of the contact manager: the contact list: questions about it and operations that change it.
#pragma once

#include "Common/ContactManagerImp.h"
#include "Common/ManagerFacade.h"

// The operations are those of CContactManagerImp, which states their contracts.
// Threads: any; see ManagerFacade.
class CContactManager : public zelto::ManagerFacade<CContactManager, CContactManagerImp> {
 public:
  CContactManagerImp* GetContactManagerImp() { return GetImp(); }

  int GetNumOfContacts() { return GetImp()->GetNumOfContacts(); }
  int GetNumOfContactsInCategory(int category) { return GetImp()->GetNumOfContactsInCategory(category); }
  const char* GetContactInfo(int index, int property) { return GetImp()->GetContactInfo(index, property); }
  const char* GetContactInfo(const char* name, int property) {
    return GetImp()->GetContactInfo(name, property);
  }
  const char* GetContactInfo(const char* name, int num, int before) {
    return GetImp()->GetContactInfo(name, num, before);
  }
  const char* GetContactListWithoutCallMember(int start, int num) {
    return GetImp()->GetContactListWithoutCallMember(start, num);
  }
  const char* GetContactListWithoutUnauthorizedContacts(int start, int num) {
    return GetImp()->GetContactListWithoutUnauthorizedContacts(start, num);
  }
  const char* GetContactListWithoutCallMemberAndUnauthorizedContacts(int start, int num) {
    return GetImp()->GetContactListWithoutCallMemberAndUnauthorizedContacts(start, num);
  }
  int GetNumOfContactsWithoutUnauthorizedContacts() {
    return GetImp()->GetNumOfContactsWithoutUnauthorizedContacts();
  }
  bool Remove(const char* identity) { return GetImp()->Remove(identity); }
  bool Block(const char* identity, bool remove) { return GetImp()->Block(identity, remove); }
  bool Unblock(const char* identity) { return GetImp()->Unblock(identity); }
  bool IsBlocked(const char* identity) { return GetImp()->IsBlocked(identity); }
  const char* GetBlockedContact(int index) { return GetImp()->GetBlockedContact(index); }
  const char* GetBlockedContactList() { return GetImp()->GetBlockedContactList(); }
  bool AddContact(const char* identity, const char* message) {
    return GetImp()->AddContact(identity, message);
  }
  bool AddZeltoOutContact(const char* number, const char* displayName) {
    return GetImp()->AddZeltoOutContact(number, displayName);
  }
  bool Authorize(const char* identity, bool reject, bool block) {
    return GetImp()->Authorize(identity, reject, block);
  }
  int GetIndexOfContact(const char* name) { return GetImp()->GetIndexOfContact(name); }
  bool IsMyBuddy(const char* identity) { return GetImp()->IsMyBuddy(identity); }
  bool SearchNewContact(const char* text) { return GetImp()->SearchNewContact(text); }
  bool SearchContactProfile(const char* identity) { return GetImp()->SearchContactProfile(identity); }
  const char* GetSearchedContactList() { return GetImp()->GetSearchedContactList(); }
  const char* GetProfileInfo(const char* name) { return GetImp()->GetProfileInfo(name); }
  bool Rename(const char* identity, const char* displayName) {
    return GetImp()->Rename(identity, displayName);
  }
  bool SetAssignedPhoneNumber(const char* identity, unsigned int slot, const char* type, const char* number) {
    return GetImp()->SetAssignedPhoneNumber(identity, slot, type, number);
  }
  bool HasCapability(const char* identity, int capability, bool flag) {
    return GetImp()->HasCapability(identity, capability, flag);
  }
  const char* GetOnlinedContactName() { return GetImp()->GetOnlinedContactName(); }
  const char* GetStateChangedContact() { return GetImp()->GetStateChangedContact(); }
  int GetTypeOfIdentity(const char* identity) { return GetImp()->GetTypeOfIdentity(identity); }
  const char* GetOnlineContacts() { return GetImp()->GetOnlineContacts(); }
  bool SetCallee(const char* name) { return GetImp()->SetCallee(name); }
  const char* GetCallee() { return GetImp()->GetCallee(); }
  const char* FindContactWithEmail(const char* text) { return GetImp()->FindContactWithEmail(text); }
  const char* GetContactImage(const char* name) { return GetImp()->GetContactImage(name); }
  int GetContactStatus(const char* name) { return GetImp()->GetContactStatus(name); }
  const char* GetZeltoNameWithDisplayName(const char* displayName) {
    return GetImp()->GetZeltoNameWithDisplayName(displayName);
  }

 private:
  friend class zelto::ManagerFacade<CContactManager, CContactManagerImp>;
  CContactManager() = default;

  static CContactManagerImp* CreateImp();
};
