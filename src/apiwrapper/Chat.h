#pragma once

#include "apiwrapper/ChatMember.h"
#include "apiwrapper/ZEObject.h"
#include "apiwrapper/ZEPtrVector.h"

class ChatMessage;

// A chat: a dialog with one contact, or one of several persons.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class Chat : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_NAME = 1, P_2 = 2, P_3 = 3, P_4 = 4, P_5 = 5, P_6 = 6, P_TYPE = 7, P_MYSTATUS = 8, P_MYROLE = 9,
    P_POSTER = 10, P_11 = 11, P_12 = 12, P_13 = 13, P_14 = 14, P_15 = 15, P_16 = 16, P_17 = 17, P_18 = 18,
    P_19 = 19, P_20 = 20, P_LAST_ACTIVITY = 21, P_DIALOG_PARTNER = 22, P_23 = 23
  };
  // clang-format on
  // Named are the values that the engine itself goes by; the runtime knows more of them.
  enum TYPE : int { TYPE_DIALOG = 2, TYPE_MULTI_PERSON = 3 };
  enum LEAVEREASON : int {};

  Chat(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;

  ZEString GetJoinBlob();
  bool Join();
  bool SetPassword(const ZEString& password, const ZEString& hint);
  bool EnterPassword(const ZEString& password);
  bool AcceptAdd();
  bool AddMembers(const ZEStringList& identities);
  bool SetPicture(const ZEString& picture);
  // A binary string.
  ZEString GetPicture();
  // Slots of ChatMessage, oldest first; `earlier` holds those that led up to them.
  bool GetRecentMessages(ZEPtrVector& earlier, ZEPtrVector& messages);
  bool ClearRecentMessages();
  bool GetUnsentMessages(ZEPtrVector& messages);
  bool SetOptions(int options);
  // The new message; null when it was refused.
  ChatMessage* Say(const ZEString& text, bool flag);
  bool SetTopic(const ZEString& topic, bool flag);
  bool SetGuidelines(const ZEString& guidelines, bool flag);
  bool KickMember(const ZEString& identity, const ZEString& reason);
  bool PostContacts(const ZEPtrVector& contacts);
  bool PostFiles(const ZEStringList& files, const ZEString& text);
  void ReportMyActivities(ChatMember::ACTIVITY activity);
  bool Leave(LEAVEREASON reason);
  bool Disband();
  bool SetBookmark(bool bookmark);
  bool SetAlertString(const ZEString& text);
  bool Delete();
  // Slots of ChatMember.
  ZEPtrVector GetMembers();
};
