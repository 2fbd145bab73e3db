#pragma once

struct CZeltoEvent;

// The signed-in account: signing in and out, registration, profile values, server-side properties.
// The order of the operations is that of the implementing class, CZelhostAccountManager.
// Threads: any; an implementation takes the service-host mutex.
// Failures answer false, 0 or null. Texts answered stay the manager's and valid until its next answer.
class CAccountManagerImp {
 public:
  CAccountManagerImp() = default;
  CAccountManagerImp(const CAccountManagerImp&) = delete;
  CAccountManagerImp& operator=(const CAccountManagerImp&) = delete;
  virtual ~CAccountManagerImp() = default;

  // Registers the account facade for its engine events.
  virtual void Init() = 0;
  // True lets the event through to the host. On the event thread.
  virtual bool OnEvent(const CZeltoEvent* event) = 0;

  // Start a sign-in or registration; the outcome arrives as an event. False: refused.
  virtual bool Login(const char* name, const char* password, bool autoSignIn) = 0;
  virtual bool Register(const char* name, const char* password, const char* email, bool savePassword,
                        bool allowOffers) = 0;
  virtual bool Logout(bool flag) = 0;
  // Slot 0 is the account that signed in last; slots reach to 4.
  virtual const char* GetLastLoginID(int slot) = 0;

  // Cached values of the signed-in account; null while nobody is signed in.
  virtual const char* GetAccountInfo(int property) = 0;
  virtual const char* GetAccountCapability(int capability) = 0;
  virtual const char* GetAccountCapabilityExpireDate(int capability) = 0;

  virtual const char* GetSuggestedZeltoName(int index) = 0;
  virtual const char* GetSuggestedZeltoNameList() = 0;
  virtual void SetSuggestedZeltoNameList(const char* names) = 0;  // separated by ";"
  virtual const char* GetAvailableZeltoname(const char* name) = 0;

  virtual int GetLogoutReason() = 0;
  virtual int GetLoginState() = 0;  // 0 signed out, 1 signing in, 2 signed in, 3 signing out
  virtual int ValidatePasswd(const char* name, const char* password) = 0;  // code 0 to 9
  virtual bool IsValidEmail(const char* email) = 0;
  virtual bool ChangePassword(const char* oldPassword, const char* newPassword) = 0;
  virtual bool SetAvailability(int availability) = 0;
  virtual bool SetMoodMessage(const char* mood) = 0;
  virtual bool SetProp(int property, const char* value) = 0;
  // Counts only once the runtime reports the commit.
  virtual bool SetServerSideProp(int property, const char* value) = 0;

  virtual bool IsAutoSignInEnabled() = 0;
  virtual bool IsDefaultAccountAvailable() = 0;
  virtual bool IsDBError(int logoutReason) = 0;
  virtual bool IsDefaultAccountZeltoName(const char* name) = 0;
  virtual const char* NormalizeIdentityForNewAccount(const char* identity) = 0;
  virtual bool IsAccountAvailable(const char* name) = 0;
};
