// How the history manager gets its list: searches of the runtime, and voicemails as they arrive.
#include <memory>
#include <utility>

#include "Common/CallManager.h"
#include "Common/Log.h"
#include "Common/ZeltoManager.h"
#include "apiwrapper/Chat.h"
#include "apiwrapper/Voicemail.h"
#include "apiwrapper/ZEPtrVector.h"
#include "apiwrapper/ZEReply.h"
#include "zelhost/ServiceHostMutex.h"
#include "zelhost/apiwrapper/client/CSearch.h"
#include "zelhost/apiwrapper/client/CZelto.h"
#include "zelhost/chats/ZelhostChatManager.h"
#include "zelhost/history/ZelhostHistoryManager.h"

using zelhost::ServiceHostLock;

namespace {

void TakeChats(const ZEPtrVector& results) {
  for (unsigned i = 0; i < results.size(); ++i) {
    if (auto* chat = zeObjectAt<Chat>(results, i)) CZelhostChatManager::GetInstance()->AddToChatList(chat);
  }
  CZeltoManager::SendEvent(CZeltoManager::UNREAD_COUNT_CHANGED, 0);
}

}  // namespace

CSearch* CZelhostHistoryManager::StartSearch(Search::TARGET kind) {
  CSearch* search = CSearch::Start(*g_lpZelto, kind);
  m_bRefreshFailed |= search == nullptr;
  return search;
}

void CZelhostHistoryManager::ForgetSearch(const CSearch* search) {
  ServiceHostLock lock("ForgetSearch");
  CZelhostHistoryManager* manager = m_instance.Existing();
  if (manager == nullptr) return;
  if (manager->m_pCallsSearch == search) manager->m_pCallsSearch = nullptr;
  if (manager->m_pVoicemailSearch == search) manager->m_pVoicemailSearch = nullptr;
}

bool CZelhostHistoryManager::RefreshHistoryList() {
  ServiceHostLock lock("RefreshHistoryList");
  ZELTO_DEBUG("RefreshHistoryList\n");
  if (g_lpZelto == nullptr) return false;
  UpdateToNewList();  // nobody has asked for it yet, but it is newer than what is shown
  CSearch::GiveUp(m_pCallsSearch);
  CSearch::GiveUp(m_pVoicemailSearch);
  m_NewHistoryList.Clear();
  m_bRefreshFailed = m_bRecheckVoicemail = false;
  ZELTO_DEBUG("Send a request for Search::CALLS");
  m_pCallsSearch = StartSearch(Search::CALLS);
  ZELTO_DEBUG("Send a request for Search::VOICEMAIL");
  m_pVoicemailSearch = StartSearch(Search::VOICEMAIL);
  return !m_bRefreshFailed;
}

void CZelhostHistoryManager::UpdateHistoryList(int kind, const ZEPtrVector& results) {
  ServiceHostLock lock("UpdateHistoryList");
  ZELTO_DEBUG("CZelhostHistoryManager::UpdateHistoryList");
  if (kind == Search::CHAT) return TakeChats(results);
  if ((kind != Search::CALLS && kind != Search::VOICEMAIL) || g_lpZelto == nullptr || EndSearch(kind)) return;
  Gather(kind == Search::CALLS ? zelhost::ReadCalls(*g_lpZelto, results)
                               : zelhost::ReadVoicemails(*g_lpZelto, results));
  FinishRefresh();
}

void CZelhostHistoryManager::OnSearchFailed(int kind) {
  ServiceHostLock lock("OnSearchFailed");
  if ((kind != Search::CALLS && kind != Search::VOICEMAIL) || g_lpZelto == nullptr || EndSearch(kind)) return;
  m_bRefreshFailed = true;
  FinishRefresh();
}

bool CZelhostHistoryManager::EndSearch(int kind) {
  if (kind == Search::CALLS) {
    m_pCallsSearch = nullptr;
    return false;
  }
  m_pVoicemailSearch = nullptr;
  if (!std::exchange(m_bRecheckVoicemail, false)) return false;
  ZELTO_DEBUG("One more check voicemail history");
  m_pVoicemailSearch = StartSearch(Search::VOICEMAIL);
  return m_pVoicemailSearch != nullptr;
}

void CZelhostHistoryManager::Gather(zelhost::HistoryEntries entries) {
  m_NewHistoryList.Reserve(entries.size());
  for (auto& entry : entries) m_NewHistoryList.Append(std::move(entry));
}

void CZelhostHistoryManager::FinishRefresh() {
  if (m_pCallsSearch != nullptr || m_pVoicemailSearch != nullptr) return;
  if (m_bRefreshFailed) {
    ZELTO_WARNING("the history could not be refreshed\n");
    m_NewHistoryList.Clear();
    return;
  }
  m_bNewListReady = true;
  ReportMissedCalls();
  CZeltoManager::SendEvent(CZeltoManager::HISTORY_CHANGED, 0);
}

void CZelhostHistoryManager::ReportMissedCalls() {
  CCallManager* calls = CCallManager::GetInstance();
  if (!calls->IsMissed()) return;
  if (RefreshMissedCallList()) CZeltoManager::SendEvent(CZeltoManager::MISSED_CALL, 0);
  calls->SetMissed(false);
}

bool CZelhostHistoryManager::OnNewVoicemail(Voicemail* voicemail) {
  ServiceHostLock lock("OnNewVoicemail");
  if (voicemail == nullptr) return false;
  if (m_pVoicemailSearch != nullptr) {
    m_bRecheckVoicemail = true;
    return true;
  }
  UpdateToNewList();
  if (m_HistoryList.Holds(voicemail)) {
    ZELTO_DEBUG("Already exist voicemail");
    return false;
  }
  auto entry = zelhost::ReadVoicemail(voicemail);
  if (entry == nullptr) return false;
  // The refresh under way has its voicemails already.
  if (m_pCallsSearch != nullptr) m_NewHistoryList.Append(std::make_unique<CHistoryInfo>(*entry));
  m_HistoryList.InsertFront(std::move(entry));
  CZeltoManager::SendEvent(CZeltoManager::HISTORY_CHANGED, 0);
  return true;
}

bool CZelhostHistoryManager::UpdateVoicemailDuration(Voicemail* voicemail, int seconds) {
  ServiceHostLock lock("UpdateVoicemailDuration");
  const int position = m_HistoryList.PositionOf(voicemail);
  if (position < 0) {
    ZELTO_DEBUG("There is no matched voicemail history info");
    return false;
  }
  CHistoryInfo& entry = *m_HistoryList.At(position);
  const ZEString before = entry.Get(CHistoryInfo::KEY_DURATION);
  entry.Set(CHistoryInfo::KEY_DURATION, ZEString::from(seconds));
  ZELTO_DEBUG("Voicemail history info[%d] is update from %s to %s\n", position,
              static_cast<const char*>(before),
              static_cast<const char*>(entry.Get(CHistoryInfo::KEY_DURATION)));
  return true;
}
