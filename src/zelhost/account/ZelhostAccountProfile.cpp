// The account manager's values: profile, capabilities, the own picture and server-side properties.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "Common/LocalTime.h"
#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/EnginePaths.h"
#include "zelhost/PropertyList.h"
#include "zelhost/SafeFileName.h"
#include "zelhost/account/AccountProperties.h"
#include "zelhost/account/ZelhostAccountManager.h"
#include "zelhost/apiwrapper/client/CAccount.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/apiwrapper/client/FileBinary.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

using zelhost::ServiceHostLock;

namespace {

constexpr char kTelevisionFiles[] = "/mtd";  // where every file of the television lies

template <std::size_t kCount>
bool Lists(const int (&list)[kCount], int value) {
  return std::find(std::begin(list), std::end(list), value) != std::end(list);
}

// What is kept of a fetched value. A blank in front says nothing about a first word.
std::string KeptValue(int property, const ZEString& value) {
  std::string text(value.view());
  if (property == Account::P_6) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  } else if (property == Account::P_12) {
    const std::size_t blank = text.find(' ');
    if (blank != std::string::npos && blank > 0) text.resize(blank);
  }
  return text;
}

}  // namespace

bool CZelhostAccountManager::IsValidProp(int property) {
  return Lists(zelhost::kAccountProperties, property);
}

bool CZelhostAccountManager::IsValidCapa(int capability) {
  return Lists(zelhost::kAccountCapabilities, capability);
}

bool CZelhostAccountManager::GetAccountAllInfo() {
  ServiceHostLock lock("GetAccountAllInfo");
  if (ReadyAccount() == nullptr) return false;
  FetchProperties();
  FetchCapabilities();
  return true;
}

void CZelhostAccountManager::FetchProperties() {
  const ZEIntDict values = ReadyAccount()->GetProps(zelhost::ListOf(zelhost::kAccountProperties));
  for (const int property : zelhost::kAccountProperties) {
    const ZEString value = values.find(property);
    if (property == Account::P_AVATAR) {
      SetAvatar(value);
    } else {
      m_cache.SetInfo(property, KeptValue(property, value));
    }
  }
}

void CZelhostAccountManager::FetchCapabilities() {
  for (const int capability : zelhost::kAccountCapabilities) {
    int expiry = 0;
    const int status =
        ReadyAccount()->GetCapabilityStatus(static_cast<Contact::CAPABILITY>(capability), expiry);
    m_cache.SetCapability(capability, status, expiry);
  }
}

// Without a name nothing has been fetched since the sign-in.
bool CZelhostAccountManager::CanRead(bool isValid) {
  if (m_LoginState != kSignedIn || !isValid) return false;
  if (m_cache.GetInfo(Account::P_NAME).empty()) GetAccountAllInfo();
  return true;
}

const char* CZelhostAccountManager::GetAccountInfo(int property) {
  ServiceHostLock lock("GetAccountInfo");
  return CanRead(IsValidProp(property)) ? Result(m_cache.GetInfo(property)) : nullptr;
}

const char* CZelhostAccountManager::GetAccountCapability(int capability) {
  ServiceHostLock lock("GetAccountCapability");
  return CanRead(IsValidCapa(capability)) ? Result(m_cache.GetCapability(capability).status) : nullptr;
}

const char* CZelhostAccountManager::GetAccountCapabilityExpireDate(int capability) {
  ServiceHostLock lock("GetAccountCapabilityExpireDate");
  if (!CanRead(IsValidCapa(capability))) return nullptr;
  const auto expiry = static_cast<unsigned>(m_cache.GetCapability(capability).expiry);
  if (expiry == 0) return nullptr;
  char date[zelto::kLocalTimeSize + 1] = {};
  const std::string_view text = zelto::ConvertToLocalTime(expiry, date);
  return Result(text.substr(0, text.find('\n')));
}

void CZelhostAccountManager::SetAccountInfo(int property, const ZEString& value) {
  if (IsValidProp(property)) m_cache.SetInfo(property, std::string(value.view()));
}

std::string CZelhostAccountManager::OwnAvatarPath() {
  const std::string& name = m_cache.GetInfo(Account::P_NAME);
  if (!name.empty()) return zelhost::AvatarPath(name);
  CAccount* account = g_lpZelto == nullptr ? nullptr : g_lpZelto->m_lpActiveAccount;
  return zelhost::AvatarPath(account == nullptr ? ZEString().view()
                                                : account->GetProp(Account::P_NAME).view());
}

bool CZelhostAccountManager::SetAvatar(const ZEString& image) {
  ServiceHostLock lock("SetAvatar");
  ZELTO_DEBUG("!!!!SaveMyAvatar");
  if (image.isEmpty()) {
    ZELTO_DEBUG("\n\n !!! My avatar is empty!!! \n");
    m_cache.SetInfo(Account::P_AVATAR, "");
    return false;
  }
  const std::string path = OwnAvatarPath();
  m_cache.SetInfo(Account::P_AVATAR, zelhost::kFileLocation + path);
  C_BinToFile(image, path.c_str(), false);
  C_BinToFile(image, zelhost::kProfilePictureCopy, false);
  return true;
}

bool CZelhostAccountManager::SetProp(int property, const char* value) {
  ServiceHostLock lock("SetProp");
  if (ReadyAccount() == nullptr || !IsValidProp(property)) return false;
  const char* text = value == nullptr ? "" : value;
  if (property == Account::P_AVATAR) return SetAvatarFromFile(text);
  ReadyAccount()->SetProp(property, text);
  m_cache.SetInfo(property, text);
  return true;
}

// The bytes that were sent are also the ones that are kept, so that the file may be the kept picture itself.
bool CZelhostAccountManager::SetAvatarFromFile(const char* location) {
  const char* source = std::strstr(location, kTelevisionFiles);
  if (source == nullptr) {
    ZELTO_FATAL("Avatar path is invalid: %s\n", location);
    return false;
  }
  const ZEString image = C_FileToBin(source);
  ReadyAccount()->SetProp(Account::P_AVATAR, image);
  const std::string path = OwnAvatarPath();
  if (!image.isEmpty()) C_BinToFile(image, path.c_str(), false);
  m_cache.SetInfo(Account::P_AVATAR, zelhost::kFileLocation + path);
  CZeltoManager::SendEvent(CZeltoManager::ACCOUNT_AVATAR_CHANGED, 0);
  return true;
}

bool CZelhostAccountManager::SetAvailability(int availability) {
  ServiceHostLock lock("SetAvailability");
  if (ReadyAccount() == nullptr) return false;
  ReadyAccount()->SetAvailability(static_cast<Account::AVAILABILITY>(availability));
  m_cache.SetInfo(Account::P_AVAILABILITY, std::to_string(availability));
  return true;
}

bool CZelhostAccountManager::SetMoodMessage(const char* mood) {
  ServiceHostLock lock("SetMoodMessage");
  if (ReadyAccount() == nullptr) return false;
  ReadyAccount()->SetProp(Account::P_MOOD_TEXT, mood);
  m_cache.SetInfo(Account::P_MOOD_TEXT, mood == nullptr ? "" : mood);
  return true;
}

bool CZelhostAccountManager::SetServerSideProp(int property, const char* value) {
  ServiceHostLock lock("SetServerSideProp");
  if (ReadyAccount() == nullptr) return false;
  ReadyAccount()->SetServersideProp(property, value);
  m_cache.SetPending(property, value == nullptr ? "" : value);
  return true;
}

bool CZelhostAccountManager::ChangePassword(const char* oldPassword, const char* newPassword) {
  ServiceHostLock lock("ChangePassword");
  if (ReadyAccount() == nullptr) return false;
  const bool save = CZelhostLocalSetting::GetIntValue(kSettingAutoLogin) != 0;
  ReadyAccount()->ChangePassword(oldPassword, newPassword, save);
  return false;
}
