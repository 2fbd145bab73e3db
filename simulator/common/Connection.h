// The stream to one engine.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "simulator/common/Frames.h"

namespace simulator {

// Where every frame is cut, in bytes with the length in front counted.
struct Pieces {
  std::size_t first = 0;  // the first piece; 0: frames are whole
  std::size_t every = 0;  // each further piece; 0: the rest is one
};

// Reads what has arrived, hands over each whole frame, and gathers what is sent meanwhile into one write.
// Threads: none of its own.
class Connection {
 public:
  using Receiver = std::function<void(std::string_view text)>;

  // Takes the descriptor over, a stream in non-blocking mode (a blocking one serves too, Receive() then
  // waits).
  explicit Connection(int descriptor) : m_descriptor(descriptor) {}
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection();

  int Descriptor() const { return m_descriptor; }

  // Reads once and hands over the whole frames, then writes what was sent. False at the end of the stream,
  // when it is broken, or when it holds what cannot be a frame.
  bool Receive(const Receiver& receiver);

  // Appends a frame to what is to be written; texts that no frame can hold are dropped.
  void Send(std::string_view text);
  // Appends bytes as they are.
  void SendRaw(std::string_view bytes) { m_output.append(bytes); }
  // Writes as much as the stream takes. False when it is broken.
  bool Flush();
  // Something waits until the stream takes more.
  bool HasOutput() const { return m_written < m_output.size(); }

  // From now on frames come one by one and in pieces.
  void SplitFrames(const Pieces& pieces) { m_pieces = pieces; }

 private:
  bool Write(std::size_t end);
  bool FlushSplit();

  int m_descriptor;
  FrameReader m_reader;
  std::string m_output;
  std::size_t m_written = 0;
  Pieces m_pieces;
};

}  // namespace simulator
