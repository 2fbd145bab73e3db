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
};

template <class... Arguments>
FromMemory Note(const char* operation, Arguments... arguments) {
  Notes& notes = TheNotes();
  if (!notes.noting) return {};
  std::string list;
  ((list += (list.empty() ? "" : ", ") + Written(arguments)), ...);
  notes.calls.push_back(std::string(operation) + "(" + list + ")");
  return {};
}

class AccountManager : public CAccountManagerImp {
 public:
  void Init() override {}
  bool OnEvent(const CZeltoEvent*) override { return true; }
  bool Login(const char* name, const char* password, bool autoSignIn) override {
    return Note("Login", name, password, autoSignIn);
  }
  bool Register(const char* name, const char* password, const char* email, bool savePassword,
                bool allowOffers) override {
    return Note("Register", name, password, email, savePassword, allowOffers);
  }
  bool Logout(bool flag) override { return Note("Logout", flag); }
  const char* GetLastLoginID(int slot) override { return Note("GetLastLoginID", slot); }
  const char* GetAccountInfo(int property) override { return Note("GetAccountInfo", property); }
  const char* GetAccountCapability(int capability) override {
    return Note("GetAccountCapability", capability);
  }
  const char* GetAccountCapabilityExpireDate(int capability) override {
    return Note("GetAccountCapabilityExpireDate", capability);
  }
  const char* GetSuggestedZeltoName(int index) override { return Note("GetSuggestedZeltoName", index); }
  const char* GetSuggestedZeltoNameList() override { return Note("GetSuggestedZeltoNameList"); }
  void SetSuggestedZeltoNameList(const char* names) override { Note("SetSuggestedZeltoNameList", names); }
  const char* GetAvailableZeltoname(const char* name) override { return Note("GetAvailableZeltoname", name); }
  int GetLogoutReason() override { return Note("GetLogoutReason"); }
  int GetLoginState() override { return Note("GetLoginState"); }
  int ValidatePasswd(const char* name, const char* password) override {
    return Note("ValidatePasswd", name, password);
  }
  bool IsValidEmail(const char* email) override { return Note("IsValidEmail", email); }
  bool ChangePassword(const char* oldPassword, const char* newPassword) override {
    return Note("ChangePassword", oldPassword, newPassword);
  }
  bool SetAvailability(int availability) override { return Note("SetAvailability", availability); }
  bool SetMoodMessage(const char* mood) override { return Note("SetMoodMessage", mood); }
  bool SetProp(int property, const char* value) override { return Note("SetProp", property, value); }
  bool SetServerSideProp(int property, const char* value) override {
    return Note("SetServerSideProp", property, value);
  }
  bool IsAutoSignInEnabled() override { return Note("IsAutoSignInEnabled"); }
  bool IsDefaultAccountAvailable() override { return Note("IsDefaultAccountAvailable"); }
  bool IsDBError(int logoutReason) override { return Note("IsDBError", logoutReason); }
  bool IsDefaultAccountZeltoName(const char* name) override {
    return Note("IsDefaultAccountZeltoName", name);
  }
  const char* NormalizeIdentityForNewAccount(const char* identity) override {
    return Note("NormalizeIdentityForNewAccount", identity);
  }
  bool IsAccountAvailable(const char* name) override { return Note("IsAccountAvailable", name); }
};

class ContactManager : public CContactManagerImp {
 public:
  void Init() override {}
  bool OnEvent(const CZeltoEvent*) override { return true; }
  int GetNumOfContacts() override { return Note("GetNumOfContacts"); }
  int GetNumOfContactsInCategory(int category) override {
    return Note("GetNumOfContactsInCategory", category);
  }
  const char* GetContactInfo(int index, int property) override {
    return Note("GetContactInfo", index, property);
  }
  const char* GetContactInfo(const char* name, int property) override {
    return Note("GetContactInfo", name, property);
  }
  const char* GetContactInfo(const char* name, int num, int before) override {
    return Note("GetContactInfo", name, num, before);
  }
  const char* GetContactListWithoutCallMember(int start, int num) override {
    return Note("GetContactListWithoutCallMember", start, num);
  }
  const char* GetContactListWithoutUnauthorizedContacts(int start, int num) override {
    return Note("GetContactListWithoutUnauthorizedContacts", start, num);
  }
  const char* GetContactListWithoutCallMemberAndUnauthorizedContacts(int start, int num) override {
    return Note("GetContactListWithoutCallMemberAndUnauthorizedContacts", start, num);
  }
  int GetNumOfContactsWithoutUnauthorizedContacts() override {
    return Note("GetNumOfContactsWithoutUnauthorizedContacts");
  }
  bool Remove(const char* identity) override { return Note("Remove", identity); }
  bool Block(const char* identity, bool remove) override { return Note("Block", identity, remove); }
  bool Unblock(const char* identity) override { return Note("Unblock", identity); }
  bool IsBlocked(const char* identity) override { return Note("IsBlocked", identity); }
  const char* GetBlockedContact(int index) override { return Note("GetBlockedContact", index); }
  const char* GetBlockedContactList() override { return Note("GetBlockedContactList"); }
  bool AddContact(const char* identity, const char* message) override {
    return Note("AddContact", identity, message);
  }
  bool AddZeltoOutContact(const char* number, const char* displayName) override {
    return Note("AddZeltoOutContact", number, displayName);
  }
  bool Authorize(const char* identity, bool reject, bool block) override {
    return Note("Authorize", identity, reject, block);
  }
  int GetIndexOfContact(const char* name) override { return Note("GetIndexOfContact", name); }
  bool IsMyBuddy(const char* identity) override { return Note("IsMyBuddy", identity); }
  bool SearchNewContact(const char* text) override { return Note("SearchNewContact", text); }
  bool SearchContactProfile(const char* identity) override { return Note("SearchContactProfile", identity); }
  const char* GetSearchedContactList() override { return Note("GetSearchedContactList"); }
  const char* GetProfileInfo(const char* name) override { return Note("GetProfileInfo", name); }
  bool Rename(const char* identity, const char* displayName) override {
    return Note("Rename", identity, displayName);
  }
  bool SetAssignedPhoneNumber(const char* identity, unsigned int slot, const char* type,
                              const char* number) override {
    return Note("SetAssignedPhoneNumber", identity, slot, type, number);
  }
  bool HasCapability(const char* identity, int capability, bool flag) override {
    return Note("HasCapability", identity, capability, flag);
  }
  const char* GetOnlinedContactName() override { return Note("GetOnlinedContactName"); }
  const char* GetStateChangedContact() override { return Note("GetStateChangedContact"); }
  int GetTypeOfIdentity(const char* identity) override { return Note("GetTypeOfIdentity", identity); }
  const char* GetOnlineContacts() override { return Note("GetOnlineContacts"); }
  bool SetCallee(const char* name) override { return Note("SetCallee", name); }
  const char* GetCallee() override { return Note("GetCallee"); }
  const char* FindContactWithEmail(const char* text) override { return Note("FindContactWithEmail", text); }
  const char* GetContactImage(const char* name) override { return Note("GetContactImage", name); }
  int GetContactStatus(const char* name) override { return Note("GetContactStatus", name); }
  const char* GetZeltoNameWithDisplayName(const char* displayName) override {
    return Note("GetZeltoNameWithDisplayName", displayName);
  }
};

class CallManager : public CCallManagerImp {
 public:
  void Init() override {}
  bool OnEvent(const CZeltoEvent*) override { return true; }
  bool AfterEvent(const CZeltoEvent*) override { return true; }
  bool CreateCall(const char* identity, int type) override { return Note("CreateCall", identity, type); }
  bool CallEnd(bool force) override { return Note("CallEnd", force); }
  bool BlockIncomingCall() override { return Note("BlockIncomingCall"); }
  bool UnblockIncomingCall(bool keep) override { return Note("UnblockIncomingCall", keep); }
  int GetNumOfCallMembers() override { return Note("GetNumOfCallMembers"); }
  const char* GetCallMemberInfo(int index, int property) override {
    return Note("GetCallMemberInfo", index, property);
  }
  const char* GetCallMemberInfo(const char* identity, int property) override {
    return Note("GetCallMemberInfo", identity, property);
  }
  bool SendDTMF(int tone) override { return Note("SendDTMF", tone); }
  bool StartSendVideo() override { return Note("StartSendVideo"); }
  bool StopSendVideo() override { return Note("StopSendVideo"); }
  bool StartRecvVideo() override { return Note("StartRecvVideo"); }
  bool StopRecvVideo() override { return Note("StopRecvVideo"); }
  bool Hold() override { return Note("Hold"); }
  bool Resume() override { return Note("Resume"); }
  bool Answer(int mode) override { return Note("Answer", mode); }
  bool AnswerWithVideo() override { return Note("AnswerWithVideo"); }
  bool AnswerWithVoice() override { return Note("AnswerWithVoice"); }
  bool Reject() override { return Note("Reject"); }
  bool Forward() override { return Note("Forward"); }
  bool RedirectVoiceMail() override { return Note("RedirectVoiceMail"); }
  bool IsConference() override { return Note("IsConference"); }
  const char* GetCallMemberIdentity(int index) override { return Note("GetCallMemberIdentity", index); }
  const char* GetCallMemberDisplayName(int index) override { return Note("GetCallMemberDisplayName", index); }
  const char* GetCallMemberAvatarPath(int index) override { return Note("GetCallMemberAvatarPath", index); }
  const char* GetCallMemberStatus(int index) override { return Note("GetCallMemberStatus", index); }
  const char* GetCallMemberOnlineState(int index) override { return Note("GetCallMemberOnlineState", index); }
  const char* GetCallMemberName(int index) override { return Note("GetCallMemberName", index); }
  bool IsPSTNCall() override { return Note("IsPSTNCall"); }
  int GetCallType() override { return Note("GetCallType"); }
  bool Mute(bool mute) override { return Note("Mute", mute); }
  const char* NormalizeIdentity(const char* identity) override { return Note("NormalizeIdentity", identity); }
  bool IsEmergencyCall(const char* identity) override { return Note("IsEmergencyCall", identity); }
  bool IsSendingVideo() override { return Note("IsSendingVideo"); }
  bool IsReceivingVideo() override { return Note("IsReceivingVideo"); }
  bool LeaveVoicemail(const char* identity) override { return Note("LeaveVoicemail", identity); }
  bool CancelVoicemail() override { return Note("CancelVoicemail"); }
  bool IsInCall() override { return Note("IsInCall"); }
  bool IsInCalling() override { return Note("IsInCalling"); }
  bool IsCallMemberVideoAvailable() override { return Note("IsCallMemberVideoAvailable"); }
  bool SetRingVolume(unsigned char) override { return true; }
  bool StopRingPlayer() override { return Note("StopRingPlayer"); }
  void UpdateSpeakingCallMember(void*, int) override {}
  void UpdateCallMemberProperty(void*, int, const ZEString&) override {}
  bool IsInHold() override { return Note("IsInHold"); }
  bool IsMissed() override { return Note("IsMissed"); }
  void SetMissed(bool missed) override { Note("SetMissed", missed); }
  void AddToMissedCallList() override { Note("AddToMissedCallList"); }
};

class ChatManager : public CChatManagerImp {
 public:
  void Init() override {}
  bool OnEvent(const CZeltoEvent*) override { return true; }
  bool OpenChatWithChatName(const char* name) override { return Note("OpenChatWithChatName", name); }
  bool OpenChatWithContact(const char* identity) override { return Note("OpenChatWithContact", identity); }
  bool CloseChat(const char* name) override { return Note("CloseChat", name); }
  bool LeaveChat(const char* name) override { return Note("LeaveChat", name); }
  const char* GetMessages(const char* name) override { return Note("GetMessages", name); }
  const char* GetMessages(int start, int end, const char* name) override {
    return Note("GetMessages", start, end, name);
  }
  int GetNumOfMessages(const char* name) override { return Note("GetNumOfMessages", name); }
  bool SendMessage(const char* text) override { return Note("SendMessage", text); }
  bool SendMessage(const char* name, const char* text) override { return Note("SendMessage", name, text); }
  const char* GetRecentMessages(const char* name) override { return Note("GetRecentMessages", name); }
  int GetNumOfChatList() override { return Note("GetNumOfChatList"); }
  int GetTotalNumOfUnReadMessages() override { return Note("GetTotalNumOfUnReadMessages"); }
  int GetTotalNumOfUnReadChats() override { return Note("GetTotalNumOfUnReadChats"); }
  const char* GetChatList() override { return Note("GetChatList"); }
  const char* GetChatList(int index, int num, int before) override {
    return Note("GetChatList", index, num, before);
  }
  const char* GetChatList(const char* name, int num, int before) override {
    return Note("GetChatList", name, num, before);
  }
  const char* GetChatProperty(int index, int property) override {
    return Note("GetChatProperty", index, property);
  }
  const char* GetCurrentChatProperty(int property) override {
    return Note("GetCurrentChatProperty", property);
  }
  bool SetAllMessagesRead(const char* name) override { return Note("SetAllMessagesRead", name); }
  bool RefreshChatList() override { return Note("RefreshChatList"); }
};

class HistoryManager : public CHistoryManagerImp {
 public:
  void Init() override {}
  bool OnEvent(const CZeltoEvent*) override { return true; }
  int GetNumOfHistories() override { return Note("GetNumOfHistories"); }
  const char* GetHistoryInfo(int index, int key) override { return Note("GetHistoryInfo", index, key); }
  const char* GetHistoryInfo(int index, int num, int before) override {
    return Note("GetHistoryInfo", index, num, before);
  }
  const char* GetHistoryInfoWithTimestamp(const char* time, int key) override {
    return Note("GetHistoryInfoWithTimestamp", time, key);
  }
  const char* GetHistoryInfoIncludingTimestamp(int index, int num, int before) override {
    return Note("GetHistoryInfoIncludingTimestamp", index, num, before);
  }
  const char* GetHistoryInfoIncludingCallMembers(int index, int num, int before) override {
    return Note("GetHistoryInfoIncludingCallMembers", index, num, before);
  }
  int GetHistoryIndexWithTimestamp(const char* time) override {
    return Note("GetHistoryIndexWithTimestamp", time);
  }
  const char* GetZeltoOutHistoryList() override { return Note("GetZeltoOutHistoryList"); }
  bool PlayVoicemail(int index) override { return Note("PlayVoicemail", index); }
  bool StopVoicemail(int index) override { return Note("StopVoicemail", index); }
  bool DeleteHistory(int index) override { return Note("DeleteHistory", index); }
  bool RefreshHistoryList() override { return Note("RefreshHistoryList"); }
  bool RefreshMissedCallList() override { return Note("RefreshMissedCallList"); }
  int GetNumOfMissedCall() override { return Note("GetNumOfMissedCall"); }
  std::string GetMissedCallMemberName() override {
    return static_cast<const char*>(Note("GetMissedCallMemberName"));
  }
  std::string GetMissedCallTimeStamp() override {
    return static_cast<const char*>(Note("GetMissedCallTimeStamp"));
  }
  bool isMissedCallOneMember() override { return Note("isMissedCallOneMember"); }
};

}  // namespace recording
