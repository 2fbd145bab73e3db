// A TCP port of this machine that others on it connect to.
#pragma once

namespace installer {

// Threads: none of its own.
class LoopbackSocket {
 public:
  // 0: a free port. Throws std::system_error when it cannot listen there.
  explicit LoopbackSocket(int port);
  LoopbackSocket(const LoopbackSocket&) = delete;
  LoopbackSocket& operator=(const LoopbackSocket&) = delete;
  ~LoopbackSocket();

  int Descriptor() const { return m_descriptor; }
  int Port() const { return m_port; }
  // The next connection, non-blocking; -1 when nobody waits. The caller closes it.
  int Accept();

 private:
  int m_descriptor;
  int m_port = 0;
};

}  // namespace installer
