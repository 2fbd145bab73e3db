#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <string>

#include "Common/ZeltoManagerImp.h"
#include "zelhost/ManagerInstance.h"
#include "zelhost/countries/CountryCodes.h"
#include "zelhost/lifecycle/ZelhostLifeCycle.h"
#include "zelhost/widget/WidgetTimers.h"

// How the widget is shown, in its own numbers.
enum WidgetState {
  kWidgetClosed = 0,
  kWidgetFullScreen = 1,
  kWidgetBesideProgramme = 2,  // the programme goes on beside the widget, in one of two ways
  kWidgetBesideProgrammeAlso = 3,
};

// The service host: runs the widget's commands, owns the runtime's life cycle and keeps what the widget
// has said about itself.
// Threads: any. Commands run one at a time under the service-host mutex; the flags may be read without it.
class CZelhostZeltoManager : public CZeltoManagerImp {
 public:
  static CZelhostZeltoManager* GetInstance() { return m_instance.Get(); }
  // Unloads the service first.
  ~CZelhostZeltoManager() override;

  // The service-host mutex by its older name; zelhost::ServiceHostLock is the way to hold it.
  static void LockMutex() ZELTO_ACQUIRE(zelhost::ServiceHostMutex::Get());
  static void UnlockMutex() ZELTO_RELEASE(zelhost::ServiceHostMutex::Get());

  bool GetAutoStart() override;
  bool Load() override;
  bool IsZeltoReady() override;
  bool Unload() override;
  bool ResetDB() override;
  void InitZeltoDB() override;
  int InitPersonalData() override;
  int GetZeltoState() override;

  const char* GetAvatarFolderPath() override;

  // Countries and telephone numbers; see CountryCodes. In English unless a language is given.
  const char* GetCountryList() override;
  const char* GetCountryList(const char* language) override;
  int GetISOCountryPrefix(const char* countryCode) override;
  const char* GetISOCountryName(const char* countryCode, const char* language) override;
  const char* GetLocalNumber(const char* number) override;
  const char* FindCountryCodeByNumber(const char* number) override;

  // Answers in a ring of four texts: the pointer stays valid, and its text unchanged, until four further
  // commands have run.
  const char* Execute(const char* cmd, const char* p1, const char* p2, const char* p3,
                      const char* p4) override;
  int GetLocalDBInt(int index) override;

  bool ToggleAutoAnswer() override;
  bool GetAutoAnswer() override;
  void SetWidgetActivatedByAnswering(bool activated) override;
  bool IsWidgetActivatedByAnswering() override;

  void OnData(const CAVData* data) override;

  // Tells the television how the widget is shown now, and answers a call that has waited for the widget:
  // false then, else true. Numbers other than the enumerated ones are remembered only.
  bool SetZeltoWidgetState(int state) override;
  bool GetZeltoWidgetState() override;
  // The state itself instead of whether the widget is shown.
  int GetZeltoWidgetMode() const { return m_widgetState.load(); }

  void SetLoggedInState(bool loggedIn) override;
  bool GetLoggedInState() override;
  void SetOnlineState(bool online) override;
  bool GetOnlineState() override;
  void SetSigninPopupShowState(bool shown) override;
  bool GetSigninPopupShowState() override;

  bool CheckShowSignedInPopup() override;
  bool CheckShowOnlinePopup() override;
  bool CheckShowCallDurationPopup() override;
  bool CheckShowCallEndedPopup() override;
  bool CheckShowMissedCallPopup() override;

  bool WidgetHandleIncomingCall() override;
  void SetWidgetHandleIncomingCall(bool handles) { m_widgetHandlesIncomingCall = handles; }

  // Whether the programme's sound plays beside the call's.
  bool IsTVAudioMixed() const { return m_tvAudioMixed.load(); }
  void SetTVAudioMixed(bool mixed) { m_tvAudioMixed = mixed; }

  // Volumes from 0 to 100; others are brought into that range. The call's and the programme's share are
  // also stored as settings. An answer that the television does not give reads as 0.
  static constexpr int kLoudest = 100;
  void SetSpeakerVolume(int volume);
  void SetCallMixVolume(int volume);
  void SetTVMixVolume(int volume);
  int GetSpeakerVolume();
  int GetCallMixVolume();
  int GetTVMixVolume();

  // Stops a call's pictures in both directions while its sound goes on. `widgetState`: how the widget is
  // shown, or was until now.
  static void TakeVideoOffScreen(int widgetState);

  // Timers of the widget's display; see WidgetTimers.
  bool StartWidegtOSDTimer(int milliseconds, int id);
  bool RestartWidegtOSDTimer(int milliseconds, int id);
  bool StopWidegtOSDTimer(int id);

  // Copies the widget's data file into the engine's storage; false when there is none.
  bool BackupWidgetData();
  // Copies it back: "1". Without an account the widget's file is removed instead: "0". Null without a
  // folder of the widget.
  const char* RestoreWidgetData();

 private:
  void CloseWidget(int before);

  friend class zelhost::ManagerInstance<CZelhostZeltoManager>;
  CZelhostZeltoManager() = default;

  static inline zelhost::ManagerInstance<CZelhostZeltoManager> m_instance;
  static constexpr std::size_t kKeptAnswers = 4;

  CZelhostLifeCycle m_lifeCycle;
  WidgetTimers m_timers;
  CountryCodes m_countries;

  std::array<std::string, kKeptAnswers> m_answers ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get());
  std::size_t m_answer ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get()) = 0;

  std::atomic<int> m_widgetState{kWidgetClosed};
  std::atomic<bool> m_widgetHandlesIncomingCall{false};
  std::atomic<bool> m_tvAudioMixed{false};
  std::atomic<bool> m_autoAnswer{false};
  std::atomic<bool> m_widgetActivatedByAnswering{false};
  std::atomic<bool> m_loggedIn{false};
  std::atomic<bool> m_online{false};
  std::atomic<bool> m_signinPopupShown{false};
};
