#include "simulator/runtime/Wire.h"

#include <unistd.h>
#include <csignal>

#include <utility>

#include "simulator/runtime/Log.h"

namespace simulator {

void Wire::Connect(std::unique_ptr<Connection> connection) {
  m_connection = std::move(connection);
  m_connection->SplitFrames(m_pieces);
  m_decoder = Decoder();
}

void Wire::Send(std::string_view text) {
  if (m_connection == nullptr || m_silent) return;
  RunActions(m_frames + 1, Moment::Before);
  if (m_verbose) Log("> " + m_decoder.Words(text));
  m_connection->Send(text);
  Count();
}

void Wire::SendRaw(std::string_view bytes) {
  if (m_connection != nullptr) m_connection->SendRaw(bytes);
}

void Wire::Received(std::string_view text) {
  if (m_verbose) Log("< " + m_decoder.Words(text));
  Count();
}

void Wire::Count() {
  ++m_frames;
  RunActions(m_frames, Moment::After);
}

void Wire::RunActions(std::uint64_t frame, Moment moment) {
  // An action may send, and so come back here.
  for (auto due = m_actions.find({frame, moment}); due != m_actions.end();
       due = m_actions.find({frame, moment})) {
    const std::function<void()> action = std::move(due->second);
    m_actions.erase(due);
    action();
  }
}

void Wire::SplitFrames(const Pieces& pieces) {
  m_pieces = pieces;
  if (m_connection != nullptr) m_connection->SplitFrames(pieces);
}

void Wire::At(std::uint64_t frame, Moment moment, std::function<void()> action) {
  m_actions.emplace(std::make_pair(frame, moment), std::move(action));
}

void Wire::Die(Death death, int status) {
  Flush();
  if (death == Death::Kill) kill(getpid(), SIGKILL);
  _exit(status);
}

void Wire::Reset() {
  m_silent = false;
  m_actions.clear();
  SplitFrames({});
}

}  // namespace simulator
