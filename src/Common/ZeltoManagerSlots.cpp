// The slots of the host's interface: forwards that nothing throws across.
#include "Common/Guard.h"
#include "Common/HostControl.h"
#include "Common/HostQueries.h"
#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "zelhost/ServiceHostMutex.h"

using zelto::Guard;
using zelto::HostControl;
using zelto::HostQueries;

const char* CZeltoManager::Execute(const char* cmd, const char* p1, const char* p2, const char* p3,
                                   const char* p4) noexcept {
  HostControl::Get().IsReentry("Execute");
  const char* answer = Guard("Execute", [&]() -> const char* {
    // Held from before the look-up, so that the service host can't be deleted between the two.
    zelhost::ServiceHostLock lock("Execute");
    CZeltoManagerImp* imp = GetZeltoManagerImp();
    return imp != nullptr ? imp->Execute(cmd, p1, p2, p3, p4) : nullptr;
  });
  return answer != nullptr ? answer : "";
}

void CZeltoManager::RegisterEventCallback(MoIPEventCallback callback, void* user) noexcept {
  HostControl::Get().SetEventCallback(callback, user);
}

void CZeltoManager::OnData(const CAVData* data) noexcept {
  if (data == nullptr || (data->data == nullptr && data->size != 0)) return;
  s_dataGate.Pass(data);
}

void CZeltoManager::RegisterDataCallback(MoIPDataCallback callback, void* user) noexcept {
  if (callback == nullptr) ZELTO_FATAL("CZeltoManager::RegisterDataCallback  callback is NULL");
  if (HostControl::Get().IsReentry("RegisterDataCallback")) return;
  HostControl::Get().SetDataCallback(callback, user);
  Guard("RegisterDataCallback", [] { Load(); });
}

void CZeltoManager::RegisterCommonCtrlFunc(MoIPCommonCtrlFunc function, void* user) noexcept {
  HostControl::Get().SetControlFunction(function, user);
}

void CZeltoManager::UnregisterEventCallback(MoIPEventCallback) noexcept {}
void CZeltoManager::UnregisterDataCallback(MoIPDataCallback) noexcept {}
void CZeltoManager::UnregisterCommonCtrlFunc(MoIPCommonCtrlFunc) noexcept {}

bool CZeltoManager::IsInMyContact(const std::string& email, std::string& id) noexcept {
  return Guard("IsInMyContact", [&] { return HostQueries::IsInMyContact(email, id); });
}

bool CZeltoManager::IsLoggedIn(std::string& id) noexcept {
  return Guard("IsLoggedIn", [&] { return HostQueries::IsLoggedIn(id); });
}

bool CZeltoManager::GetRecentCall(const int& index, int& kind, std::string& id, std::string& displayName,
                                  int& timestamp) noexcept {
  return Guard("GetRecentCall",
               [&] { return HostQueries::GetRecentCall(index, kind, id, displayName, timestamp); });
}

bool CZeltoManager::GetContactInfo(const int& index, std::string& id, std::string& displayName, int& status,
                                   std::string& avatarPath) noexcept {
  return Guard("GetContactInfo",
               [&] { return HostQueries::GetContactInfo(index, id, displayName, status, avatarPath); });
}

bool CZeltoManager::GetContactImage(const std::string& id, std::string& path) noexcept {
  return Guard("GetContactImage", [&] { return HostQueries::GetContactImage(id, path); });
}

bool CZeltoManager::GetContactStatus(const std::string& id, int& status) noexcept {
  return Guard("GetContactStatus", [&] { return HostQueries::GetContactStatus(id, status); });
}

bool CZeltoManager::PlaceCall(const std::string& target, int type) noexcept {
  return Guard("PlaceCall", [&] { return HostQueries::PlaceCall(target, type); });
}

bool CZeltoManager::PlayMail(int timestamp) noexcept {
  return Guard("PlayMail", [&] { return HostQueries::PlayMail(timestamp); });
}

bool CZeltoManager::GetMobilePhoneNumber(const std::string& id, std::string& number) noexcept {
  return Guard("GetMobilePhoneNumber", [&] { return HostQueries::GetMobilePhoneNumber(id, number); });
}

bool CZeltoManager::GetHomePhoneNumber(const std::string& id, std::string& number) noexcept {
  return Guard("GetHomePhoneNumber", [&] { return HostQueries::GetHomePhoneNumber(id, number); });
}

bool CZeltoManager::GetOfficePhoneNumber(const std::string& id, std::string& number) noexcept {
  return Guard("GetOfficePhoneNumber", [&] { return HostQueries::GetOfficePhoneNumber(id, number); });
}
