// A service host that does nothing but remember what it is told.
#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <vector>

#include "Common/IMoIPEngine.h"
#include "Common/ZeltoManagerImp.h"

namespace test {

class FakeServiceHost : public CZeltoManagerImp {
 public:
  ~FakeServiceHost() override {
    if (onDelete) onDelete();
  }

  std::function<void()> onDelete;
  std::function<const char*(const std::string& call)> onExecute;
  std::atomic<int> loads{0};
  std::vector<CAVData> data;
  std::atomic<bool> autoStart{false}, widgetShown{false}, loggedIn{false}, online{false}, popupShown{false};

  const char* Execute(const char* cmd, const char* p1, const char* p2, const char* p3,
                      const char* p4) override {
    std::string call;
    for (const char* text : {cmd, p1, p2, p3, p4}) call += std::string(text != nullptr ? text : "null") + "|";
    return onExecute ? onExecute(call) : nullptr;
  }
  bool Load() override { return ++loads > 0; }
  void OnData(const CAVData* record) override { data.push_back(*record); }
  bool GetAutoStart() override { return autoStart; }
  bool SetZeltoWidgetState(int state) override { return widgetShown = state != 0; }
  bool GetZeltoWidgetState() override { return widgetShown; }
  void SetLoggedInState(bool value) override { loggedIn = value; }
  bool GetLoggedInState() override { return loggedIn; }
  void SetOnlineState(bool value) override { online = value; }
  bool GetOnlineState() override { return online; }
  void SetSigninPopupShowState(bool shown) override { popupShown = shown; }
  bool GetSigninPopupShowState() override { return popupShown; }
  bool IsZeltoReady() override { return true; }
  const char* GetCountryList(const char* language) override { return language; }

  bool Unload() override { return true; }
  bool ResetDB() override { return true; }
  void InitZeltoDB() override {}
  int InitPersonalData() override { return 1; }
  int GetZeltoState() override { return 1; }
  const char* GetAvatarFolderPath() override { return nullptr; }
  const char* GetCountryList() override { return nullptr; }
  int GetISOCountryPrefix(const char*) override { return 0; }
  const char* GetISOCountryName(const char*, const char*) override { return nullptr; }
  const char* GetLocalNumber(const char*) override { return nullptr; }
  const char* FindCountryCodeByNumber(const char*) override { return nullptr; }
  int GetLocalDBInt(int) override { return 0; }
  bool ToggleAutoAnswer() override { return false; }
  bool GetAutoAnswer() override { return false; }
  void SetWidgetActivatedByAnswering(bool) override {}
  bool IsWidgetActivatedByAnswering() override { return false; }
  bool CheckShowSignedInPopup() override { return false; }
  bool CheckShowOnlinePopup() override { return false; }
  bool CheckShowCallDurationPopup() override { return false; }
  bool CheckShowCallEndedPopup() override { return false; }
  bool CheckShowMissedCallPopup() override { return false; }
  bool WidgetHandleIncomingCall() override { return false; }
};

}  // namespace test
