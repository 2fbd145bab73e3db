// The byte stream to the runtime process, as the root object sees it: whole messages in, whole messages out.
#pragma once

#include <cstdint>

#include "apiwrapper/ZEExport.h"
#include "apiwrapper/ZEString.h"

// A message stays below this many bytes: a corrupted length must not trigger an allocation of gigabytes.
constexpr std::uint32_t kFrameLengthLimit = 0x01000000;

// Threads: no lock inside. At most one thread reads and at most one writes at a time; whoever owns the root
// object serialises both.
class ZELTO_EXPORT ZETransport {
 public:
  ZETransport() = default;
  ZETransport(const ZETransport&) = delete;
  ZETransport& operator=(const ZETransport&) = delete;

  // Does not disconnect: the owner calls disconnect() first.
  virtual ~ZETransport() = default;

  // Opens the stream; true when it is open. After a failure the owner calls disconnect() before the next try.
  virtual bool connect() = 0;
  // Closes the stream; does nothing when none is open.
  virtual void disconnect() = 0;
  // Writes one message. A failure only clears isConnected(). A message that is too long is dropped with one
  // error line.
  virtual void push(const ZEString& message) = 0;
  // The next message, or the null string: nothing waits (only when `block` is false) or the stream is gone.
  virtual ZEString pull(bool block) = 0;
  // Whether a message or the end of the stream can be read without waiting; waits up to that many
  // milliseconds for it. A failing wait answers true with the stream gone, so that the next pull() stops.
  virtual bool hasMore(int milliseconds) = 0;
  virtual bool isConnected() = 0;
  // The descriptor, for owners who wait on several, or -1. Only its readability may be watched.
  virtual int getSocket() = 0;

  bool traceMessages = false;                      // log every message written or read
  void (*logFunction)(const ZEString&) = nullptr;  // null: nothing is logged

 protected:
  void log(const ZEString& text) const {
    if (logFunction != nullptr) logFunction(text);
  }
};
