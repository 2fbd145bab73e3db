#pragma once

#include "Common/ContactManagerImp.h"
#include "zelhost/ManagerInstance.h"

// The contact list of the signed-in account, as the engine keeps it for the widget.
// It keeps no list yet: questions are answered as for an account without contacts, and operations are
// refused.
// Threads: any.
class CZelhostContactManager : public CContactManagerImp {
 public:
  static CZelhostContactManager* GetInstance() { return m_instance.Get(); }
  ~CZelhostContactManager() override;

  // Builds the list from the runtime's contact groups; false when it could not.
  bool GetContactAllInfo();
  // Empties the list; part of every sign-in and sign-out.
  void ClearContactList();

  void Init() override;
  bool OnEvent(const CZeltoEvent* event) override;

  int GetNumOfContacts() override;
  int GetNumOfContactsInCategory(int category) override;
  const char* GetContactInfo(int index, int property) override;
  const char* GetContactInfo(const char* name, int property) override;
  const char* GetContactInfo(const char* name, int num, int before) override;

  const char* GetContactListWithoutCallMember(int start, int num) override;
  const char* GetContactListWithoutUnauthorizedContacts(int start, int num) override;
  const char* GetContactListWithoutCallMemberAndUnauthorizedContacts(int start, int num) override;
  int GetNumOfContactsWithoutUnauthorizedContacts() override;

  bool Remove(const char* identity) override;
  bool Block(const char* identity, bool remove) override;
  bool Unblock(const char* identity) override;
  bool IsBlocked(const char* identity) override;
  const char* GetBlockedContact(int index) override;
  const char* GetBlockedContactList() override;
  bool AddContact(const char* identity, const char* message) override;
  bool AddZeltoOutContact(const char* number, const char* displayName) override;
  bool Authorize(const char* identity, bool reject, bool block) override;

  int GetIndexOfContact(const char* name) override;
  bool IsMyBuddy(const char* identity) override;

  bool SearchNewContact(const char* text) override;
  bool SearchContactProfile(const char* identity) override;
  const char* GetSearchedContactList() override;
  const char* GetProfileInfo(const char* name) override;

  bool Rename(const char* identity, const char* displayName) override;
  bool SetAssignedPhoneNumber(const char* identity, unsigned int slot, const char* type,
                              const char* number) override;
  bool HasCapability(const char* identity, int capability, bool flag) override;
  const char* GetOnlinedContactName() override;
  const char* GetStateChangedContact() override;
  int GetTypeOfIdentity(const char* identity) override;

  const char* GetOnlineContacts() override;
  bool SetCallee(const char* name) override;
  const char* GetCallee() override;

  const char* FindContactWithEmail(const char* text) override;
  const char* GetContactImage(const char* name) override;
  int GetContactStatus(const char* name) override;
  const char* GetZeltoNameWithDisplayName(const char* displayName) override;

 private:
  friend class zelhost::ManagerInstance<CZelhostContactManager>;
  CZelhostContactManager() = default;

  static inline zelhost::ManagerInstance<CZelhostContactManager> m_instance;
};
