#include "zelhost/apiwrapper/client/CAccount.h"

#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/ZEPMap.h"
#include "apiwrapper/tables/EnumMaps.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/apiwrapper/client/FileBinary.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

// What a changed property brings about.
struct CAccount::Reaction {
  int first;  // properties, both ends included
  int last;
  void (CAccount::*run)(int property, const ZEString& value);
};

namespace {

constexpr int kPasswordChangeEvents = CZeltoManager::ACCOUNT_PROPERTY22_1 - 1;  // plus the status 1 to 8
constexpr int kLastPasswordChange = 8;

void SendEvent(int type, int param = 0) { CZeltoManager::SendEvent(type, param); }

}  // namespace

const CAccount::Reaction* CAccount::FindReaction(int property) {
  // clang-format off
  static constexpr Reaction kReactions[] = {
      {P_2,               P_12,                   &CAccount::Cache},
      {P_AVATAR,          P_AVATAR,               &CAccount::OnAvatar},
      {P_MOOD_TEXT,       P_MOOD_TEXT,            &CAccount::OnMood},
      {P_18,              P_18,                   &CAccount::Cache},
      {P_AVAILABILITY,    P_AVAILABILITY,         &CAccount::OnAvailability},
      {P_STATUS,          P_STATUS,               &CAccount::OnStatus},
      {P_PWDCHANGESTATUS, P_PWDCHANGESTATUS,      &CAccount::OnPasswordChange},
      {P_COMMITSTATUS,    P_COMMITSTATUS,         &CAccount::OnCommitStatus},
      {P_26,              P_26,                   &CAccount::OnName},
      {P_27,              P_27,                   &CAccount::OnSecondName},
      {P_CBLSYNCSTATUS,   P_CBLSYNCSTATUS,        &CAccount::OnContactListSync},
      {P_CALL_FORWARDING, P_PSTN_CALL_POLICY,     &CAccount::Cache},
  };
  // clang-format on
  for (const Reaction& reaction : kReactions) {
    if (property >= reaction.first && property <= reaction.last) return &reaction;
  }
  return nullptr;
}

CAccount::~CAccount() {
  CZelto* root = client::RootOf(*this);
  if (root != nullptr && root->m_lpActiveAccount == this) root->m_lpActiveAccount = nullptr;
}

void CAccount::OnChange(int property, const ZEString& value) {
  if (property == P_AVATAR) {
    client::Trace(*this, kTraceAccount, ".%s:%s =%u", static_cast<const char*>(getNamespace()),
                  static_cast<const char*>(ZEPMap(getPMap()).map(property)), value.length());
  } else {
    client::TraceChange(*this, kTraceAccount, property, value);
  }
  const Reaction* reaction = FindReaction(property);
  if (reaction != nullptr) (this->*reaction->run)(property, value);
}

void CAccount::Cache(int property, const ZEString& value) {
  CZelhostAccountManager::GetInstance()->SetAccountInfo(property, value);
}

// The event carries no picture that could be relied on.
void CAccount::OnAvatar(int, const ZEString&) {
  CZelhostAccountManager::GetInstance()->SetAvatar(GetProp(P_AVATAR));
  SendEvent(CZeltoManager::ACCOUNT_AVATAR_CHANGED);
}

void CAccount::OnMood(int property, const ZEString& value) {
  Cache(property, value);
  SendEvent(CZeltoManager::ACCOUNT_PROPERTY16_CHANGED);
}

void CAccount::OnAvailability(int property, const ZEString& value) {
  Cache(property, value);
  SendEvent(CZeltoManager::ACCOUNT_AVAILABILITY_CHANGED, value.toInt());
}

void CAccount::OnStatus(int, const ZEString& value) {
  switch (value.toInt()) {
    case STATUS_SIGNED_IN:
      return SignedIn();
    case STATUS_SIGNED_OUT_1:
    case STATUS_SIGNED_OUT_2:
      return SignedOut();
    default:
      return;
  }
}

void CAccount::SignedIn() {
  SetAvailability(AVAILABILITY_ONLINE);
  SendEvent(CZeltoManager::ACCOUNT_LOGGED_IN);
  CZelhostLocalSetting::CheckInitPersonalData();
  CZelhostLocalSetting::SaveLoggedInID(GetProp(P_NAME));
}

void CAccount::SignedOut() {
  if (CZelto* root = client::RootOf(*this)) root->FlushQuickLists();
  const int reason = GetProp(P_LOGOUTREASON).toInt();
  client::Trace(*this, kTraceAccount, ".%s:LOGOUTREASON = %s", static_cast<const char*>(getNamespace()),
                static_cast<const char*>(ZEPMap(ACCOUNT_LOGOUTREASON_MAP).map(reason)));
  if (reason == LOGOUT_NAME_TAKEN) {
    const ZEString names = GetProp(P_SUGGESTED_ZELTONAME);
    client::Trace(*this, kTraceAccount, ".%s:SUGGESTED_ZELTONAME = %s",
                  static_cast<const char*>(getNamespace()), static_cast<const char*>(names));
    CZelhostAccountManager::GetInstance()->SetSuggestedZeltoNameList(names);
  }
  SendEvent(CZeltoManager::ACCOUNT_LOGGED_OUT, reason);
  delete this;
}

void CAccount::OnPasswordChange(int, const ZEString& value) {
  const int status = value.toInt();
  if (status >= 1 && status <= kLastPasswordChange) SendEvent(kPasswordChangeEvents + status);
}

void CAccount::OnCommitStatus(int, const ZEString& value) {
  switch (value.toInt()) {
    case COMMITTED:
      ZELTO_DEBUG("*****************COMMITTED");
      return SendEvent(CZeltoManager::ACCOUNT_COMMITTED);
    case COMMITTING_TO_SERVER:
      ZELTO_DEBUG("*****************COMMITTING_TO_SERVER");
      return SendEvent(CZeltoManager::ACCOUNT_COMMITTING);
    case COMMIT_FAILED:
      ZELTO_DEBUG("*****************COMMITTED FAILED");
      return SendEvent(CZeltoManager::ACCOUNT_COMMIT_FAILED);
    default:
      return;
  }
}

void CAccount::OnName(int property, const ZEString& value) {
  Cache(property, value);
  SendEvent(CZeltoManager::ACCOUNT_NAME_CHANGED);
}

// Both halves of the pair are reported together.
void CAccount::OnSecondName(int property, const ZEString& value) {
  Cache(property, value);
  Cache(P_26, GetProp(P_26));
  SendEvent(CZeltoManager::ACCOUNT_NAME_CHANGED);
}

void CAccount::OnContactListSync(int, const ZEString& value) {
  const int status = value.toInt();
  if (status != CBL_IN_SYNC && status != CBL_SYNC_FAILED) return;
  if (status == CBL_SYNC_FAILED) {
    SendEvent(CZeltoManager::ACCOUNT_CBL_SYNC_FAILED);
  } else if (m_nCblInSyncCount == 0) {
    ZELTO_DEBUG("get first CBL_IN_SYNC ");
    SendEvent(CZeltoManager::ACCOUNT_CBL_IN_SYNC);
    ++m_nCblInSyncCount;
  }
  if (CZelto* root = client::RootOf(*this)) root->HandleContactGroups(kGroupsPrefetch);
}

bool CAccount::SetAvatar(const ZEString& path) { return SetProp(P_AVATAR, C_FileToBin(path)); }
