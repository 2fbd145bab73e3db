// The program as a process of its own, and a client that speaks to it.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "simulator/runtime/protocol/Frames.h"
#include "tests/simulator/runtime/TemporaryFolder.h"

namespace test {

constexpr int kLimitMilliseconds = 10000;

// A stream to a socket file.
class Client {
 public:
  // Connects as soon as somebody listens there; fails the test when nobody does in time.
  explicit Client(const std::string& path);
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;
  ~Client();

  void Write(const std::string& bytes);
  // Sends a frame.
  void Tell(const std::string& text);
  // Sends a request with an id and answers its reply behind it; "" at the end of the stream.
  std::string Ask(const std::string& request);
  // The next frame, or "" at the end of the stream.
  std::string NextFrame();
  // The next line, or "" at the end of the stream.
  std::string NextLine();
  bool AtEnd();

 private:
  bool Read();

  int m_descriptor;
  int m_asked = 0;
  std::string m_line;
  simulator::FrameReader m_reader;
};

// Starts the program that lies beside the test program, with a home of its own; killed at the end.
class RuntimeProcess {
 public:
  RuntimeProcess() = default;
  RuntimeProcess(const RuntimeProcess&) = delete;
  RuntimeProcess& operator=(const RuntimeProcess&) = delete;
  ~RuntimeProcess();

  // The command line that the engine gives, and what is added.
  void Start(const std::vector<std::string>& more = {}, const std::string& scenario = {});
  void Signal(int signal);
  // Waits for its end; the status as waitpid tells it, -1 when it does not end in time.
  int Wait();

  TemporaryFolder home;
  std::string Socket() const { return home / "dtv/socket"; }
  std::string Door() const { return home / ".Zelto/door"; }

 private:
  pid_t m_process = 0;
};

}  // namespace test
