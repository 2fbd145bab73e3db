#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Common/ContactManagerImp.h"
#include "apiwrapper/ContactGroup.h"
#include "apiwrapper/ZEPtrVector.h"
#include "zelhost/ManagerInstance.h"
#include "zelhost/contacts/ContactList.h"

// The contact list of the signed-in account, as the engine keeps it for the widget: built from two of the
// runtime's groups, ordered by category and name, kept current by what the runtime reports. Questions are
// answered without asking the runtime, except for the first one about a less common property. Operations
// change the runtime's list, and the engine's with it; searches look for people in the service's directory.
// Without a ready runtime and somebody signed in, questions are answered null, 0, false or -1, and operations
// do nothing and answer false; so they do for a contact that the runtime does not know.
// Texts that are answered stay valid until the next question of the same kind: about single values, about
// pictures, or about records.
// Threads: any; every operation takes the service-host mutex.
class CZelhostContactManager : public CContactManagerImp {
 public:
  static CZelhostContactManager* GetInstance() { return m_instance.Get(); }
  ~CZelhostContactManager() override;

  // How AddNewContactToList makes an entry.
  enum NEW_CONTACT : int { kAuthorizationRequest = 1, kPhoneNumber = 3, kContact = 4 };

  // Builds the list from the runtime's contact groups, or brings it up to date; false when it could not.
  bool GetContactAllInfo();
  // Takes the members of one hardwired group over, unsorted; false without the group.
  bool GetContactListInGroup(ContactGroup::TYPE type);
  // Brings the whole list in order.
  void Sort();
  // Empties the list and what the last search found; part of every sign-in and sign-out.
  void ClearContactList();
  // Adds an entry, also when the contact has one already, and tells the widget. One without identity and
  // phone number is skipped.
  void AddNewContactToList(Contact* contact, int kind);
  // Takes over a value that the runtime reported of the contact that goes by that name, and tells the widget.
  void UpdateContactInfo(const char* name, int property, const ZEString& value, Contact* contact);
  // Whether UpdateContactInfo does anything about that property.
  static bool IsFollowed(int property) { return FindUpdate(property) != nullptr; }
  // Fetches what is missing of the extra properties; the entry stays as it is when the runtime does not know
  // its identity.
  void GetContactInfoMore(const CContactInfo* entry);
  // Takes over what a search has found, in place of what the one before had, and tells the widget. Slots of
  // Contact, whose property caches are filled. False when nobody was found.
  bool SetSearchedContact(const ZEPtrVector& results);
  // The same for the profile of the first one; when nobody was found, the profile before stays.
  bool SetSearchedContactProfile(const ZEPtrVector& results);
  // Whether the runtime is ready and somebody is signed in or signing in.
  static bool IsContactInfoAvailable();

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

  // Also true for a contact that is not listed, of which the widget hears nothing.
  bool Remove(const char* identity) override;
  // What changes in the list follows from the runtime's report.
  bool Block(const char* identity, bool remove) override;
  bool Unblock(const char* identity) override;
  bool IsBlocked(const char* identity) override;
  // Identity or phone number, empty for a contact without both; null outside the group.
  const char* GetBlockedContact(int index) override;
  const char* GetBlockedContactList() override;
  // Asks the contact for its consent, with a greeting when there is no message. True also when the request
  // could not be sent, which leaves the list as it is.
  bool AddContact(const char* identity, const char* message) override;
  bool AddZeltoOutContact(const char* number, const char* displayName) override;
  // Rejecting blocks or removes the contact without telling the widget, which asked for it.
  bool Authorize(const char* identity, bool reject, bool block) override;

  int GetIndexOfContact(const char* name) override;
  bool IsMyBuddy(const char* identity) override;

  // Searches end asynchronously, each with one event; they need a connected runtime only.
  bool SearchNewContact(const char* text) override;
  // True without looking whether the runtime could start it.
  bool SearchContactProfile(const char* identity) override;
  // Empty when nobody was found; does not need anybody signed in.
  const char* GetSearchedContactList() override;
  // The name plays no part. Null when no profile was ever found.
  const char* GetProfileInfo(const char* name) override;

  // Both false when the contact is not listed; the runtime has been told by then. An empty name gives way to
  // the contact's identity.
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

  // The identity of the first whose addresses contain the text; null for an empty text. The first call, and
  // any after new entries have come, asks the runtime for their addresses.
  const char* FindContactWithEmail(const char* text) override;
  const char* GetContactImage(const char* name) override;
  int GetContactStatus(const char* name) override;
  const char* GetZeltoNameWithDisplayName(const char* displayName) override;

 private:
  friend class zelhost::ManagerInstance<CZelhostContactManager>;
  // A change of one contact that the runtime reported.
  struct Change {
    const char* name;  // identity or phone number
    int property;
    const ZEString& value;
    Contact* contact;
    const CContactInfo* entry;  // null when the list has none
  };
  struct Update;
  // Which entries a page of records leaves out.
  struct PageFilter {
    const char* query;
    bool skipsCallMember;
    bool skipsUnauthorized;
  };

  CZelhostContactManager() = default;

  const char* Result(std::string_view text);
  const CContactInfo* FindEntry(const char* name) const;
  const char* Value(const CContactInfo* entry, int property);
  const char* Page(const PageFilter& filter, int start, int num);
  const char* WriteRecords();
  const CContactInfo* FindNamed(const ZEString& name) const;

  void TakeContact(Contact* contact);

  // Null, with a line in the log, when the runtime does not know the contact.
  static Contact* KnownContact(const char* operation, const char* identity);
  // Fetches properties of a hardwired group's members into their caches; false without the group.
  static bool FetchMembers(ContactGroup::TYPE type, const ZEIntList& properties, ZEPtrVector& members);
  // Under the key when there is no name, in the place that this gives it.
  void SetDisplayName(const CContactInfo* entry, const ZEString& name);
  void FetchEmails();
  void TakeEmails(ContactGroup::TYPE type);

  static const Update* FindUpdate(int property);
  void Keep(const Change& change);
  void OnLanguage(const Change& change);
  void OnAvailability(const Change& change);
  void OnDisplayName(const Change& change);
  void OnAuthorization(const Change& change);
  void OnAvatar(const Change& change);
  void OnMood(const Change& change);

  static inline zelhost::ManagerInstance<CZelhostContactManager> m_instance;

  ContactList m_ContactList;
  std::vector<std::unique_ptr<CContactInfo>> m_SearchedContactList;
  std::unique_ptr<CContactInfo> m_pSearchedProfile;  // of the last profile search that found somebody
  bool m_bUnblocking = false;        // an unblock or authorization change of the user's is under way
  std::string m_strRejectedContact;  // whose removal or block the widget must not hear of
  std::string m_strOnlinedContact;
  std::string m_strStateChangedContact;
  std::string m_strResult;
  std::string m_strContactImage;
  std::string m_strRecords;
  std::vector<const CContactInfo*> m_page;  // entries whose records are asked for
  std::vector<ZEString> m_candidates;       // names that a viewer may say
  ZEString m_callee;
};
