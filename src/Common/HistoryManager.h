// The facade of the history manager: past calls and voicemails.
#pragma once

#include <string>

#include "Common/HistoryManagerImp.h"
#include "Common/ManagerFacade.h"

// The operations are those of CHistoryManagerImp, which states their contracts.
// Threads: any; see ManagerFacade.
class CHistoryManager : public zelto::ManagerFacade<CHistoryManager, CHistoryManagerImp> {
 public:
  CHistoryManagerImp* GetHistoryManagerImp() { return GetImp(); }

  int GetNumOfHistories() { return GetImp()->GetNumOfHistories(); }
  const char* GetHistoryInfo(int index, int key) { return GetImp()->GetHistoryInfo(index, key); }
  const char* GetHistoryInfo(int index, int num, int before) {
    return GetImp()->GetHistoryInfo(index, num, before);
  }
  const char* GetHistoryInfoWithTimestamp(const char* time, int key) {
    return GetImp()->GetHistoryInfoWithTimestamp(time, key);
  }
  const char* GetHistoryInfoIncludingTimestamp(int index, int num, int before) {
    return GetImp()->GetHistoryInfoIncludingTimestamp(index, num, before);
  }
  const char* GetHistoryInfoIncludingCallMembers(int index, int num, int before) {
    return GetImp()->GetHistoryInfoIncludingCallMembers(index, num, before);
  }
  int GetHistoryIndexWithTimestamp(const char* time) { return GetImp()->GetHistoryIndexWithTimestamp(time); }
  const char* GetZeltoOutHistoryList() { return GetImp()->GetZeltoOutHistoryList(); }
  bool PlayVoicemail(int index) { return GetImp()->PlayVoicemail(index); }
  bool StopVoicemail(int index) { return GetImp()->StopVoicemail(index); }
  bool DeleteHistory(int index) { return GetImp()->DeleteHistory(index); }
  bool RefreshHistoryList() { return GetImp()->RefreshHistoryList(); }
  bool RefreshMissedCallList() { return GetImp()->RefreshMissedCallList(); }
  int GetNumOfMissedCall() { return GetImp()->GetNumOfMissedCall(); }
  std::string GetMissedCallMemberName() { return GetImp()->GetMissedCallMemberName(); }
  std::string GetMissedCallTimeStamp() { return GetImp()->GetMissedCallTimeStamp(); }
  bool isMissedCallOneMember() { return GetImp()->isMissedCallOneMember(); }

 private:
  friend class zelto::ManagerFacade<CHistoryManager, CHistoryManagerImp>;
  CHistoryManager() = default;

  static CHistoryManagerImp* CreateImp();
};
