// The socket through which tests and people give orders.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "simulator/common/EventLoop.h"
#include "simulator/common/ListeningSocket.h"

namespace simulator {

// Reads lines from any number of visitors and answers each with a line, in order.
// Threads: none of its own; the loop drives it.
class Door {
 public:
  // Lines go in and come out without their ends.
  using Answerer = std::function<std::string(std::string_view line)>;

  // Throws std::system_error when it cannot listen there.
  Door(EventLoop& loop, const std::string& path, Answerer answerer);
  Door(const Door&) = delete;
  Door& operator=(const Door&) = delete;
  ~Door();

 private:
  void AcceptVisitors();
  // False when the visitor has gone or has to go.
  bool Serve(int visitor, std::string& input);
  void Leave(int visitor);

  EventLoop& m_loop;
  ListeningSocket m_socket;
  Answerer m_answerer;
  std::map<int, std::string> m_visitors;  // what each has begun to say, by descriptor
};

}  // namespace simulator
