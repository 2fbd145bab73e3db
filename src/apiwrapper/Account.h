#pragma once

#include "apiwrapper/Contact.h"
#include "apiwrapper/ZEObject.h"

// An account of the service: signing in and out, its profile and its policies.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class Account : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_NAME = 1, P_2 = 2, P_3 = 3, P_4 = 4, P_5 = 5, P_6 = 6, P_7 = 7, P_8 = 8, P_9 = 9, P_10 = 10,
    P_11 = 11, P_12 = 12, P_13 = 13, P_14 = 14, P_AVATAR = 15, P_MOOD_TEXT = 16, P_17 = 17, P_18 = 18,
    P_CAPABILITY = 19, P_AVAILABILITY = 20, P_STATUS = 21, P_PWDCHANGESTATUS = 22, P_LOGOUTREASON = 23,
    P_COMMITSTATUS = 24, P_SUGGESTED_ZELTONAME = 25, P_26 = 26, P_27 = 27, P_28 = 28, P_29 = 29,
    P_CBLSYNCSTATUS = 30, P_31 = 31, P_32 = 32, P_33 = 33, P_CALL_FORWARDING = 34, P_CHAT_POLICY = 35,
    P_ZELTO_CALL_POLICY = 36, P_PSTN_CALL_POLICY = 37, P_AVATAR_POLICY = 38, P_BUDDYCOUNT_POLICY = 39,
    P_TIMEZONE_POLICY = 40, P_WEBPRESENCE_POLICY = 41, P_PHONENUMBERS_POLICY = 42,
    P_VOICEMAIL_POLICY = 43
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum STATUS : int { STATUS_SIGNED_OUT_1 = 1, STATUS_SIGNED_OUT_2 = 2, STATUS_SIGNED_IN = 7 };
  enum LOGOUTREASON : int { LOGOUT_NAME_TAKEN = 11, LOGOUT_DB_ERROR_FIRST = 18, LOGOUT_DB_ERROR_LAST = 21 };
  enum COMMITSTATUS : int { COMMITTED = 1, COMMITTING_TO_SERVER, COMMIT_FAILED };
  enum CBLSYNCSTATUS : int { CBL_IN_SYNC = 5, CBL_SYNC_FAILED = 6 };
  enum CAPABILITYSTATUS : int { NO_CAPABILITY = 1 };
  enum AVAILABILITY : int {
    AVAILABILITY_OFFLINE = 2,
    AVAILABILITY_ONLINE = 3,
    AVAILABILITY_DO_NOT_DISTURB = 6,
    AVAILABILITY_CONNECTING = 9
  };
  enum VALIDATERESULT : int {
    NOT_VALIDATED,
    VALIDATED_OK,
    TOO_SHORT,
    TOO_LONG,
    CONTAINS_INVALID_CHAR,
    CONTAINS_SPACE,
    SAME_AS_USERNAME,
    INVALID_FORMAT,
    CONTAINS_INVALID_WORD,
    TOO_SIMPLE
  };

  Account(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  // One-way: what comes of them arrives as changes of P_STATUS and P_LOGOUTREASON. Login() uses the password
  // that the runtime remembers.
  void Login();
  void LoginWithPassword(const ZEString& password, bool savePassword);
  void Register(const ZEString& password, bool savePassword, const ZEString& email, bool allowOffers);
  void SubmitUICRequestResponse(const ZEString& blob);
  void Logout(bool flag);
  // One-way: the outcome arrives as a change of P_PWDCHANGESTATUS.
  void ChangePassword(const ZEString& oldPassword, const ZEString& newPassword, bool savePassword);
  void CancelServerCommit();
  void SetAvailability(AVAILABILITY availability);
  ZEString GetZeltonameHash();
  // `expiry`: seconds since the epoch, 0 for none.
  CAPABILITYSTATUS GetCapabilityStatus(Contact::CAPABILITY capability, int& expiry);
  Contact* GetContact();
  // True without a request when there is nothing to set.
  bool SetProps(const ZEIntDict& values);
  bool SetProp(int property, const ZEString& value);
  // One-way: the outcome arrives as changes of P_COMMITSTATUS. No request when there is nothing to set.
  void SetServersideProps(const ZEIntDict& values);
  void SetServersideProp(int property, const ZEString& value);
  ZEString CreateSignedToken(const ZEString& text);
};
