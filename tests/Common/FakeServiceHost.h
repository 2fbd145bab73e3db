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
  std::atomic<bool> autoStart{false};
  std::atomic<bool> widgetShown{false};
  std::atomic<bool> widgetHandlesCalls{false};
  std::atomic<bool> mayShow{false};  // the answer of all five questions about notices
  std::atomic<bool> loggedIn{false};
  std::atomic<bool> online{false};
  std::atomic<bool> popupShown{false};

  bool GetAutoStart() override { return autoStart; }
  bool Load() override { return ++loads > 0; }
  bool IsZeltoReady() override { return true; }
  bool Unload() override { return true; }
  bool ResetDB() override { return true; }
  void InitZeltoDB() override {}
  int InitPersonalData() override { return 1; }
  int GetZeltoState() override { return 1; }
  const char* GetAvatarFolderPath() override { return "avatars"; }
  const char* GetCountryList() override { return "all countries"; }
  const char* GetCountryList(const char* language) override { return language; }
  int GetISOCountryPrefix(const char*) override { return 49; }
  const char* GetISOCountryName(const char*, const char* language) override { return language; }
  const char* GetLocalNumber(const char* number) override { return number; }
  const char* FindCountryCodeByNumber(const char* number) override { return number; }
  const char* Execute(const char* cmd, const char* p1, const char* p2, const char* p3,
                      const char* p4) override {
    std::string call;
    for (const char* text : {cmd, p1, p2, p3, p4}) call += std::string(text != nullptr ? text : "null") + "|";
    return onExecute ? onExecute(call) : nullptr;
  }
  int GetLocalDBInt(int index) override { return index; }
  bool ToggleAutoAnswer() override { return true; }
  bool GetAutoAnswer() override { return false; }
  void SetWidgetActivatedByAnswering(bool) override {}
  bool IsWidgetActivatedByAnswering() override { return false; }
  void OnData(const CAVData* record) override { data.push_back(*record); }
  bool SetZeltoWidgetState(int state) override { return widgetShown = state != 0; }
  bool GetZeltoWidgetState() override { return widgetShown; }
  void SetLoggedInState(bool value) override { loggedIn = value; }
  bool GetLoggedInState() override { return loggedIn; }
  void SetOnlineState(bool value) override { online = value; }
  bool GetOnlineState() override { return online; }
  void SetSigninPopupShowState(bool shown) override { popupShown = shown; }
  bool GetSigninPopupShowState() override { return popupShown; }
  bool CheckShowSignedInPopup() override { return mayShow; }
  bool CheckShowOnlinePopup() override { return mayShow; }
  bool CheckShowCallDurationPopup() override { return mayShow; }
  bool CheckShowCallEndedPopup() override { return mayShow; }
  bool CheckShowMissedCallPopup() override { return mayShow; }
  bool WidgetHandleIncomingCall() override { return widgetHandlesCalls; }
};

}  // namespace test
