#include "zelhost/ZelhostZeltoManager.h"

#include <exception>
#include <string>

#include "Common/Log.h"
#include "Common/Platform.h"
#include "Common/ZeltoManager.h"
#include "zelhost/EnginePaths.h"
#include "zelhost/commands/CommandTable.h"
#include "zelhost/media/ZelhostIPCManager.h"
#include "zelhost/settings/ZelhostLocalSetting.h"

namespace {

// The clock is read only when somebody sees it.
void LogCall(const zelhost::CommandCall& call) {
  ZELTO_DEBUG("CZelhostZeltoManager::%s, cmd = %s(%s, %s, %s, %s)\n", "Execute", call.Name(),
              call.Parameter(1), call.Parameter(2), call.Parameter(3), call.Parameter(4));
  if (!zelto::LogEnabled(zelto::LogLevel::Info)) return;
  constexpr std::int64_t kMicroseconds = 1'000'000;
  constexpr int kRed = 31;
  const std::int64_t now = zelto::System().WallClock();
  zelto::Log(zelto::LogLevel::Info, "\033[02;%dm[%d.%06d]\033[0m", kRed,
             static_cast<int>(now / kMicroseconds), static_cast<int>(now % kMicroseconds));
}

}  // namespace

CZelhostZeltoManager::~CZelhostZeltoManager() {
  m_lifeCycle.Unload();
  m_instance.Forget();
}

void CZelhostZeltoManager::LockMutex() { zelhost::ServiceHostMutex::Get().Lock("LockMutex"); }
void CZelhostZeltoManager::UnlockMutex() { zelhost::ServiceHostMutex::Get().Unlock(); }

const char* CZelhostZeltoManager::Execute(const char* cmd, const char* p1, const char* p2, const char* p3,
                                          const char* p4) {
  zelhost::ServiceHostLock lock("Execute");
  m_answer = (m_answer + 1) % kKeptAnswers;
  std::string& answer = m_answers[m_answer];
  const zelhost::CommandCall call(cmd, p1, p2, p3, p4);
  LogCall(call);
  try {
    if (const zelhost::Command* command = zelhost::FindCommand(call.Name())) {
      command->run(call, answer);
    } else {
      answer.clear();
    }
  } catch (const std::exception& failure) {
    // Memory has run out; the widget gets no answer instead of the television no picture.
    ZELTO_FATAL("%s: %s\n", "Execute", failure.what());
    answer.clear();
  }
  ZELTO_DEBUG("%s: returns %s\n", "Execute", answer.c_str());
  return answer.c_str();
}

bool CZelhostZeltoManager::GetAutoStart() { return m_lifeCycle.GetAutoStart(); }
bool CZelhostZeltoManager::Load() { return m_lifeCycle.Load(); }
bool CZelhostZeltoManager::IsZeltoReady() { return m_lifeCycle.IsReady(); }
bool CZelhostZeltoManager::Unload() { return m_lifeCycle.Unload(); }
bool CZelhostZeltoManager::ResetDB() { return m_lifeCycle.ResetDB(); }
void CZelhostZeltoManager::InitZeltoDB() { m_lifeCycle.InitZeltoDB(); }
int CZelhostZeltoManager::InitPersonalData() { return m_lifeCycle.InitPersonalData(); }
int CZelhostZeltoManager::GetZeltoState() { return m_lifeCycle.GetState(); }

const char* CZelhostZeltoManager::GetAvatarFolderPath() { return zelhost::kAvatarFolder; }

const char* CZelhostZeltoManager::GetCountryList() { return GetCountryList("en"); }
const char* CZelhostZeltoManager::GetCountryList(const char* language) {
  return m_countries.GetCountryList(language);
}
int CZelhostZeltoManager::GetISOCountryPrefix(const char* countryCode) {
  return m_countries.GetISOCountryPrefix(countryCode);
}
const char* CZelhostZeltoManager::GetISOCountryName(const char* countryCode, const char* language) {
  return m_countries.GetISOCountryName(countryCode, language);
}
const char* CZelhostZeltoManager::GetLocalNumber(const char* number) {
  return m_countries.GetLocalNumber(number);
}
const char* CZelhostZeltoManager::FindCountryCodeByNumber(const char* number) {
  return m_countries.FindCountryCodeByNumber(number);
}

int CZelhostZeltoManager::GetLocalDBInt(int index) { return CZelhostLocalSetting::GetIntValue(index); }

bool CZelhostZeltoManager::ToggleAutoAnswer() {
  zelhost::ServiceHostLock lock("ToggleAutoAnswer");
  m_autoAnswer = !m_autoAnswer;
  return m_autoAnswer;
}
bool CZelhostZeltoManager::GetAutoAnswer() { return m_autoAnswer; }
void CZelhostZeltoManager::SetWidgetActivatedByAnswering(bool activated) {
  m_widgetActivatedByAnswering = activated;
}
bool CZelhostZeltoManager::IsWidgetActivatedByAnswering() { return m_widgetActivatedByAnswering; }

void CZelhostZeltoManager::OnData(const CAVData* data) { CZelhostIPCManager::GetInstance()->SendData(data); }

void CZelhostZeltoManager::SetLoggedInState(bool loggedIn) { m_loggedIn = loggedIn; }
bool CZelhostZeltoManager::GetLoggedInState() { return m_loggedIn; }
void CZelhostZeltoManager::SetOnlineState(bool online) { m_online = online; }
bool CZelhostZeltoManager::GetOnlineState() { return m_online; }
void CZelhostZeltoManager::SetSigninPopupShowState(bool shown) { m_signinPopupShown = shown; }
bool CZelhostZeltoManager::GetSigninPopupShowState() { return m_signinPopupShown; }

bool CZelhostZeltoManager::WidgetHandleIncomingCall() { return m_widgetHandlesIncomingCall; }

bool CZelhostZeltoManager::StartWidegtOSDTimer(int milliseconds, int id) {
  ZELTO_DEBUG("CZelhostZeltoManager:: %s \n", __func__);
  return m_timers.Start(milliseconds, id);
}
bool CZelhostZeltoManager::RestartWidegtOSDTimer(int milliseconds, int id) {
  ZELTO_DEBUG("CZelhostZeltoManager:: %s \n", __func__);
  return m_timers.Restart(milliseconds, id);
}
bool CZelhostZeltoManager::StopWidegtOSDTimer(int id) {
  ZELTO_DEBUG("CZelhostZeltoManager:: %s \n", __func__);
  return m_timers.Stop(id);
}
