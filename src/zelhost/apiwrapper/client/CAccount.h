#pragma once

#include "apiwrapper/Account.h"
#include "zelhost/apiwrapper/client/ClientObject.h"

// The account that is signed in or being signed in: keeps the account manager's values current and raises
// the account's engine events.
// Threads: the caller holds the service-host mutex.
class CAccount : public ClientObject<Account, kTraceAccount> {
 public:
  using ClientObject::ClientObject;
  // The root forgets it as its active account.
  ~CAccount() override;

  // The report of a sign-out deletes the object.
  void OnChange(int property, const ZEString& value) override;

  // Sets the picture of the file at that path of the television; false when the runtime refuses.
  bool SetAvatar(const ZEString& path);

  int m_nCblInSyncCount = 0;  // how often the contact list has been reported in sync: 0 or 1

 private:
  struct Reaction;

  static const Reaction* FindReaction(int property);
  void Cache(int property, const ZEString& value);

  // One for each property that means more than a value to keep.
  void OnAvatar(int property, const ZEString& value);
  void OnMood(int property, const ZEString& value);
  void OnAvailability(int property, const ZEString& value);
  void OnStatus(int property, const ZEString& value);
  void OnPasswordChange(int property, const ZEString& value);
  void OnCommitStatus(int property, const ZEString& value);
  void OnName(int property, const ZEString& value);
  void OnSecondName(int property, const ZEString& value);
  void OnContactListSync(int property, const ZEString& value);

  void SignedIn();
  void SignedOut();
};
