#pragma once

#include "apiwrapper/Call.h"
#include "zelhost/apiwrapper/client/DescribedObject.h"

class CCallMember;

// A call: turns its changes into engine events, and reaches its members by their index.
// A member's index counts in the list that the runtime gives at that moment; one beyond it does nothing.
// Threads: the caller holds the service-host mutex.
class CCall : public DescribedObject<Call, kTraceCall> {
 public:
  using DescribedObject::DescribedObject;
  // Leaves the root's call list, the call manager and the history.
  ~CCall() override;

  // The end of a call beside the list's first one deletes the object.
  void OnChange(int property, const ZEString& value) override;
  void OnDelete() override;

  // Answers the only member, or the first one that the call names as its partner; nobody when none is.
  void Answer();

  unsigned GetMembersNum();
  void PrintMembers();
  void AnswerToMember(unsigned index);
  void HoldToMember(unsigned index);
  void ResumeToMember(unsigned index);
  void HangupToMember(unsigned index, CallMember::ENDACTION action);
  void GrandMicToMember(unsigned index, bool grant);
  void SkipGreetingToMember(unsigned index);
  void SetOriginToMember(unsigned index, const ZEString& identity);
  void CaptureImage(unsigned index);
  // Plays for the whole call, whatever the index.
  void SendDtmfToMember(unsigned index, CallMember::DTMF tone);

  // Null without such a member or when it takes no pictures; the registry owns it.
  Video* GetSendVideoObject(unsigned index);
  // Of the first member only: another index ends the process.
  void StartVideoSendToMember(unsigned index);
  void StopVideoSendToMember(unsigned index);
  void StartVideoRecvToMember(unsigned index);
  void StopVideoRecvToMember(unsigned index);

 private:
  struct Reaction;

  static const Reaction* FindReaction(int property);
  // Null when the index is beyond the members.
  CCallMember* MemberAt(unsigned index);
  bool IsConference();

  // One for each property that means an event; OnOngoing may delete the object.
  void OnDuration(const ZEString& value);
  void OnActiveMembers(const ZEString& value);
  void OnOngoing(const ZEString& value);
  void OnConference(const ZEString& value);
};
