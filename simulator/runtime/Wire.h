// The way to the engine, and what can go wrong on it by order.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "simulator/common/Connection.h"
#include "simulator/runtime/protocol/Decoder.h"
#include "simulator/runtime/world/World.h"

namespace simulator {

enum class Death {
  Exit,  // ends at once with a status, cleaning nothing up
  Kill,  // SIGKILL to itself
};

// When something happens to a frame that is sent. A received one is counted when it has come and is not
// served yet, which is after it.
enum class Moment { Before, After };

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
  // Runs the action once, at the frame of that number since the process's start. What the action sends is
  // counted too.
  void At(std::uint64_t frame, Moment moment, std::function<void()> action);
  // What was sent has been written.
  [[noreturn]] void Die(Death death, int status);
  void Reset();

 private:
  void Count();
  void RunActions(std::uint64_t frame, Moment moment);

  const bool m_verbose;
  std::unique_ptr<Connection> m_connection;
  Decoder m_decoder;
  std::uint64_t m_frames = 0;
  bool m_silent = false;
  Pieces m_pieces;
  std::multimap<std::pair<std::uint64_t, Moment>, std::function<void()>> m_actions;
};

}  // namespace simulator
