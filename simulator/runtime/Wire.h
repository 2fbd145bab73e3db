// The way to the engine, and what can go wrong on it by order.
#pragma once

#include <cstdint>
#include <memory>

#include "simulator/runtime/Connection.h"
#include "simulator/runtime/protocol/Decoder.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

enum class Death {
  Exit,  // ends at once with a status, cleaning nothing up
  Kill,  // SIGKILL to itself
};

// Holds the connection, if there is one; what is sent without one is lost. Counts the frames of both
// directions.
// Threads: none of its own.
class Wire : public Outbox {
 public:
  explicit Wire(bool verbose) : m_verbose(verbose) {}

  void Connect(std::unique_ptr<Connection> connection);
  void Disconnect() { m_connection = nullptr; }
  bool IsConnected() const { return m_connection != nullptr; }
  // Only while connected.
  Connection& TheConnection() { return *m_connection; }

  void Send(std::string_view text) override;
  void SendRaw(std::string_view bytes);
  // A frame has come in; to be called before it is served.
  void Received(std::string_view text);
  // Writes what was sent; false when the connection is broken. True without one.
  bool Flush() { return m_connection == nullptr || m_connection->Flush(); }

  std::uint64_t Frames() const { return m_frames; }
  // Swallows everything that is sent from now on.
  void SetSilent(bool silent) { m_silent = silent; }
  // See Connection::SplitFrames; holds for later connections too.
  void SplitFrames(const Pieces& pieces);
  // The process ends when that many frames have gone through since its start: a received one is not served
  // any more, a sent one has been written.
  void DieAt(std::uint64_t frame, Death death, int status);
  [[noreturn]] void Die(Death death, int status);
  void Reset();

 private:
  void Count();

  const bool m_verbose;
  std::unique_ptr<Connection> m_connection;
  Decoder m_decoder;
  std::uint64_t m_frames = 0;
  bool m_silent = false;
  Pieces m_pieces;
  std::uint64_t m_lastFrame = 0;
  Death m_death = Death::Exit;
  int m_status = 0;
};

}  // namespace simulator
