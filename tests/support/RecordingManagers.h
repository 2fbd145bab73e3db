// Managers that note how they were called and answer from memory. A program that defines the factories of
// CZeltoImp itself puts them behind the facades, so that the dispatcher is seen alone.
#pragma once

#include <string>
#include <vector>

#include "Common/AccountManagerImp.h"
#include "Common/CallManagerImp.h"
#include "Common/ChatManagerImp.h"
#include "Common/ContactManagerImp.h"
#include "Common/HistoryManagerImp.h"

namespace recording {

// What every manager answers, and the calls while `noting` is on: Login("ann", null, true).
struct Notes {
  bool noting = false;
  std::vector<std::string> calls;
  bool truth = true;
  int number = 42;
  const char* text = "a text from memory";
};

// Each thread has its own, so that the engine's threads do not write between the test's lines.
inline Notes& TheNotes() {
  static thread_local Notes notes;
  return notes;
}

inline std::string Written(const char* text) {
  return text != nullptr ? '"' + std::string(text) + '"' : "null";
}
inline std::string Written(bool value) { return value ? "true" : "false"; }
inline std::string Written(int value) { return std::to_string(value); }
inline std::string Written(unsigned value) { return std::to_string(value); }

// Turns into whatever the operation answers.
struct FromMemory {
  operator bool() const { return TheNotes().truth; }
  operator int() const { return TheNotes().number; }
  operator const char*() const { return TheNotes().text; }
  operator std::string() const { return TheNotes().text; }
};

// A call of an operation.
struct Noted {
  const char* operation;
  template <class... Arguments>
  FromMemory operator()(Arguments... arguments) const {
    Notes& notes = TheNotes();
    if (!notes.noting) return {};
    std::string list;
    ((list += (list.empty() ? "" : ", ") + Written(arguments)), ...);
    notes.calls.push_back(std::string(operation) + "(" + list + ")");
    return {};
  }
};

// NOTED(answer, (parameters), (their names), operation...): up to six operations of one shape.
#define NOTED(...) NOTED_PICK(__VA_ARGS__, NOTED_6, NOTED_5, NOTED_4, NOTED_3, NOTED_2, NOTED_1)(__VA_ARGS__)
#define NOTED_PICK(answer, parameters, names, o1, o2, o3, o4, o5, o6, chosen, ...) chosen
#define NOTED_1(answer, parameters, names, operation) \
  answer operation parameters override { return Noted{#operation} names; }
#define NOTED_2(answer, parameters, names, o, ...) \
  NOTED_1(answer, parameters, names, o) NOTED_1(answer, parameters, names, __VA_ARGS__)
#define NOTED_3(answer, parameters, names, o, ...) \
  NOTED_1(answer, parameters, names, o) NOTED_2(answer, parameters, names, __VA_ARGS__)
#define NOTED_4(answer, parameters, names, o, ...) \
  NOTED_1(answer, parameters, names, o) NOTED_3(answer, parameters, names, __VA_ARGS__)
#define NOTED_5(answer, parameters, names, o, ...) \
  NOTED_1(answer, parameters, names, o) NOTED_4(answer, parameters, names, __VA_ARGS__)
#define NOTED_6(answer, parameters, names, o, ...) \
  NOTED_1(answer, parameters, names, o) NOTED_5(answer, parameters, names, __VA_ARGS__)

// Lets every event through.
template <class Manager>
class Passing : public Manager {
 public:
  void Init() override {}
  bool OnEvent(const CZeltoEvent*) override { return true; }
};

class AccountManager : public Passing<CAccountManagerImp> {
 public:
  NOTED(bool, (), (), IsAutoSignInEnabled, IsDefaultAccountAvailable)
  NOTED(int, (), (), GetLogoutReason, GetLoginState)
  NOTED(const char*, (), (), GetSuggestedZeltoNameList)
  NOTED(bool, (bool flag), (flag), Logout)
  NOTED(bool, (int number), (number), SetAvailability, IsDBError)
  NOTED(const char*, (int number), (number), GetLastLoginID, GetAccountInfo, GetAccountCapability,
        GetAccountCapabilityExpireDate, GetSuggestedZeltoName)
  NOTED(bool, (const char* text), (text), IsValidEmail, SetMoodMessage, IsDefaultAccountZeltoName,
        IsAccountAvailable)
  NOTED(const char*, (const char* text), (text), GetAvailableZeltoname, NormalizeIdentityForNewAccount)
  NOTED(bool, (int property, const char* value), (property, value), SetProp, SetServerSideProp)
  NOTED(int, (const char* name, const char* password), (name, password), ValidatePasswd)
  NOTED(bool, (const char* before, const char* after), (before, after), ChangePassword)
  NOTED(bool, (const char* name, const char* password, bool automatic), (name, password, automatic), Login)
  NOTED(bool, (const char* name, const char* password, const char* email, bool savePassword, bool offers),
        (name, password, email, savePassword, offers), Register)
  void SetSuggestedZeltoNameList(const char* names) override { Noted{"SetSuggestedZeltoNameList"}(names); }
};

class ContactManager : public Passing<CContactManagerImp> {
 public:
  NOTED(int, (), (), GetNumOfContacts, GetNumOfContactsWithoutUnauthorizedContacts)
  NOTED(const char*, (), (), GetBlockedContactList, GetSearchedContactList, GetOnlinedContactName,
        GetStateChangedContact, GetOnlineContacts, GetCallee)
  NOTED(int, (int number), (number), GetNumOfContactsInCategory)
  NOTED(const char*, (int number), (number), GetBlockedContact)
  NOTED(bool, (const char* text), (text), Remove, Unblock, IsBlocked, IsMyBuddy, SetCallee)
  NOTED(bool, (const char* text), (text), SearchNewContact, SearchContactProfile)
  NOTED(int, (const char* text), (text), GetIndexOfContact, GetTypeOfIdentity, GetContactStatus)
  NOTED(const char*, (const char* text), (text), GetProfileInfo, FindContactWithEmail, GetContactImage,
        GetZeltoNameWithDisplayName)
  NOTED(const char*, (int index, int property), (index, property), GetContactInfo)
  NOTED(const char*, (const char* name, int property), (name, property), GetContactInfo)
  NOTED(const char*, (const char* name, int count, int before), (name, count, before), GetContactInfo)
  NOTED(const char*, (int start, int count), (start, count), GetContactListWithoutCallMember,
        GetContactListWithoutUnauthorizedContacts, GetContactListWithoutCallMemberAndUnauthorizedContacts)
  NOTED(bool, (const char* name, const char* text), (name, text), AddContact, AddZeltoOutContact, Rename)
  NOTED(bool, (const char* name, bool remove), (name, remove), Block)
  NOTED(bool, (const char* name, bool reject, bool block), (name, reject, block), Authorize)
  NOTED(bool, (const char* name, int capability, bool flag), (name, capability, flag), HasCapability)
  NOTED(bool, (const char* name, unsigned slot, const char* type, const char* number),
        (name, slot, type, number), SetAssignedPhoneNumber)
};

class CallManager : public Passing<CCallManagerImp> {
 public:
  bool AfterEvent(const CZeltoEvent*) override { return true; }
  NOTED(bool, (), (), StartSendVideo, StopSendVideo, StartRecvVideo, StopRecvVideo, IsSendingVideo)
  NOTED(bool, (), (), AnswerWithVideo, AnswerWithVoice, Reject, Forward, RedirectVoiceMail, StopRingPlayer)
  NOTED(bool, (), (), BlockIncomingCall, Hold, Resume, CancelVoicemail, IsReceivingVideo)
  NOTED(bool, (), (), IsConference, IsPSTNCall, IsInCall, IsInCalling, IsInHold, IsMissed)
  NOTED(bool, (), (), IsCallMemberVideoAvailable)
  NOTED(int, (), (), GetNumOfCallMembers, GetCallType)
  NOTED(bool, (bool flag), (flag), CallEnd, UnblockIncomingCall, Mute)
  NOTED(bool, (int number), (number), SendDTMF, Answer)
  NOTED(const char*, (int number), (number), GetCallMemberIdentity, GetCallMemberDisplayName,
        GetCallMemberAvatarPath, GetCallMemberStatus, GetCallMemberOnlineState, GetCallMemberName)
  NOTED(bool, (const char* text), (text), IsEmergencyCall, LeaveVoicemail)
  NOTED(const char*, (const char* text), (text), NormalizeIdentity)
  NOTED(const char*, (int index, int property), (index, property), GetCallMemberInfo)
  NOTED(const char*, (const char* name, int property), (name, property), GetCallMemberInfo)
  NOTED(bool, (const char* name, int type), (name, type), CreateCall)
  bool SetRingVolume(unsigned char) override { return true; }
  void UpdateSpeakingCallMember(void*, int) override {}
  void UpdateCallMemberProperty(void*, int, const ZEString&) override {}
  void SetMissed(bool missed) override { Noted{"SetMissed"}(missed); }
  void AddToMissedCallList() override { Noted{"AddToMissedCallList"}(); }
};

class ChatManager : public Passing<CChatManagerImp> {
 public:
  NOTED(bool, (), (), RefreshChatList)
  NOTED(int, (), (), GetNumOfChatList, GetTotalNumOfUnReadMessages, GetTotalNumOfUnReadChats)
  NOTED(const char*, (), (), GetChatList)
  NOTED(const char*, (int number), (number), GetCurrentChatProperty)
  NOTED(bool, (const char* text), (text), OpenChatWithChatName, OpenChatWithContact, CloseChat, LeaveChat,
        SendMessage, SetAllMessagesRead)
  NOTED(int, (const char* text), (text), GetNumOfMessages)
  NOTED(const char*, (const char* text), (text), GetMessages, GetRecentMessages)
  NOTED(bool, (const char* name, const char* text), (name, text), SendMessage)
  NOTED(const char*, (int index, int property), (index, property), GetChatProperty)
  NOTED(const char*, (int start, int end, const char* name), (start, end, name), GetMessages)
  NOTED(const char*, (int index, int count, int before), (index, count, before), GetChatList)
  NOTED(const char*, (const char* name, int count, int before), (name, count, before), GetChatList)
};

class HistoryManager : public Passing<CHistoryManagerImp> {
 public:
  NOTED(bool, (), (), RefreshHistoryList, RefreshMissedCallList, isMissedCallOneMember)
  NOTED(int, (), (), GetNumOfHistories, GetNumOfMissedCall)
  NOTED(const char*, (), (), GetZeltoOutHistoryList)
  NOTED(std::string, (), (), GetMissedCallMemberName, GetMissedCallTimeStamp)
  NOTED(bool, (int number), (number), PlayVoicemail, StopVoicemail, DeleteHistory)
  NOTED(int, (const char* text), (text), GetHistoryIndexWithTimestamp)
  NOTED(const char*, (int index, int key), (index, key), GetHistoryInfo)
  NOTED(const char*, (const char* time, int key), (time, key), GetHistoryInfoWithTimestamp)
  NOTED(const char*, (int index, int count, int before), (index, count, before), GetHistoryInfo,
        GetHistoryInfoIncludingTimestamp, GetHistoryInfoIncludingCallMembers)
};

#undef NOTED

}  // namespace recording
