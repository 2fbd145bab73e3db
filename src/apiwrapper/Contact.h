#pragma once

#include "apiwrapper/ZEObject.h"

class ContactGroup;

// A person or a phone number that the account knows.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class Contact : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_IDENTITY = 1, P_PHONE_NUMBER = 2, P_TYPE = 3, P_4 = 4, P_5 = 5, P_GENDER = 6, P_LANGUAGE = 7,
    P_COUNTRY = 8, P_9 = 9, P_10 = 10, P_11 = 11, P_12 = 12, P_13 = 13, P_EMAILS = 14, P_15 = 15,
    P_16 = 16, P_17 = 17, P_18 = 18, P_19 = 19, P_AVAILABILITY = 20, P_DISPLAY_NAME = 21, P_22 = 22,
    P_GIVEN_AUTHLEVEL = 23, P_24 = 24, P_25 = 25, P_26 = 26, P_27 = 27, P_28 = 28, P_AUTH_REQUEST = 29,
    P_30 = 30, P_31 = 31, P_AVATAR = 32, P_33 = 33, P_34 = 34, P_35 = 35, P_36 = 36, P_37 = 37, P_38 = 38,
    P_39 = 39, P_40 = 40, P_41 = 41, P_ASSIGNED_PHONE1 = 42, P_ASSIGNED_PHONE1_LABEL = 43,
    P_ASSIGNED_PHONE2 = 44, P_ASSIGNED_PHONE2_LABEL = 45, P_ASSIGNED_PHONE3 = 46,
    P_ASSIGNED_PHONE3_LABEL = 47
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum TYPE : int { TYPE_UNKNOWN = 1, TYPE_EMERGENCY = 4 };
  enum AVAILABILITY : int { AVAILABILITY_PENDING_AUTHORIZATION = 1, AVAILABILITY_PHONE_NUMBER = 5 };
  enum AUTHLEVEL : int { AUTH_NONE = 1, AUTH_AUTHORIZED, AUTH_BLOCKED };
  enum CAPABILITY : int {};
  enum NORMALIZERESULT : int { NORMALIZED_OK = 1 };

  Contact(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;
  virtual void OnContactGoneOffline();

  bool IsMemberOf(ContactGroup* group);
  bool GiveAuthLevel(AUTHLEVEL level);
  bool GiveDisplayName(const ZEString& name);
  bool AssignSpeedDial(const ZEString& speedDial);
  bool SetBuddyStatus(bool buddy);
  bool SendAuthRequest(const ZEString& message);
  bool HasCapability(CAPABILITY capability, bool flag);
  void RefreshProfile();
  bool HasAuthorizedMe();
  // A binary string.
  ZEString GetAvatar();
  // `slot`: 1 to 3.
  bool SetPhoneNumber(unsigned int slot, const ZEString& label, const ZEString& number);
};
