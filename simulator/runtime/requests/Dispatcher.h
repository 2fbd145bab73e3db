// From a frame's text to the function that serves it, and back with the reply.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "simulator/runtime/protocol/Message.h"

struct ZEMethod;

namespace simulator {

class Exchange;
class Faults;
struct Session;

// Serves requests. Every request that wants a reply gets exactly one, an error (beginning with "d") when
// it is malformed, unknown, not served or when serving it failed; a one-way request of that kind is dropped
// with a log line. Nothing that a request holds ends the process.
// Threads: none of its own.
class Dispatcher {
 public:
  // Told of every known request before it is served.
  using Observer = std::function<void(const ZEMethod&)>;

  // `faults` may be null; both references must outlive the dispatcher.
  Dispatcher(Session& session, Faults* faults) : m_session(session), m_faults(faults) {}

  void Observe(Observer observer) { m_observer = std::move(observer); }
  void Serve(std::string_view text);

 private:
  void Answer(const ZEMethod* method);
  // Serves into m_reply; answers the words of the error, empty for none.
  std::string Run(const ZEMethod*& method);

  Session& m_session;
  Faults* m_faults;
  Observer m_observer;
  Request m_request;  // reused, as is the reply, so that serving allocates little
  std::string m_reply;
};

}  // namespace simulator
