// The account manager's reactions to engine events, and what a sign-in or sign-out brings about in the other
// managers.
#include "Common/AccountManager.h"
#include "Common/Log.h"
#include "Common/ZeltoEvent.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/apiwrapper/client/CAccount.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/chats/ZelhostChatManager.h"
#include "zelhost/contacts/ContactProperties.h"
#include "zelhost/contacts/ZelhostContactManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"
#include "zelhost/lifecycle/ZelhostLifeCycle.h"

using zelhost::ServiceHostLock;

namespace {

constexpr CZeltoManager::EVENT_TYPE kHandledEvents[] = {
    CZeltoManager::ACCOUNT_LOGGED_IN,       CZeltoManager::ACCOUNT_CBL_IN_SYNC,
    CZeltoManager::ACCOUNT_CBL_SYNC_FAILED, CZeltoManager::ACCOUNT_LOGGED_OUT,
    CZeltoManager::ACCOUNT_COMMITTED,       CZeltoManager::ACCOUNT_COMMITTING,
    CZeltoManager::ACCOUNT_COMMIT_FAILED};

void RefreshHistoryAndChats() {
  CZelhostHistoryManager::GetInstance()->RefreshHistoryList();
  CZelhostChatManager::GetInstance()->RefreshChatList();
}

}  // namespace

void CZelhostAccountManager::Init() {
  for (const CZeltoManager::EVENT_TYPE type : kHandledEvents) {
    CZeltoManager::SetEventHandler(type, CAccountManager::GetInstance());
  }
}

bool CZelhostAccountManager::OnEvent(const CZeltoEvent* event) {
  ServiceHostLock lock("account event");
  ZELTO_DEBUG("%s %d event=%d\n", "OnEvent", __LINE__, event->type);
  switch (event->type) {
    case CZeltoManager::ACCOUNT_LOGGED_IN:
      OnSignedIn();
      return true;
    case CZeltoManager::ACCOUNT_CBL_IN_SYNC:
      OnContactListInSync();
      return true;
    case CZeltoManager::ACCOUNT_LOGGED_OUT:
      OnSignedOut(event->param);
      return true;
    case CZeltoManager::ACCOUNT_CBL_SYNC_FAILED:
      return OnContactListSyncFailed();
    case CZeltoManager::ACCOUNT_COMMITTED:
    case CZeltoManager::ACCOUNT_COMMITTING:
    case CZeltoManager::ACCOUNT_COMMIT_FAILED:
      return OnCommit(event->type);
    default:
      return true;
  }
}

// An automatic sign-in has its history and chats at once; the others wait for the contact list.
void CZelhostAccountManager::OnSignedIn() {
  GetAccountAllInfo();
  m_LoginState = kSignedIn;
  CZelhostContactManager::GetInstance()->GetContactAllInfo();
  if (m_bAutoLogin) RefreshHistoryAndChats();
}

void CZelhostAccountManager::OnContactListInSync() {
  if (m_bRegistering) AddSndtest();
  CZelhostContactManager::GetInstance()->GetContactAllInfo();
  if (!m_bAutoLogin) RefreshHistoryAndChats();
}

void CZelhostAccountManager::OnSignedOut(int reason) {
  m_LogoutReason = reason;
  if (IsDBError(reason)) {
    ZELTO_FATAL("Zelto DB Error");
    ReloadWithFreshDatabase();
  }
  m_LoginState = kSignedOut;
  CZelhostContactManager::GetInstance()->ClearContactList();
  CZelhostHistoryManager::GetInstance()->ClearHistoryList();
  CZelhostChatManager::GetInstance()->ClearChatList();
  CZeltoManager::CallCommonControl("StopRecognition", "0");
  m_cache.DropPending();
  m_cache.ClearInfo();
}

// Unloading deletes the managers, except for this one while its handler runs; the others are back when it
// returns.
void CZelhostAccountManager::ReloadWithFreshDatabase() {
  CZeltoManager::Unload();
  CZeltoManager::ResetDB();
  CZeltoManager::Load();
  CZelhostLifeCycle::BringUpManagers();
}

// The runtime's default account signs in without the server's list; the engine goes on as if it had come.
bool CZelhostAccountManager::OnContactListSyncFailed() {
  if (m_LoginState != kSignedIn || !m_bAutoLogin) return true;
  ZELTO_DEBUG("fake cbl_in_sync for default account");
  CZeltoManager::SendEvent(CZeltoManager::ACCOUNT_CBL_IN_SYNC, 0);
  return false;
}

// Before the first contact list the runtime commits what the sign-in itself changed: nobody else's business.
bool CZelhostAccountManager::OnCommit(int type) {
  if (type == CZeltoManager::ACCOUNT_COMMITTED) m_cache.CommitPending();
  m_cache.DropPending();
  const CAccount* account = g_lpZelto == nullptr ? nullptr : g_lpZelto->m_lpActiveAccount;
  if (account == nullptr || account->m_nCblInSyncCount != 0) return true;
  ZELTO_DEBUG("Ignore comit event during login progress");
  return false;
}

bool CZelhostAccountManager::AddSndtest() {
  ServiceHostLock lock("AddSndtest");
  if (!IsReady()) return false;
  const ZEString group = ZEPMap(CONTACTGROUP_TYPE_MAP).map(ContactGroup::ZELTO_BUDDIES);
  g_lpZelto->AddRemoveContact(group, zelhost::kSoundTestName, false, true);
  Contact* contact = g_lpZelto->GetContact(zelhost::kSoundTestName);
  if (contact == nullptr) {
    ZELTO_DEBUG("lpContact is Null");
    return false;
  }
  contact->GiveAuthLevel(Contact::AUTH_AUTHORIZED);
  contact->SetBuddyStatus(true);
  return true;
}
