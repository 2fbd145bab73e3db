// A socket file that others connect to.
#pragma once

#include <sys/types.h>

#include <string>

namespace simulator {

// Threads: none of its own.
class ListeningSocket {
 public:
  // Creates the folder and everything above it, replaces a socket that was left behind, and listens. Paths
  // longer than an address holds are fine. Throws std::system_error when it fails, be it that the path is
  // taken by something else.
  explicit ListeningSocket(std::string path);
  ListeningSocket(const ListeningSocket&) = delete;
  ListeningSocket& operator=(const ListeningSocket&) = delete;
  // Removes the file, unless it has become somebody else's.
  ~ListeningSocket();

  int Descriptor() const { return m_descriptor; }
  // The next connection, non-blocking; -1 when nobody waits. The caller closes it.
  int Accept();

 private:
  void Bind();

  const std::string m_path;
  int m_descriptor;
  dev_t m_device = 0;
  ino_t m_file = 0;
};

}  // namespace simulator
