#include "zelhost/history/ZelhostHistoryManager.h"

#include <string_view>
#include <unordered_set>
#include <utility>

#include "Common/HistoryManager.h"
#include "Common/Log.h"
#include "Common/RecordWriter.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/Call.h"
#include "apiwrapper/Voicemail.h"
#include "zelhost/apiwrapper/client/CSearch.h"
#include "zelhost/apiwrapper/client/CZelto.h"

using zelhost::ServiceHostLock;

CZelhostHistoryManager::~CZelhostHistoryManager() { m_instance.Forget(); }

void CZelhostHistoryManager::Init() {
  CZeltoManager::SetEventHandler(CZeltoManager::INCOMING_VOICEMAIL, CHistoryManager::GetInstance());
}

bool CZelhostHistoryManager::OnEvent(const CZeltoEvent* event) {
  ZELTO_DEBUG("%s %d event=%d\n", "CZelhostHistoryManager::OnEvent", __LINE__, event->type);
  return true;
}

// The playing voicemail

void CZelhostHistoryManager::SetCurrentPlayingVoicemail(Voicemail* voicemail) {
  ServiceHostLock lock("SetCurrentPlayingVoicemail");
  m_pPlayingVoicemail = voicemail;
}

bool CZelhostHistoryManager::StopPlayingVoicemail() {
  ServiceHostLock lock("StopPlayingVoicemail");
  Voicemail* playing = std::exchange(m_pPlayingVoicemail, nullptr);
  if (playing == nullptr) return false;
  playing->StopPlayback();
  return true;
}

Voicemail* CZelhostHistoryManager::VoicemailAt(int index) const {
  const CHistoryInfo* entry = m_HistoryList.At(index);
  return entry == nullptr ? nullptr : entry->GetVoicemail();
}

bool CZelhostHistoryManager::PlayVoicemail(int index) {
  ServiceHostLock lock("PlayVoicemail");
  Voicemail* voicemail = VoicemailAt(index);
  if (voicemail == nullptr || !voicemail->StartPlayback()) return false;
  m_pPlayingVoicemail = voicemail;
  return true;
}

bool CZelhostHistoryManager::StopVoicemail(int index) {
  ServiceHostLock lock("StopVoicemail");
  Voicemail* voicemail = VoicemailAt(index);
  if (voicemail == nullptr) return false;
  voicemail->StopPlayback();
  m_pPlayingVoicemail = nullptr;
  return true;
}

// Objects that are going

void CZelhostHistoryManager::Forget(const ZEObject* object) {
  m_HistoryList.Forget(object);
  m_NewHistoryList.Forget(object);
}

void CZelhostHistoryManager::ForgetCall(const Call* call) {
  ServiceHostLock lock("ForgetCall");
  if (CZelhostHistoryManager* manager = m_instance.Existing()) manager->Forget(call);
}

void CZelhostHistoryManager::ForgetVoicemail(const Voicemail* voicemail) {
  ServiceHostLock lock("ForgetVoicemail");
  CZelhostHistoryManager* manager = m_instance.Existing();
  if (manager == nullptr) return;
  if (manager->m_pPlayingVoicemail == voicemail) manager->m_pPlayingVoicemail = nullptr;
  manager->Forget(voicemail);
}

// The list

void CZelhostHistoryManager::ClearHistoryList() {
  ServiceHostLock lock("ClearHistoryList");
  CSearch::GiveUp(m_pCallsSearch);
  CSearch::GiveUp(m_pVoicemailSearch);
  m_bNewListReady = m_bRefreshFailed = m_bRecheckVoicemail = false;
  m_HistoryList.Clear();
  m_NewHistoryList.Clear();
  m_missed = {};
}

void CZelhostHistoryManager::UpdateToNewList() {
  ServiceHostLock lock("UpdateToNewList");
  if (!std::exchange(m_bNewListReady, false)) return;
  ZELTO_DEBUG("change to new history list since it was refreshed");
  m_HistoryList = std::exchange(m_NewHistoryList, HistoryList());
  Sort();
}

void CZelhostHistoryManager::Sort() {
  ServiceHostLock lock("Sort");
  m_HistoryList.Sort();
  ZELTO_DEBUG("m_HistoryList.size() = %d\n", m_HistoryList.Count());
}

bool CZelhostHistoryManager::DeleteHistory(int index) {
  ServiceHostLock lock("DeleteHistory");
  const CHistoryInfo* entry = m_HistoryList.At(index);
  if (g_lpZelto == nullptr || entry == nullptr) return false;
  const ZEObject* object = entry->Object();
  if (Call* call = entry->GetCall()) call->Delete();
  if (Voicemail* voicemail = entry->GetVoicemail()) {
    if (m_pPlayingVoicemail == voicemail) m_pPlayingVoicemail = nullptr;
    voicemail->Delete();
  }
  m_HistoryList.Erase(index);
  ZELTO_DEBUG("history info [%d] was deleted\n", index);
  // A refresh that found the object before must not bring it back.
  const int found = m_NewHistoryList.PositionOf(object);
  if (found >= 0) m_NewHistoryList.Erase(found);
  ZELTO_DEBUG("Start sort");
  Sort();
  CZeltoManager::SendEvent(CZeltoManager::HISTORY_CHANGED, 0);
  return true;
}

const char* CZelhostHistoryManager::GetZeltoOutHistoryList() {
  ServiceHostLock lock("GetZeltoOutHistoryList");
  UpdateToNewList();
  m_strResult.clear();
  zelto::RecordWriter writer(m_strResult);
  std::unordered_set<std::string_view> written;
  for (int i = 0; i < m_HistoryList.Count(); ++i) {
    CHistoryInfo& entry = *m_HistoryList.At(i);
    const std::string_view number = entry.Get(CHistoryInfo::KEY_IDENTITY).view();
    if (entry.IsDialledNumber() && written.insert(number).second) writer.Field(number);
  }
  return m_strResult.c_str();
}

// Missed calls

bool CZelhostHistoryManager::RefreshMissedCallList() {
  ServiceHostLock lock("RefreshMissedCallList");
  ZELTO_DEBUG("CZelhostHistoryManager::RefreshMissedCallList");
  UpdateToNewList();
  if (m_HistoryList.Count() == 0) ZELTO_DEBUG("History list is empty");
  m_missed = {};
  for (int i = 0; i < m_HistoryList.Count(); ++i) {
    CHistoryInfo& entry = *m_HistoryList.At(i);
    if (!entry.IsMissedCall()) continue;
    const std::string_view member = entry.Get(CHistoryInfo::KEY_IDENTITY).view();
    if (m_missed.count++ == 0) {
      m_missed.memberName = member;
      m_missed.timeStamp = entry.Get(CHistoryInfo::KEY_LOCAL_TIME).view();
    }
    m_missed.oneMember = m_missed.oneMember && member == m_missed.memberName;
  }
  if (m_missed.count == 0) return false;
  ZELTO_DEBUG("Number of missed call %d\n", m_missed.count);
  return true;
}

int CZelhostHistoryManager::GetNumOfMissedCall() {
  ServiceHostLock lock("GetNumOfMissedCall");
  return m_missed.count;
}

std::string CZelhostHistoryManager::GetMissedCallMemberName() {
  ServiceHostLock lock("GetMissedCallMemberName");
  return m_missed.memberName;
}

std::string CZelhostHistoryManager::GetMissedCallTimeStamp() {
  ServiceHostLock lock("GetMissedCallTimeStamp");
  return m_missed.timeStamp;
}

bool CZelhostHistoryManager::isMissedCallOneMember() {
  ServiceHostLock lock("isMissedCallOneMember");
  return m_missed.oneMember;
}
