#include "zelhost/account/ZelhostAccountManager.h"

#include <algorithm>
#include <iterator>

#include "Common/Log.h"
#include "Common/RecordWriter.h"
#include "Common/ZeltoManager.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CAccount.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/contacts/ZelhostContactManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelhost::ServiceHostLock;

namespace {

constexpr int kSearchLimit = 50;  // results that the directory shall find at most

CAccount* ApplicationAccount(Account* account) { return dynamic_cast<CAccount*>(account); }

// By the runtime's code.
constexpr const char* kPasswordVerdicts[] = {
    "Account::NOT_VALIDATED",    "Account::VALIDATED_OK",          "Account::TOO_SHORT",
    "Account::TOO_LONG",         "Account::CONTAINS_INVALID_CHAR", "Account::CONTAINS_SPACE",
    "Account::SAME_AS_USERNAME", "Account::INVALID_FORMAT",        "Account::CONTAINS_INVALID_WORD",
    "Account::TOO_SIMPLE"};

}  // namespace

CZelhostAccountManager::~CZelhostAccountManager() { m_instance.Forget(); }

bool CZelhostAccountManager::IsReady() { return g_lpZelto != nullptr && CZeltoManager::IsZeltoReady(); }

CAccount* CZelhostAccountManager::ReadyAccount() {
  return IsReady() ? g_lpZelto->m_lpActiveAccount : nullptr;
}

const char* CZelhostAccountManager::Result(std::string_view text) {
  m_strResult = text;
  return m_strResult.c_str();
}

void CZelhostAccountManager::DeleteActiveAccount() {
  ServiceHostLock lock("DeleteActiveAccount");
  if (g_lpZelto == nullptr) return;
  delete g_lpZelto->m_lpActiveAccount;
  g_lpZelto->m_lpActiveAccount = nullptr;
}

bool CZelhostAccountManager::Login(const char* name, const char* password, bool autoSignIn) {
  ServiceHostLock lock("Login");
  if (!IsReady()) return false;
  if (m_LoginState != kSignedOut) {
    ZELTO_DEBUG("login already started ");
    return false;
  }
  m_bRegistering = false;
  DeleteActiveAccount();
  CZelhostContactManager::GetInstance()->ClearContactList();
  CZelhostLocalSetting::SetIntValue(kSettingAutoLogin, autoSignIn ? 1 : 0);

  CAccount*& active = g_lpZelto->m_lpActiveAccount;
  active = ApplicationAccount(g_lpZelto->GetDefaultAccount());
  m_bAutoLogin = active != nullptr && !CZelhostLocalSetting::GetStrValue(kSettingLastLoggedInId).isEmpty();
  if (m_bAutoLogin) {
    m_LoginState = kSigningIn;
    active->Login();
    return true;
  }
  if (name == nullptr) {
    ZELTO_DEBUG("%s %d zeltoName== null \n", "Login", __LINE__);
    return false;
  }
  active = ApplicationAccount(g_lpZelto->GetAccount(name));
  if (active == nullptr) {
    ZELTO_DEBUG("%s %d g_lpZelto->m_lpActiveAccount == null \n", "Login", __LINE__);
    return false;
  }
  m_LoginState = kSigningIn;
  active->LoginWithPassword(password, autoSignIn);
  return true;
}

bool CZelhostAccountManager::Register(const char* name, const char* password, const char* email,
                                      bool savePassword, bool allowOffers) {
  ServiceHostLock lock("Register");
  if (!IsReady() || name == nullptr) return false;
  DeleteActiveAccount();
  CZelhostLocalSetting::SetIntValue(kSettingAutoLogin, savePassword ? 1 : 0);
  CAccount* account = ApplicationAccount(g_lpZelto->GetAccount(name));
  g_lpZelto->m_lpActiveAccount = account;
  if (account == nullptr) return false;
  m_LoginState = kSigningIn;
  m_bAutoLogin = false;
  account->Register(password, savePassword, email, allowOffers);
  m_bRegistering = true;
  return true;
}

bool CZelhostAccountManager::Logout(bool flag) {
  ServiceHostLock lock("Logout");
  if (!IsReady()) return false;
  if (CAccount* account = g_lpZelto->m_lpActiveAccount) {
    m_LoginState = kSigningOut;
    account->Logout(flag);
  } else {
    ZELTO_DEBUG("%s: No active account\n", "Logout");
  }
  m_cache.Reset();
  m_bRegistering = false;
  return true;
}

const char* CZelhostAccountManager::GetLastLoginID(int slot) {
  ServiceHostLock lock("GetLastLoginID");
  if (!IsReady() || slot < 0 || slot >= kLoggedInIds) return nullptr;
  const ZEString name = CZelhostLocalSetting::GetStrValue(kSettingLoggedInId1 + slot);
  return name.isEmpty() ? nullptr : Result(name.view());
}

int CZelhostAccountManager::GetLogoutReason() {
  ServiceHostLock lock("GetLogoutReason");
  return m_LogoutReason;
}

int CZelhostAccountManager::GetLoginState() {
  ServiceHostLock lock("GetLoginState");
  return m_LoginState;
}

const char* CZelhostAccountManager::GetSuggestedZeltoName(int index) {
  ServiceHostLock lock("GetSuggestedZeltoName");
  if (index >= 0 && static_cast<std::size_t>(index) < m_SuggestedNames.size()) {
    return Result(m_SuggestedNames[static_cast<std::size_t>(index)]);
  }
  ZELTO_DEBUG("%s no sugestion\n", "GetSuggestedZeltoName");
  return nullptr;
}

const char* CZelhostAccountManager::GetSuggestedZeltoNameList() {
  ServiceHostLock lock("GetSuggestedZeltoNameList");
  std::string list;
  zelto::RecordWriter writer(list);
  for (const std::string& name : m_SuggestedNames) writer.Field(name);
  return Result(list);
}

void CZelhostAccountManager::SetSuggestedZeltoNameList(const char* names) {
  ServiceHostLock lock("SetSuggestedZeltoNameList");
  m_SuggestedNames.clear();
  std::string_view rest = names == nullptr ? "" : names;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find(';'), rest.size());
    if (end > 0) m_SuggestedNames.emplace_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
}

const char* CZelhostAccountManager::GetAvailableZeltoname(const char* name) {
  ServiceHostLock lock("GetAvailableZeltoname");
  Register(name, "", "", false, false);
  return Result("1");
}

int CZelhostAccountManager::ValidatePasswd(const char* name, const char* password) {
  ServiceHostLock lock("ValidatePasswd");
  if (!IsReady()) return 0;
  const int code = g_lpZelto->ValidatePassword(name, password);
  const bool known = code >= 0 && code < static_cast<int>(std::size(kPasswordVerdicts));
  ZELTO_DEBUG("%s", known ? kPasswordVerdicts[code] : "Unknown reason");
  return code;
}

bool CZelhostAccountManager::IsValidEmail(const char* email) {
  ServiceHostLock lock("IsValidEmail");
  if (!IsReady()) return false;
  const bool valid = g_lpZelto->IsValidEmail(email);
  ZELTO_DEBUG("%s", valid ? "E-mail is valid~!!" : "E-mail is not valid~!!");
  return valid;
}

bool CZelhostAccountManager::IsDBError(int logoutReason) {
  return logoutReason >= Account::LOGOUT_DB_ERROR_FIRST && logoutReason <= Account::LOGOUT_DB_ERROR_LAST;
}

bool CZelhostAccountManager::IsAutoSignInEnabled() {
  ServiceHostLock lock("IsAutoSignInEnabled");
  return IsReady() && CZelhostLocalSetting::GetIntValue(kSettingAutoLogin) != 0;
}

bool CZelhostAccountManager::IsDefaultAccountAvailable() {
  ServiceHostLock lock("IsDefaultAccountAvailable");
  return IsReady() && g_lpZelto->GetDefaultAccount() != nullptr;
}

bool CZelhostAccountManager::IsDefaultAccountZeltoName(const char* name) {
  ServiceHostLock lock("IsDefaultAccountZeltoName");
  if (!IsReady() || name == nullptr) return false;
  Account* account = g_lpZelto->GetDefaultAccount();
  ZELTO_DEBUG("lpDefaultAccount = %p\n", static_cast<void*>(account));
  if (account == nullptr || account->GetProp(Account::P_NAME) != name) return false;
  ZELTO_DEBUG("Zelto name of DefaultAccount == %s\n", name);
  return true;
}

const char* CZelhostAccountManager::NormalizeIdentityForNewAccount(const char* identity) {
  ServiceHostLock lock("NormalizeIdentityForNewAccount");
  if (g_lpZelto == nullptr) return nullptr;
  ZEString normalized;
  const int code = g_lpZelto->NormalizeIdentity(identity, true, normalized);
  std::string record;
  zelto::RecordWriter(record).Field(code);
  return Result(record + zelto::FieldText(normalized.view()));
}

bool CZelhostAccountManager::IsAccountAvailable(const char* name) {
  ServiceHostLock lock("IsAccountAvailable");
  return g_lpZelto != nullptr && g_lpZelto->NewIdentitySearch(name, false, kSearchLimit) != nullptr;
}
