#include "Common/HostQueries.h"

#include "Common/AccountManager.h"
#include "Common/ContactManager.h"
#include "Common/DecimalText.h"
#include "Common/DefaultPictures.h"
#include "Common/HistoryManager.h"
#include "Common/Log.h"
#include "Common/RecordWriter.h"
#include "Common/ZeltoManager.h"

namespace zelto {
namespace {

using zelhost::ServiceHostLock;

constexpr int kSignedIn = 2;         // a login state
constexpr int kAccountIdentity = 1;  // a property of the account
constexpr int kUnknownStatus = -1;

enum ContactField {
  kContactIdentity = 1,
  kContactPhoneNumber = 2,
  kContactGender = 6,
  kContactHomePhone = 11,
  kContactOfficePhone = 12,
  kContactMobilePhone = 13,
  kContactDisplayName = 21,
};

enum HistoryField {
  kHistoryType = 0,
  kHistoryIdentity = 1,
  kHistoryDisplayName = 2,
  kHistoryTimestamp = 3,
  kHistoryUnseen = 5,
  kHistoryIncoming = 7,
  kHistoryMissed = 11,
};

enum RecentCallKind {
  kKindOther = 0,
  kKindMissed = 1,
  kKindIncoming = 2,
  kKindOutgoing = 3,
  kKindVoicemail = 4
};

// Copies an answer while it is valid. False for null.
bool Take(const char* answer, std::string& text) {
  if (answer == nullptr) return false;
  text = answer;
  return true;
}

bool TakeHistory(int index, HistoryField field, const char* name, std::string& text) {
  if (Take(CHistoryManager::GetInstance()->GetHistoryInfo(index, field), text)) return true;
  ZELTO_DEBUG("%s: %s is null\n", "GetRecentCall", name);
  return false;
}

RecentCallKind KindOf(int type, bool missed, bool incoming) {
  constexpr int kCall = 0;
  constexpr int kVoicemail = 1;
  if (type == kVoicemail) return kKindVoicemail;
  if (type != kCall) return kKindOther;
  if (missed) return kKindMissed;
  return incoming ? kKindIncoming : kKindOutgoing;
}

// The identity, or the telephone number of a contact without one.
bool TakeContactName(int index, std::string& id, bool& isPhone) {
  CContactManager* contacts = CContactManager::GetInstance();
  std::string name;
  if (!Take(contacts->GetContactInfo(index, kContactIdentity), name)) {
    ZELTO_FATAL("Fail to get contact ID");
    return false;
  }
  isPhone = name.empty();
  if (isPhone && (!Take(contacts->GetContactInfo(index, kContactPhoneNumber), name) || name.empty())) {
    ZELTO_FATAL("Fail to get contact ID or PSTN number");
    return false;
  }
  id = name;
  return true;
}

std::string AvatarOf(const std::string& id, bool isPhone) {
  if (isPhone) return kPhonePicture;
  CContactManager* contacts = CContactManager::GetInstance();
  std::string path;
  if (Take(contacts->GetContactImage(id.c_str()), path)) return path;
  ZELTO_WARNING("no avatar for contact[%s]\n", id.c_str());
  const char* gender = contacts->GetContactInfo(id.c_str(), kContactGender);
  if (gender == nullptr) ZELTO_FATAL("Fail to get gender");
  return PictureForGender(DecimalValue(gender));
}

bool TakePhone(const std::string& id, ContactField field, const char* failure, std::string& number) {
  ServiceHostLock lock("GetPhoneNumber");
  if (Take(CContactManager::GetInstance()->GetContactInfo(id.c_str(), field), number)) return true;
  ZELTO_FATAL("%s", failure);
  return false;
}

}  // namespace

bool HostQueries::IsInMyContact(const std::string& email, std::string& id) {
  ServiceHostLock lock("IsInMyContact");
  ZELTO_DEBUG("%s: %s\n", "IsInMyContact", email.c_str());
  const bool found = Take(CContactManager::GetInstance()->FindContactWithEmail(email.c_str()), id);
  if (found) {
    ZELTO_DEBUG("%s: %s\n", "IsInMyContact", id.c_str());
  } else {
    ZELTO_DEBUG("%s: %s end\n", "IsInMyContact", email.c_str());
  }
  return found;
}

bool HostQueries::IsLoggedIn(std::string& id) {
  ServiceHostLock lock("IsLoggedIn");
  CAccountManager* account = CAccountManager::GetInstance();
  return account->GetLoginState() == kSignedIn && Take(account->GetAccountInfo(kAccountIdentity), id);
}

bool HostQueries::GetRecentCall(int index, int& kind, std::string& id, std::string& displayName,
                                int& timestamp) {
  ServiceHostLock lock("GetRecentCall");
  std::string type, missed, incoming, name, display, time;
  if (!TakeHistory(index, kHistoryType, "P_TYPE", type)) return false;
  if (!TakeHistory(index, kHistoryMissed, "P_IS_MISSED", missed)) return false;
  const int unseen = DecimalValue(CHistoryManager::GetInstance()->GetHistoryInfo(index, kHistoryUnseen));
  if (!TakeHistory(index, kHistoryIncoming, "P_IS_INCOMING", incoming)) return false;
  if (!TakeHistory(index, kHistoryIdentity, "P_ZELTONAME", name)) return false;
  if (!TakeHistory(index, kHistoryDisplayName, "P_DISPNAME", display)) return false;
  if (!TakeHistory(index, kHistoryTimestamp, "P_TIMESTAMP", time)) return false;

  kind = KindOf(DecimalValue(type.c_str()), DecimalValue(missed.c_str()) != 0 || unseen != 0,
                DecimalValue(incoming.c_str()) != 0);
  id = name;
  displayName = display;
  timestamp = DecimalValue(time.c_str());
  return true;
}

bool HostQueries::GetContactInfo(int index, std::string& id, std::string& displayName, int& status,
                                 std::string& avatarPath) {
  ServiceHostLock lock("GetContactInfo");
  bool isPhone = false;
  if (!TakeContactName(index, id, isPhone)) return false;
  if (!Take(CContactManager::GetInstance()->GetContactInfo(index, kContactDisplayName), displayName)) {
    ZELTO_FATAL("Fail to get DisplayName");
    return false;
  }
  const int known = CContactManager::GetInstance()->GetContactStatus(id.c_str());
  if (known == kUnknownStatus) {
    ZELTO_FATAL("Fail to get status");
    return false;
  }
  avatarPath = AvatarOf(id, isPhone);
  status = known;
  return true;
}

bool HostQueries::GetContactImage(const std::string& id, std::string& path) {
  ServiceHostLock lock("GetContactImage");
  return Take(CContactManager::GetInstance()->GetContactImage(id.c_str()), path);
}

bool HostQueries::GetContactStatus(const std::string& id, int& status) {
  ServiceHostLock lock("GetContactStatus");
  const int known = CContactManager::GetInstance()->GetContactStatus(id.c_str());
  if (known == kUnknownStatus) return false;
  status = known;
  return true;
}

bool HostQueries::GetMobilePhoneNumber(const std::string& id, std::string& number) {
  return TakePhone(id, kContactMobilePhone, "Fail to get mobile phone", number);
}

bool HostQueries::GetHomePhoneNumber(const std::string& id, std::string& number) {
  return TakePhone(id, kContactHomePhone, "Fail to get Home phone", number);
}

bool HostQueries::GetOfficePhoneNumber(const std::string& id, std::string& number) {
  return TakePhone(id, kContactOfficePhone, "Fail to get office phone", number);
}

bool HostQueries::PlaceCall(const std::string& target, int type) {
  constexpr int kVoice = 1;
  std::string parameter(type > kVoice ? "Videocall" : "Voicecall");
  parameter.append(kFieldSeparator).append(FieldText(target));
  CZeltoManager::RunWidget(parameter);
  return true;
}

bool HostQueries::PlayMail(int timestamp) {
  const std::string time = std::to_string(timestamp);
  int index;
  {
    ServiceHostLock lock("PlayMail");
    index = CHistoryManager::GetInstance()->GetHistoryIndexWithTimestamp(time.c_str());
  }
  std::string parameter("Voicemail");
  parameter.append(kFieldSeparator).append(time).append(kFieldSeparator).append(std::to_string(index));
  CZeltoManager::RunWidget(parameter);
  return true;
}

}  // namespace zelto
