#pragma once

#include <string>

#include "Common/HistoryManagerImp.h"
#include "apiwrapper/Search.h"
#include "zelhost/ManagerInstance.h"
#include "zelhost/history/HistoryEntries.h"
#include "zelhost/history/HistoryList.h"

class CSearch;
class Call;
class Voicemail;
class ZEPtrVector;

// Past calls and voicemails of the signed-in account, unseen ones first and then newest first.
// Two searches of the runtime make up a refresh. Their results gather in a second list, which takes the place
// of the first with the next question; until then the first one is answered from. A refresh that fails
// changes nothing.
// Objects of the runtime may go at any time: entries stay without them, and an object that reuses their id is
// another one.
// Texts that are answered stay valid until the next question of the same kind: about single values, about
// dialled numbers, or about records.
// Threads: any; every operation takes the service-host mutex.
class CZelhostHistoryManager : public CHistoryManagerImp {
 public:
  static CZelhostHistoryManager* GetInstance() { return m_instance.Get(); }
  ~CZelhostHistoryManager() override;

  // A voicemail has arrived; it stays the root object's. False when it did not enter the list: it is there
  // already, or does not belong there. While voicemails are searched for, the search is repeated instead.
  bool OnNewVoicemail(Voicemail* voicemail);
  // A search has ended: its kind (1 chats, 4 calls, 7 voicemails) and what it found.
  void UpdateHistoryList(int kind, const ZEPtrVector& results);
  // A search of that kind has ended without results to be had.
  void OnSearchFailed(int kind);
  // Seconds of a voicemail; false when it is not in the list.
  bool UpdateVoicemailDuration(Voicemail* voicemail, int seconds);
  // The voicemail that is being played; null for none. It stays the root object's.
  void SetCurrentPlayingVoicemail(Voicemail* voicemail);
  // Stops the voicemail that is being played and forgets it; false when none was.
  bool StopPlayingVoicemail();
  // Empties the list and gives up a refresh; part of every sign-out.
  void ClearHistoryList();
  // Puts a refreshed list in the place of the current one.
  void UpdateToNewList();
  // Brings the list in order.
  void Sort();

  // For destructors: the object is going, nothing may use it any more. They create no manager.
  static void ForgetCall(const Call* call);
  static void ForgetVoicemail(const Voicemail* voicemail);
  static void ForgetSearch(const CSearch* search);

  void Init() override;
  bool OnEvent(const CZeltoEvent* event) override;

  int GetNumOfHistories() override;
  const char* GetHistoryInfo(int index, int key) override;
  const char* GetHistoryInfo(int index, int num, int before) override;
  const char* GetHistoryInfoWithTimestamp(const char* time, int key) override;
  const char* GetHistoryInfoIncludingTimestamp(int index, int num, int before) override;
  const char* GetHistoryInfoIncludingCallMembers(int index, int num, int before) override;
  int GetHistoryIndexWithTimestamp(const char* time) override;
  const char* GetZeltoOutHistoryList() override;

  // These count in the list as it is: a refreshed one takes its place with a question, not with them.
  bool PlayVoicemail(int index) override;
  bool StopVoicemail(int index) override;
  bool DeleteHistory(int index) override;

  bool RefreshHistoryList() override;
  bool RefreshMissedCallList() override;
  int GetNumOfMissedCall() override;
  std::string GetMissedCallMemberName() override;
  std::string GetMissedCallTimeStamp() override;
  bool isMissedCallOneMember() override;

 private:
  friend class zelhost::ManagerInstance<CZelhostHistoryManager>;
  using Host = zelhost::ServiceHostMutex;
  struct PageKind;

  CZelhostHistoryManager() = default;

  // The missed calls of the last RefreshMissedCallList().
  struct MissedCalls {
    int count = 0;
    bool oneMember = true;
    std::string memberName;
    std::string timeStamp;
  };

  void Forget(const ZEObject* object) ZELTO_REQUIRES(Host::Get());
  Voicemail* VoicemailAt(int index) const ZELTO_REQUIRES(Host::Get());

  CSearch* StartSearch(Search::TARGET kind) ZELTO_REQUIRES(Host::Get());
  // Notes that a search is over; true when it was started again.
  bool EndSearch(int kind) ZELTO_REQUIRES(Host::Get());
  void Gather(zelhost::HistoryEntries entries) ZELTO_REQUIRES(Host::Get());
  // What is to be done once neither search is pending any more.
  void FinishRefresh() ZELTO_REQUIRES(Host::Get());
  void ReportMissedCalls() ZELTO_REQUIRES(Host::Get());

  const char* Page(const PageKind& kind, int index, int num, int before);
  // Whether the runtime was told.
  bool MarkSeen(CHistoryInfo& entry, int position, const PageKind& kind) ZELTO_REQUIRES(Host::Get());

  static inline zelhost::ManagerInstance<CZelhostHistoryManager> m_instance;

  bool m_bNewListReady ZELTO_GUARDED_BY(Host::Get()) = false;
  bool m_bRefreshFailed ZELTO_GUARDED_BY(Host::Get()) = false;
  bool m_bRecheckVoicemail ZELTO_GUARDED_BY(Host::Get()) = false;  // one came while they were searched for
  // Null when it has answered.
  CSearch* m_pCallsSearch ZELTO_GUARDED_BY(Host::Get()) = nullptr;
  CSearch* m_pVoicemailSearch ZELTO_GUARDED_BY(Host::Get()) = nullptr;
  HistoryList m_HistoryList ZELTO_GUARDED_BY(Host::Get());
  HistoryList m_NewHistoryList ZELTO_GUARDED_BY(Host::Get());
  MissedCalls m_missed ZELTO_GUARDED_BY(Host::Get());
  Voicemail* m_pPlayingVoicemail ZELTO_GUARDED_BY(Host::Get()) = nullptr;
  std::string m_strValue ZELTO_GUARDED_BY(Host::Get());
  std::string m_strResult ZELTO_GUARDED_BY(Host::Get());  // of GetZeltoOutHistoryList
  std::string m_strPage ZELTO_GUARDED_BY(Host::Get());
};
