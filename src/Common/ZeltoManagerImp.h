#pragma once

struct CAVData;

// What the engine manager needs from a service host. The order of the operations is that of the
// implementing class, CZelhostZeltoManager.
// Threads: any; an implementation takes the service-host mutex where it touches shared state.
// Texts answered belong to the implementation and stay valid until its next answer of the same kind;
// null means that there is nothing to answer.
class CZeltoManagerImp {
 public:
  CZeltoManagerImp() = default;
  CZeltoManagerImp(const CZeltoManagerImp&) = delete;
  CZeltoManagerImp& operator=(const CZeltoManagerImp&) = delete;
  virtual ~CZeltoManagerImp() = default;

  // The runtime's life cycle. False: refused, nothing changed.
  virtual bool GetAutoStart() = 0;
  virtual bool Load() = 0;
  virtual bool IsZeltoReady() = 0;
  virtual bool Unload() = 0;
  virtual bool ResetDB() = 0;
  virtual void InitZeltoDB() = 0;
  virtual int InitPersonalData() = 0;
  virtual int GetZeltoState() = 0;

  // Where the pictures of people lie, without a slash at its end; a path of the television.
  virtual const char* GetAvatarFolderPath() = 0;

  // Countries and telephone numbers. Null or 0 while no runtime is connected.
  virtual const char* GetCountryList() = 0;
  virtual const char* GetCountryList(const char* language) = 0;
  virtual int GetISOCountryPrefix(const char* countryCode) = 0;
  virtual const char* GetISOCountryName(const char* countryCode, const char* language) = 0;
  virtual const char* GetLocalNumber(const char* number) = 0;
  virtual const char* FindCountryCodeByNumber(const char* number) = 0;

  // Runs a command of the widget; see IMoIPEngine::Execute.
  virtual const char* Execute(const char* cmd, const char* p1, const char* p2, const char* p3,
                              const char* p4) = 0;
  // A setting by its index; 0 when it cannot be read.
  virtual int GetLocalDBInt(int index) = 0;

  virtual bool ToggleAutoAnswer() = 0;  // the new value
  virtual bool GetAutoAnswer() = 0;
  virtual void SetWidgetActivatedByAnswering(bool activated) = 0;
  virtual bool IsWidgetActivatedByAnswering() = 0;

  // A record of microphone sound or camera pictures; null is ignored. The data is copied.
  virtual void OnData(const CAVData* data) = 0;

  // How the widget is shown: 0 closed, 1 full screen, 2 and 3 beside the programme. False when a call
  // that waited for the widget was answered instead.
  virtual bool SetZeltoWidgetState(int state) = 0;
  // Whether the widget is shown at all.
  virtual bool GetZeltoWidgetState() = 0;

  virtual void SetLoggedInState(bool loggedIn) = 0;
  virtual bool GetLoggedInState() = 0;
  virtual void SetOnlineState(bool online) = 0;
  virtual bool GetOnlineState() = 0;
  virtual void SetSigninPopupShowState(bool shown) = 0;
  virtual bool GetSigninPopupShowState() = 0;

  // Whether a notice may be shown now.
  virtual bool CheckShowSignedInPopup() = 0;
  virtual bool CheckShowOnlinePopup() = 0;
  virtual bool CheckShowCallDurationPopup() = 0;
  virtual bool CheckShowCallEndedPopup() = 0;
  virtual bool CheckShowMissedCallPopup() = 0;

  // Whether the widget itself presents incoming calls.
  virtual bool WidgetHandleIncomingCall() = 0;
};
