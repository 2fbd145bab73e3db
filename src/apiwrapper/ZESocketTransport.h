// The transport over a local stream socket: how the engine speaks to its runtime.
#pragma once

#include "apiwrapper/ZEStreamTransport.h"

// Threads: as ZETransport.
class ZELTO_EXPORT ZESocketTransport : public ZEStreamTransport {
 public:
  // `path` is the television's own path, shorter than 108 bytes on this machine.
  explicit ZESocketTransport(const ZEString& path);

  // False with one error line when there is no such socket, or nobody listens, or the path is too long.
  bool connect() override;
  void disconnect() override;

 private:
  ZEString m_path;
};
