#pragma once

#include <cstdarg>
#include <cstdio>

#include "apiwrapper/Zelto.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CContactSearch.h"
#include "zelhost/apiwrapper/client/CList.h"
#include "zelhost/apiwrapper/client/TraceCategories.h"

class CAccount;
class CCall;
class CChat;
class CTransfer;
class CVoicemail;
class ZETransport;

// What HandleContactGroups does with each group.
enum PARAM {
  kGroupsTrace = 1,     // trace groups and contacts
  kGroupsDelete = 2,    // delete the proxies of both
  kGroupsPrefetch = 3,  // only fill the contacts' property caches
};

// The engine's root object: makes the engine's own proxies, turns the runtime's notifications into engine
// events and work for the managers, and owns the calls, chats, transfers and voicemails in use.
// Threads: every use holds the service-host mutex; callbacks run inside pollEvents.
class CZelto : public Zelto {
 public:
  // `recordFile` is opened for writing when it is not empty. The transport is not owned.
  CZelto(ZETransport* transport, bool flag, const ZEString& recordFile);
  ~CZelto() override;

  // The text after the category's label, on standard error; nothing when the mask leaves it out.
  __attribute__((format(printf, 3, 4))) void trace(unsigned category, const char* format, ...) const;
  void traceList(unsigned category, const char* format, va_list arguments) const;
  bool IsTraced(unsigned category) const;
  // 0 silences every category; other bits are added to the mask.
  void SetLogLevel(unsigned mask);
  // A line of the record file, when one is open.
  void trace_do(const ZEString& text);

  // Deletes every call, chat, transfer and voicemail of the lists.
  void FlushQuickLists();
  // Fetches four properties of every contact of every group in one request per group, then treats the
  // groups as `mode` says.
  void HandleContactGroups(PARAM mode);
  // Prints the contacts of three hardwired groups.
  void HandleSomeContactGroups();
  // The group of that type token or, failing that, display name; null when there is none.
  ContactGroup* FindByName(const ZEString& name);
  // Adds or removes a contact. The group call's result, or non-zero after a printed failure.
  int AddRemoveContact(const ZEString& group, const ZEString& identity, bool custom, bool add);
  // False when no such search can be started.
  bool StartContactSearch(const ZEString& text, CContactSearch::SEARCH_TYPE type);

  CList<CCall*> m_calls;
  CList<CChat*> m_chats;
  CList<CTransfer*> m_transfers;
  CList<CVoicemail*> m_voicemails;
  int lastCallIndex = 0;  // the position that the most recently added call took
  CAccount* m_lpActiveAccount = nullptr;

  // Takes the call out of the list, deleting it, and brings lastCallIndex in line.
  void RemoveCall(CCall* call);

  void onEventReady(unsigned int count) override;

  Account* newAccount(int oid) override;
  Contact* newContact(int oid) override;
  ContactGroup* newContactGroup(int oid) override;
  CallMember* newCallMember(int oid) override;
  Call* newCall(int oid) override;
  Video* newVideo(int oid) override;
  Transfer* newTransfer(int oid) override;
  Voicemail* newVoicemail(int oid) override;
  Sms* newSms(int oid) override;
  Chat* newChat(int oid) override;
  ChatMember* newChatMember(int oid) override;
  ChatMessage* newChatMessage(int oid) override;
  Search* newSearch(int oid) override;
  ContactSearch* newContactSearch(int oid) override;
  App2App* newApp2App(const ZEString& name) override;

  void OnLibStatusChange(LIBSTATUS status) override;
  void OnConnStatusChange(CONNSTATUS status) override;
  void OnFileError(FILEERROR error) override;
  void OnProxyAuthenticationFailure(PROXYTYPE type) override;
  void OnUpgradeInfo(UPGRADEAVAILABILITY availability, const ZEString& text) override;
  void OnUICRequest(const ZEString& blob) override;
  void OnNewCall(Call* call) override ZELTO_REQUIRES(zelhost::ServiceHostMutex::Get());
  void OnIncomingTransfer(Transfer* transfer) override;
  void OnIncomingVoicemail(Voicemail* voicemail) override;
  void OnChatMessage(Chat* chat, ChatMessage* message) override;
  void OnNewCustomContactGroup(ContactGroup* group) override;
  void OnContactOnlineAppearance(Contact* contact) override;

 private:
  bool IsBusy(const CCall* call) const ZELTO_REQUIRES(zelhost::ServiceHostMutex::Get());
  void RefuseAsBusy(CCall* call);
  void HandleContactGroup(ContactGroup* group, PARAM mode);
  void TraceGroup(ContactGroup* group, const ZEPtrVector& contacts) const;
  void DeleteGroup(ContactGroup* group, const ZEPtrVector& contacts);

  unsigned m_traceMask = kTraceAll;
  std::FILE* m_record = nullptr;
};

// The one root object in use, null while no runtime is connected. Written and read under the service-host
// mutex only.
extern CZelto* g_lpZelto;
