// Framing over a stream socket, shared by the local and the TCP transport. A frame is the text's length in
// four bytes, most significant first, and the text.
#pragma once

#include <cstddef>
#include <cstdint>

#include "apiwrapper/ZETransport.h"

// What a transport class writes when something fails.
struct ZEStreamTexts {
  const char* pushNotConnected;
  const char* pushTooLong;
  const char* pullNotConnected;
  const char* garbage;
  const char* waitFailed;
  bool waitFailedNamesError;  // the system's own text follows
};

// Threads: as ZETransport.
class ZELTO_EXPORT ZEStreamTransport : public ZETransport {
 public:
  void push(const ZEString& message) override;
  ZEString pull(bool block) override;
  bool hasMore(int milliseconds) override;
  bool isConnected() override { return m_connected; }
  int getSocket() override { return m_socket; }

 protected:
  // `texts` is static data.
  explicit ZEStreamTransport(const ZEStreamTexts& texts) : m_texts(texts) {}

  int m_socket = -1;
  bool m_connected = false;

 private:
  // Both answer false, with the connection marked as gone, unless every byte went through.
  bool writeAll(const char* data, std::size_t size);
  bool readAll(char* data, std::size_t size);
  ZEString readText(std::uint32_t length);
  // The system's reason is that error number.
  void logWaitFailure(int error) const;

  const ZEStreamTexts& m_texts;
};
