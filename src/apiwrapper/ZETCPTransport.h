// The transport over TCP, for a runtime on another machine.
#pragma once

#include "apiwrapper/ZEStreamTransport.h"

// Threads: as ZETransport.
class ZELTO_EXPORT ZETCPTransport : public ZEStreamTransport {
 public:
  // `address` is an IPv4 address in dotted decimal.
  ZETCPTransport(const ZEString& address, int port);

  // One attempt; false with one error line.
  bool connect() override;
  void disconnect() override;

 private:
  ZEString m_address;
  int m_port;
};
