#include "zelhost/history/ZelhostHistoryManager.h"

#include "Common/HistoryManager.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/Voicemail.h"

CZelhostHistoryManager::~CZelhostHistoryManager() { m_instance.Forget(); }

void CZelhostHistoryManager::Init() {
  CZeltoManager::SetEventHandler(CZeltoManager::INCOMING_VOICEMAIL, CHistoryManager::GetInstance());
}
bool CZelhostHistoryManager::OnEvent(const CZeltoEvent*) { return true; }

bool CZelhostHistoryManager::OnNewVoicemail(Voicemail*) { return false; }
void CZelhostHistoryManager::UpdateHistoryList(int, const ZEPtrVector&) {}

void CZelhostHistoryManager::SetCurrentPlayingVoicemail(Voicemail* voicemail) {
  zelhost::ServiceHostLock lock("SetCurrentPlayingVoicemail");
  m_playing = voicemail;
}

bool CZelhostHistoryManager::StopPlayingVoicemail() {
  zelhost::ServiceHostLock lock("StopPlayingVoicemail");
  if (m_playing == nullptr) return false;
  m_playing->StopPlayback();
  m_playing = nullptr;
  return true;
}

void CZelhostHistoryManager::ForgetVoicemail(const Voicemail* voicemail) {
  zelhost::ServiceHostLock lock("ForgetVoicemail");
  CZelhostHistoryManager* manager = m_instance.Existing();
  if (manager != nullptr && manager->m_playing == voicemail) manager->m_playing = nullptr;
}

void CZelhostHistoryManager::ClearHistoryList() {}

int CZelhostHistoryManager::GetNumOfHistories() { return 0; }
const char* CZelhostHistoryManager::GetHistoryInfo(int, int) { return nullptr; }
const char* CZelhostHistoryManager::GetHistoryInfo(int, int, int) { return nullptr; }
const char* CZelhostHistoryManager::GetHistoryInfoWithTimestamp(const char*, int) { return nullptr; }
const char* CZelhostHistoryManager::GetHistoryInfoIncludingTimestamp(int, int, int) { return nullptr; }
const char* CZelhostHistoryManager::GetHistoryInfoIncludingCallMembers(int, int, int) { return nullptr; }
int CZelhostHistoryManager::GetHistoryIndexWithTimestamp(const char*) { return -1; }
const char* CZelhostHistoryManager::GetZeltoOutHistoryList() { return nullptr; }

bool CZelhostHistoryManager::PlayVoicemail(int) { return false; }
bool CZelhostHistoryManager::StopVoicemail(int) { return false; }
bool CZelhostHistoryManager::DeleteHistory(int) { return false; }

bool CZelhostHistoryManager::RefreshHistoryList() { return false; }
bool CZelhostHistoryManager::RefreshMissedCallList() { return false; }
int CZelhostHistoryManager::GetNumOfMissedCall() { return 0; }
std::string CZelhostHistoryManager::GetMissedCallMemberName() { return {}; }
std::string CZelhostHistoryManager::GetMissedCallTimeStamp() { return {}; }
bool CZelhostHistoryManager::isMissedCallOneMember() { return true; }
