#pragma once

#include "apiwrapper/ZEObject.h"

// A stream of pictures: one direction of a call member, or the preview.
// A result that the runtime withholds reads as false, 0, -1 for an enumerator, the null string, an empty list
// or no object; a request that answers nothing is one-way. Proxies in results belong to the registry.
// Threads: as ZEObject.
class Video : public ZEObject {
 public:
  // clang-format off
  enum PROPERTY : int {
    P_STATUS = 1, P_2 = 2, P_3 = 3, P_4 = 4, P_5 = 5
  };
  // clang-format on

  Video(int oid, Zelto* root);
  ZEString getNamespace() override;
  const PMAP* getPMap() override;
  const EMAP* getEMap() override;
  virtual void OnLastFrameCapture(ZEString& image, unsigned int width, unsigned int height);

  // `geometry`: for example "160 0 640 480".
  void SetScreen(int window, const ZEString& geometry);
  void Start();
  void Stop();
  // `image` becomes a binary string, of `width` times `height` pixels.
  bool CaptureImage(ZEString& image, unsigned int& width, unsigned int& height);
};
