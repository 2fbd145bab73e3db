#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Common/AccountManagerImp.h"
#include "apiwrapper/ZEString.h"
#include "zelhost/ManagerInstance.h"
#include "zelhost/account/AccountCache.h"

class CAccount;

// The one active account of the service: signing in and out, registration, profile values, capabilities,
// server-side properties, passwords and suggested names.
// Threads: any; every operation takes the service-host mutex. SetAccountInfo, SetAvatar and
// SetSuggestedZeltoNameList are called by the account object, whose caller holds it already.
class CZelhostAccountManager : public CAccountManagerImp {
 public:
  static CZelhostAccountManager* GetInstance() { return m_instance.Get(); }
  ~CZelhostAccountManager() override;

  void Init() override;
  bool OnEvent(const CZeltoEvent* event) override;

  bool Login(const char* name, const char* password, bool autoSignIn) override;
  bool Register(const char* name, const char* password, const char* email, bool savePassword,
                bool allowOffers) override;
  bool Logout(bool flag) override;
  // Null when the slot holds nothing or is none of 0 to 4.
  const char* GetLastLoginID(int slot) override;

  const char* GetAccountInfo(int property) override;
  const char* GetAccountCapability(int capability) override;
  const char* GetAccountCapabilityExpireDate(int capability) override;

  const char* GetSuggestedZeltoName(int index) override;
  const char* GetSuggestedZeltoNameList() override;
  void SetSuggestedZeltoNameList(const char* names) override;
  const char* GetAvailableZeltoname(const char* name) override;

  int GetLogoutReason() override;
  int GetLoginState() override;
  int ValidatePasswd(const char* name, const char* password) override;
  bool IsValidEmail(const char* email) override;
  // Always false: the outcome arrives as one of the events 321 to 328.
  bool ChangePassword(const char* oldPassword, const char* newPassword) override;
  bool SetAvailability(int availability) override;
  bool SetMoodMessage(const char* mood) override;
  // For the picture the value is a location whose part from "/mtd" on is the path of a file.
  bool SetProp(int property, const char* value) override;
  bool SetServerSideProp(int property, const char* value) override;

  bool IsAutoSignInEnabled() override;
  bool IsDefaultAccountAvailable() override;
  bool IsDBError(int logoutReason) override;
  bool IsDefaultAccountZeltoName(const char* name) override;
  const char* NormalizeIdentityForNewAccount(const char* identity) override;
  bool IsAccountAvailable(const char* name) override;

  // Fills the caches from the runtime; false without it or without an active account.
  bool GetAccountAllInfo();
  // Keeps a value that the runtime reported; properties outside the list are ignored.
  void SetAccountInfo(int property, const ZEString& value);
  // Stores the own picture as a file; false for an empty one, which only empties the kept location.
  bool SetAvatar(const ZEString& image);
  // Puts the service's sound-test account into the contact list. False when it is not to be had.
  bool AddSndtest();
  // Deletes the active account's proxy; nothing without one.
  void DeleteActiveAccount();
  static bool IsValidProp(int property);
  static bool IsValidCapa(int capability);

 private:
  friend class zelhost::ManagerInstance<CZelhostAccountManager>;
  enum LoginState { kSignedOut = 0, kSigningIn = 1, kSignedIn = 2, kSigningOut = 3 };

  CZelhostAccountManager() = default;

  static bool IsReady();
  // The account to work with; null without one or while the runtime is not ready.
  static CAccount* ReadyAccount();

  const char* Result(std::string_view text);
  bool CanRead(bool isValid);
  bool SetAvatarFromFile(const char* location);
  std::string OwnAvatarPath();
  void FetchProperties();
  void FetchCapabilities();

  void OnSignedIn();
  void OnContactListInSync();
  void OnSignedOut(int reason);
  bool OnContactListSyncFailed();
  bool OnCommit(int type);
  void ReloadWithFreshDatabase();

  static inline zelhost::ManagerInstance<CZelhostAccountManager> m_instance;

  int m_LoginState = kSignedOut;
  int m_LogoutReason = 0;
  AccountCache m_cache;
  std::vector<std::string> m_SuggestedNames;
  bool m_bRegistering = false;  // the current sign-in was started by Register
  bool m_bAutoLogin = false;    // the current sign-in uses the runtime's default account
  std::string m_strResult;
};
