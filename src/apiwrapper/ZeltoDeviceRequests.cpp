#include "apiwrapper/Zelto.h"

#include "apiwrapper/Video.h"
#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/RootMethods.h"

Zelto::PLAYRESULT Zelto::PlayStart(unsigned int sound, const ZEString& data, bool loop, bool flag) {
  return ZERequest(RootMethod::PlayStart, sound, data, loop, flag).ask(this).enumerator<PLAYRESULT>();
}

void Zelto::PlayStop(unsigned int sound) { ZERequest(RootMethod::PlayStop, sound).send(this); }

void Zelto::StartRecordingTest() { ZERequest(RootMethod::StartRecordingTest).send(this); }

void Zelto::StopRecordingTest() { ZERequest(RootMethod::StopRecordingTest).send(this); }

void Zelto::PlayDTMF(CallMember::DTMF tone) { ZERequest(RootMethod::PlayDTMF, tone).send(this); }

bool Zelto::GetAvailableOutputDevices(ZEStringList& ids, ZEStringList& names, ZEStringList& texts) {
  const ZEReply reply = ZERequest(RootMethod::GetAvailableOutputDevices).ask(this);
  ids = reply.texts(1);
  names = reply.texts(2);
  texts = reply.texts(3);
  return reply.flag();
}

bool Zelto::GetAvailableRecordingDevices(ZEStringList& ids, ZEStringList& names) {
  const ZEReply reply = ZERequest(RootMethod::GetAvailableRecordingDevices).ask(this);
  ids = reply.texts(1);
  names = reply.texts(2);
  return reply.flag();
}

bool Zelto::SelectSoundDevices(const ZEString& output, const ZEString& input, const ZEString& ring) {
  return ZERequest(RootMethod::SelectSoundDevices, output, input, ring).ask(this).flag();
}

void Zelto::GetNrgLevels(unsigned int& micLevel, unsigned int& playbackLevel) {
  const ZEReply reply = ZERequest(RootMethod::GetNrgLevels).ask(this);
  micLevel = reply.unsignedNumber();
  playbackLevel = reply.unsignedNumber(1);
}

int Zelto::GetSpeakerVolume() { return ZERequest(RootMethod::GetSpeakerVolume).ask(this).number(); }

void Zelto::SetSpeakerVolume(int volume) { ZERequest(RootMethod::SetSpeakerVolume, volume).send(this); }

int Zelto::GetMicVolume() { return ZERequest(RootMethod::GetMicVolume).ask(this).number(); }

void Zelto::SetMicVolume(int volume) { ZERequest(RootMethod::SetMicVolume, volume).send(this); }

ZEString Zelto::VoiceCommand(const ZEString& command, bool wait) {
  const ZERequest request(RootMethod::VoiceCommand, command);
  if (wait) return request.ask(this).text();
  request.send(this);
  return ZEString();
}

Video* Zelto::GetPreviewVideo() { return ZERequest(RootMethod::GetPreviewVideo).ask(this).object<Video>(); }

void Zelto::DisplayVideoDeviceTuningDialog() {
  ZERequest(RootMethod::DisplayVideoDeviceTuningDialog).send(this);
}

bool Zelto::GetVideoDeviceCapabilities(const ZEString& name, const ZEString& path, ZEString& capabilities) {
  const ZEReply reply = ZERequest(RootMethod::GetVideoDeviceCapabilities, name, path).ask(this);
  capabilities = reply.text(1);
  return reply.flag();
}

bool Zelto::GetAvailableVideoDevices(ZEStringList& devices) {
  const ZEReply reply = ZERequest(RootMethod::GetAvailableVideoDevices).ask(this);
  devices = reply.texts(1);
  return reply.flag();
}

ZEString Zelto::VideoCommand(const ZEString& command, bool wait) {
  const ZERequest request(RootMethod::VideoCommand, command);
  if (wait) return request.ask(this).text();
  request.send(this);
  return ZEString();
}

App2App* Zelto::CreateApp2App(const ZEString& name) {
  const bool created = ZERequest(RootMethod::CreateApp2App, name).ask(this).flag();
  return created ? getApp2App(name) : nullptr;
}
