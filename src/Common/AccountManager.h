// The facade of the account manager: signing in and out, registration, profile values and settings of the
// account.
#pragma once

#include "Common/AccountManagerImp.h"
#include "Common/ManagerFacade.h"

// The operations are those of CAccountManagerImp, which states their contracts.
// Threads: any; see ManagerFacade.
class CAccountManager : public zelto::ManagerFacade<CAccountManager, CAccountManagerImp> {
 public:
  CAccountManagerImp* GetAccountManagerImp() { return GetImp(); }

  bool Login(const char* name, const char* password, bool autoSignIn) {
    return GetImp()->Login(name, password, autoSignIn);
  }
  bool Register(const char* name, const char* password, const char* email, bool savePassword,
                bool allowOffers) {
    return GetImp()->Register(name, password, email, savePassword, allowOffers);
  }
  bool Logout(bool flag) { return GetImp()->Logout(flag); }
  const char* GetLastLoginID(int slot) { return GetImp()->GetLastLoginID(slot); }
  const char* GetAccountInfo(int property) { return GetImp()->GetAccountInfo(property); }
  const char* GetAccountCapability(int capability) { return GetImp()->GetAccountCapability(capability); }
  const char* GetAccountCapabilityExpireDate(int capability) {
    return GetImp()->GetAccountCapabilityExpireDate(capability);
  }
  const char* GetSuggestedZeltoName(int index) { return GetImp()->GetSuggestedZeltoName(index); }
  const char* GetSuggestedZeltoNameList() { return GetImp()->GetSuggestedZeltoNameList(); }
  void SetSuggestedZeltoNameList(const char* names) { GetImp()->SetSuggestedZeltoNameList(names); }
  const char* GetAvailableZeltoname(const char* name) { return GetImp()->GetAvailableZeltoname(name); }
  int GetLogoutReason() { return GetImp()->GetLogoutReason(); }
  int GetLoginState() { return GetImp()->GetLoginState(); }
  int ValidatePasswd(const char* name, const char* password) {
    return GetImp()->ValidatePasswd(name, password);
  }
  bool IsValidEmail(const char* email) { return GetImp()->IsValidEmail(email); }
  bool ChangePassword(const char* oldPassword, const char* newPassword) {
    return GetImp()->ChangePassword(oldPassword, newPassword);
  }
  bool SetAvailability(int availability) { return GetImp()->SetAvailability(availability); }
  bool SetMoodMessage(const char* mood) { return GetImp()->SetMoodMessage(mood); }
  bool SetProp(int property, const char* value) { return GetImp()->SetProp(property, value); }
  bool SetServerSideProp(int property, const char* value) {
    return GetImp()->SetServerSideProp(property, value);
  }
  bool IsAutoSignInEnabled() { return GetImp()->IsAutoSignInEnabled(); }
  bool IsDefaultAccountAvailable() { return GetImp()->IsDefaultAccountAvailable(); }
  bool IsDBError(int logoutReason) { return GetImp()->IsDBError(logoutReason); }
  bool IsDefaultAccountZeltoName(const char* name) { return GetImp()->IsDefaultAccountZeltoName(name); }
  const char* NormalizeIdentityForNewAccount(const char* identity) {
    return GetImp()->NormalizeIdentityForNewAccount(identity);
  }
  bool IsAccountAvailable(const char* name) { return GetImp()->IsAccountAvailable(name); }

 private:
  friend class zelto::ManagerFacade<CAccountManager, CAccountManagerImp>;
  CAccountManager() = default;

  static CAccountManagerImp* CreateImp();
};
