#pragma once

#include "apiwrapper/CallMember.h"
#include "zelhost/apiwrapper/client/DescribedObject.h"

// One person of a call: keeps the call manager's member current and turns its changes into engine events.
// Threads: the caller holds the service-host mutex.
class CCallMember : public DescribedObject<CallMember, kTraceCallMember> {
 public:
  // Asks the runtime for both video objects.
  CCallMember(int oid, Zelto* root);
  // The call manager forgets it.
  ~CCallMember() override;

  // A final status deletes the object.
  void OnChange(int property, const ZEString& value) override;
  void OnIncomingDTMF(CallMember::DTMF tone) override;

  // Null without one, also once the runtime has dropped it; the registry owns it.
  Video* SendVideo() { return VideoOf(m_sendVideo); }
  Video* RecvVideo() { return VideoOf(m_recvVideo); }

  // Nothing but a line in the log without the video object.
  void StartSendVideo();
  void StopSendVideo();
  void StartRecvVideo();
  void StopRecvVideo();
  // Writes the picture that is being sent to the file "image".
  void CaptureImage();

 private:
  struct Reaction;

  static const Reaction* FindReaction(int property);
  unsigned IdOf(Video* video);
  Video* VideoOf(unsigned id);

  // One for each property that means an event; OnStatus may delete the object.
  void OnStatus(const ZEString& value);
  void OnVoiceLevel(const ZEString& value);
  void OnFailureText(const ZEString& value);
  void OnProperty15(const ZEString& value);
  void OnVideoStatus(const ZEString& value);
  void OnQuality(const ZEString& value);
  void OnDuration(const ZEString& value);
  void OnProperty37(const ZEString& value);

  // By id instead of by pointer: the runtime may drop a video before its member.
  unsigned m_recvVideo;
  unsigned m_sendVideo;
};
