#include "apiwrapper/Video.h"

#include "apiwrapper/ZERequest.h"
#include "apiwrapper/tables/ClassMethods.h"

Video::Video(int oid, Zelto* root) : ZEObject(static_cast<unsigned int>(oid), root) {}

ZEString Video::getNamespace() { return VIDEO_CLASS.token; }

const PMAP* Video::getPMap() { return VIDEO_CLASS.properties; }

const EMAP* Video::getEMap() { return VIDEO_CLASS.enums; }

void Video::OnLastFrameCapture(ZEString&, unsigned int, unsigned int) {}

void Video::SetScreen(int window, const ZEString& geometry) {
  ZERequest(VideoMethod::SetScreen, window, geometry).send(this);
}

void Video::Start() { ZERequest(VideoMethod::Start).send(this); }

void Video::Stop() { ZERequest(VideoMethod::Stop).send(this); }

bool Video::CaptureImage(ZEString& image, unsigned int& width, unsigned int& height) {
  const ZEReply reply = ZERequest(VideoMethod::CaptureImage).ask(this);
  image = reply.text(1);
  width = reply.unsignedNumber(2);
  height = reply.unsignedNumber(3);
  return reply.flag();
}
