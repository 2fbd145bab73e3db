#pragma once

#include <string>

#include "Common/HistoryManagerImp.h"
#include "zelhost/ManagerInstance.h"

class Voicemail;
class ZEPtrVector;

// Past calls and voicemails of the signed-in account.
// It keeps no list yet: questions are answered as for an account without a past, and operations are
// refused.
// Threads: any.
class CZelhostHistoryManager : public CHistoryManagerImp {
 public:
  static CZelhostHistoryManager* GetInstance() { return m_instance.Get(); }
  ~CZelhostHistoryManager() override;

  // A voicemail has arrived; it stays the root object's. True when it entered the list.
  bool OnNewVoicemail(Voicemail* voicemail);
  // A search has ended: its kind (1 chats, 4 calls, 7 voicemails) and what it found.
  void UpdateHistoryList(int kind, const ZEPtrVector& results);
  // The voicemail that is being played; null for none. It stays the root object's.
  void SetCurrentPlayingVoicemail(Voicemail* voicemail);
  // Stops the voicemail that is being played and forgets it; false when none was.
  bool StopPlayingVoicemail();
  // A voicemail object is going: it may not be played any more. Creates no manager.
  static void ForgetVoicemail(const Voicemail* voicemail);
  // Empties the list; part of every sign-out.
  void ClearHistoryList();

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
  CZelhostHistoryManager() = default;

  static inline zelhost::ManagerInstance<CZelhostHistoryManager> m_instance;

  Voicemail* m_playing ZELTO_GUARDED_BY(zelhost::ServiceHostMutex::Get()) = nullptr;
};
