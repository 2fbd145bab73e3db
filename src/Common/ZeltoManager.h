// The engine's spine: the object behind the host's interface and the engine's one way to the host.
#pragma once

#include <atomic>
#include <string>

#include "Common/EventThread.h"
#include "Common/EventTypes.h"
#include "Common/HostDataGate.h"
#include "Common/IMoIPEngine.h"
#include "Common/ZeltoEvent.h"
#include "Common/ZeltoManagerImp.h"

// One engine for each process: it owns the event thread and the service host, and ends both.
//
// The operations that the rest of the engine uses are static, because what they reach (event queue,
// handlers, host functions) lives as long as the process: a thread that is late finds a closed queue and no
// host, never freed memory. Through GetInstance() or through the class is the same.
//
// Threads: any, unless it says otherwise. Whoever calls the host through it must hold neither the callback
// mutex nor the queue mutex; the service-host mutex may be held.
class CZeltoManager final : public IMoIPEngine, public EngineEventTypes {
 public:
  // The engine, created by the first call of the process. Null when it can't be built, and once it has been
  // destroyed: from then on only Create makes the next one, so that a late thread can't.
  static CZeltoManager* GetInstance() noexcept;
  // The engine, created when there is none. Null when it can't be built; a later call may try again.
  static CZeltoManager* Create() noexcept;
  // Deletes the engine, waiting until everything that it started has ended. Refused, with a line in the
  // log, for anything but the present engine and from inside a host function.
  static void Destroy(IMoIPEngine* engine) noexcept;

  CZeltoManager(const CZeltoManager&) = delete;
  CZeltoManager& operator=(const CZeltoManager&) = delete;
  // Must not run on the event thread.
  ~CZeltoManager() noexcept override;

  // --- The host's side, slot by slot. Nothing throws.
  const char* Execute(const char* cmd, const char* p1, const char* p2, const char* p3,
                      const char* p4) noexcept override;
  void RegisterEventCallback(MoIPEventCallback callback, void* user) noexcept override;
  void OnData(const CAVData* data) noexcept override;
  void RegisterDataCallback(MoIPDataCallback callback, void* user) noexcept override;
  void RegisterCommonCtrlFunc(MoIPCommonCtrlFunc function, void* user) noexcept override;
  bool IsInMyContact(const std::string& email, std::string& id) noexcept override;
  bool IsLoggedIn(std::string& id) noexcept override;
  bool GetRecentCall(const int& index, int& kind, std::string& id, std::string& displayName,
                     int& timestamp) noexcept override;
  bool GetContactInfo(const int& index, std::string& id, std::string& displayName, int& status,
                      std::string& avatarPath) noexcept override;
  bool GetContactImage(const std::string& id, std::string& path) noexcept override;
  bool GetContactStatus(const std::string& id, int& status) noexcept override;
  bool PlaceCall(const std::string& target, int type) noexcept override;
  bool PlayMail(int timestamp) noexcept override;
  bool GetMobilePhoneNumber(const std::string& id, std::string& number) noexcept override;
  bool GetHomePhoneNumber(const std::string& id, std::string& number) noexcept override;
  bool GetOfficePhoneNumber(const std::string& id, std::string& number) noexcept override;
  // These do nothing: a function is replaced by registering another one.
  virtual void UnregisterEventCallback(MoIPEventCallback callback) noexcept;
  virtual void UnregisterDataCallback(MoIPDataCallback callback) noexcept;
  virtual void UnregisterCommonCtrlFunc(MoIPCommonCtrlFunc function) noexcept;

  // --- Events. Sent ones are dropped while there is no engine.
  static void SendEvent(int type, int param);
  // The delay is a lower bound in milliseconds.
  static void LazySendEvent(int delay, int type, int param);
  // Drops the first event of that type that is still delayed.
  static void DeleteLazyEvent(int type);
  // Replaces the type's handler, which stays registered until the engine is destroyed. False: no such type.
  static bool SetEventHandler(EVENT_TYPE type, CZeltoEventHandler* handler);

  // --- The host's functions, one call at a time. The texts are copied.
  static void NotifyEngineEvent(int type, const char* p1, const char* p2);
  static void NotifyEngineEvent(const CZeltoEvent* event);
  static void NotifyHardwiredEvent(unsigned type, const char* p1, const char* p2);
  // A public event with a notice, which stays the caller's.
  static void NotifyNewHardwiredEvent(unsigned type, CEngineGlobalNoticeInfo& notice);
  // The television's answer; empty when there is none.
  static std::string CallCommonControl(const char* cmd, const char* p1 = nullptr, const char* p2 = nullptr,
                                       const char* p3 = nullptr, const char* p4 = nullptr);
  // Hands a record to the data callback, without the callback mutex. The record stays the caller's.
  static void SendAVData(const CAVData* data, unsigned int* extra);

  // --- Notices, by their numbers in NoticeTable.h. On the event thread.
  static void ShowNotification(int id, int param);
  static void HideNotification(int id);
  static void HideAllNotification();
  // Frees the present notice.
  static void InitGlobalNoticeInfo();

  // --- The widget.
  // Tells the widget that it is launched, remembers the parameter and has the host start it. Answers what
  // the host answers.
  static std::string RunWidget(const std::string& parameter);
  static void SetRunWidgetParam(const std::string& parameter);
  static std::string GetRunWidgetParam();
  static void SetWidgetStarted(bool started) { s_widgetStarted = started; }
  static bool IsWidgetStarted() { return s_widgetStarted; }

  // --- The service host, created when there is none yet. Null while there is no engine. Lives until the
  // engine ends; a thread that may outlive that holds the service-host mutex while it uses it.
  static CZeltoManagerImp* GetZeltoManagerImp();

  // One-line forwards to it; false, 0 or null while there is no engine.
  static bool GetAutoStart() { return Ask(&CZeltoManagerImp::GetAutoStart); }
  static bool Load() { return Ask(&CZeltoManagerImp::Load); }
  static bool IsZeltoReady() { return Ask(&CZeltoManagerImp::IsZeltoReady); }
  static bool Unload() { return Ask(&CZeltoManagerImp::Unload); }
  static bool ResetDB() { return Ask(&CZeltoManagerImp::ResetDB); }
  static void InitZeltoDB() { Ask(&CZeltoManagerImp::InitZeltoDB); }
  static int InitPersonalData() { return Ask(&CZeltoManagerImp::InitPersonalData); }
  static int GetZeltoState() { return Ask(&CZeltoManagerImp::GetZeltoState); }
  static const char* GetAvatarFolderPath() { return Ask(&CZeltoManagerImp::GetAvatarFolderPath); }
  static const char* GetCountryList() { return Ask<const char*>(&CZeltoManagerImp::GetCountryList); }
  static const char* GetCountryList(const char* language) {
    return Ask<const char*, const char*>(&CZeltoManagerImp::GetCountryList, language);
  }
  static int GetISOCountryPrefix(const char* code) {
    return Ask(&CZeltoManagerImp::GetISOCountryPrefix, code);
  }
  static const char* GetISOCountryName(const char* code, const char* language) {
    return Ask(&CZeltoManagerImp::GetISOCountryName, code, language);
  }
  static const char* GetLocalNumber(const char* number) {
    return Ask(&CZeltoManagerImp::GetLocalNumber, number);
  }
  static const char* FindCountryCodeByNumber(const char* number) {
    return Ask(&CZeltoManagerImp::FindCountryCodeByNumber, number);
  }
  static int GetLocalDBInt(int index) { return Ask(&CZeltoManagerImp::GetLocalDBInt, index); }
  static bool ToggleAutoAnswer() { return Ask(&CZeltoManagerImp::ToggleAutoAnswer); }
  static bool GetAutoAnswer() { return Ask(&CZeltoManagerImp::GetAutoAnswer); }
  static void SetWidgetActivatedByAnswering(bool activated) {
    Ask(&CZeltoManagerImp::SetWidgetActivatedByAnswering, activated);
  }
  static bool IsWidgetActivatedByAnswering() { return Ask(&CZeltoManagerImp::IsWidgetActivatedByAnswering); }
  static bool SetZeltoWidgetState(int state) { return Ask(&CZeltoManagerImp::SetZeltoWidgetState, state); }
  static bool GetZeltoWidgetState() { return Ask(&CZeltoManagerImp::GetZeltoWidgetState); }
  static void SetLoggedInState(bool loggedIn) { Ask(&CZeltoManagerImp::SetLoggedInState, loggedIn); }
  static bool GetLoggedInState() { return Ask(&CZeltoManagerImp::GetLoggedInState); }
  static void SetOnlineState(bool online) { Ask(&CZeltoManagerImp::SetOnlineState, online); }
  static bool GetOnlineState() { return Ask(&CZeltoManagerImp::GetOnlineState); }
  static void SetSigninPopupShowState(bool shown) { Ask(&CZeltoManagerImp::SetSigninPopupShowState, shown); }
  static bool GetSigninPopupShowState() { return Ask(&CZeltoManagerImp::GetSigninPopupShowState); }
  static bool CheckShowSignedInPopup() { return Ask(&CZeltoManagerImp::CheckShowSignedInPopup); }
  static bool CheckShowOnlinePopup() { return Ask(&CZeltoManagerImp::CheckShowOnlinePopup); }
  static bool CheckShowCallDurationPopup() { return Ask(&CZeltoManagerImp::CheckShowCallDurationPopup); }
  static bool CheckShowCallEndedPopup() { return Ask(&CZeltoManagerImp::CheckShowCallEndedPopup); }
  static bool CheckShowMissedCallPopup() { return Ask(&CZeltoManagerImp::CheckShowMissedCallPopup); }
  static bool WidgetHandleIncomingCall() { return Ask(&CZeltoManagerImp::WidgetHandleIncomingCall); }

 private:
  CZeltoManager();  // throws when the event thread can't be started
  // `again`: also when an engine has been destroyed before.
  static CZeltoManager* Make(bool again) noexcept;

  template <class Result, class... Parameters, class... Arguments>
  static Result Ask(Result (CZeltoManagerImp::*operation)(Parameters...), Arguments... arguments) {
    CZeltoManagerImp* imp = GetZeltoManagerImp();
    return imp != nullptr ? (imp->*operation)(arguments...) : Result();
  }

  static CZeltoManagerImp* CreateZeltoManagerImp();
  static void DeleteZeltoManagerImp();

  void StopEventThread();
  static void EndCall();

  zelto::EventThread m_eventThread;

  static std::atomic<CZeltoManager*> s_instance;
  static std::atomic<bool> s_created;  // there is or was an engine
  static std::atomic<CZeltoManagerImp*> s_imp;
  static zelto::HostDataGate s_dataGate;    // open while there is a service host
  static std::atomic<bool> s_serviceEnded;  // no service host may be created any more
  static std::atomic<bool> s_widgetStarted;
};
