#pragma once

#include <string>

struct CZeltoEvent;

// Past calls and voicemails, newest first with unseen ones ahead.
// The order of the operations is that of the implementing class, CZelhostHistoryManager.
// Threads: any; an implementation takes the service-host mutex.
// Failures answer false, 0, -1 or null. Texts answered stay the manager's and valid until its next one.
class CHistoryManagerImp {
 public:
  CHistoryManagerImp() = default;
  CHistoryManagerImp(const CHistoryManagerImp&) = delete;
  CHistoryManagerImp& operator=(const CHistoryManagerImp&) = delete;
  virtual ~CHistoryManagerImp() = default;

  // Registers the history facade for its engine events.
  virtual void Init() = 0;
  // True lets the event through to the host. On the event thread.
  virtual bool OnEvent(const CZeltoEvent* event) = 0;

  virtual int GetNumOfHistories() = 0;
  virtual const char* GetHistoryInfo(int index, int key) = 0;
  // Records of `num` entries, `before` of them ahead of position `index`; reading marks calls seen.
  virtual const char* GetHistoryInfo(int index, int num, int before) = 0;
  virtual const char* GetHistoryInfoWithTimestamp(const char* time, int key) = 0;
  virtual const char* GetHistoryInfoIncludingTimestamp(int index, int num, int before) = 0;
  virtual const char* GetHistoryInfoIncludingCallMembers(int index, int num, int before) = 0;
  virtual int GetHistoryIndexWithTimestamp(const char* time) = 0;  // -1 when there is none
  virtual const char* GetZeltoOutHistoryList() = 0;

  virtual bool PlayVoicemail(int index) = 0;
  virtual bool StopVoicemail(int index) = 0;
  virtual bool DeleteHistory(int index) = 0;

  // Starts the searches; the new list arrives with an event.
  virtual bool RefreshHistoryList() = 0;
  // Whether there are missed calls; the next four describe them.
  virtual bool RefreshMissedCallList() = 0;
  virtual int GetNumOfMissedCall() = 0;
  virtual std::string GetMissedCallMemberName() = 0;
  virtual std::string GetMissedCallTimeStamp() = 0;
  virtual bool isMissedCallOneMember() = 0;
};
