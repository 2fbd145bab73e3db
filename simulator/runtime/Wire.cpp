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
  if (++m_frames == m_lastFrame) Die(m_death, m_status);
}

void Wire::SplitFrames(const Pieces& pieces) {
  m_pieces = pieces;
  if (m_connection != nullptr) m_connection->SplitFrames(pieces);
}

void Wire::DieAt(std::uint64_t frame, Death death, int status) {
  m_lastFrame = frame;
  m_death = death;
  m_status = status;
}

void Wire::Die(Death death, int status) {
  Flush();
  if (death == Death::Kill) kill(getpid(), SIGKILL);
  _exit(status);
}

void Wire::Reset() {
  m_silent = false;
  m_lastFrame = 0;
  SplitFrames({});
}

}  // namespace simulator
