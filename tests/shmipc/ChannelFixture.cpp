#include "tests/shmipc/ChannelFixture.h"

#include <sys/ipc.h>
#include <sys/shm.h>

namespace test {

ChannelFixture::~ChannelFixture() {
  m_sender.reset();
  m_receiver.reset();
  for (int project = 1; project <= 4; ++project) {
    const key_t key = ftok((m_root / kPath).c_str(), project);
    const int id = key == -1 ? -1 : shmget(key, 0, 0);
    if (id >= 0) shmctl(id, IPC_RMID, nullptr);
  }
}

void ChannelFixture::Connect(unsigned size) {
  m_sender = Open(size, true);
  m_receiver = Open(size, false);
  ASSERT_NE(m_sender, nullptr);
  ASSERT_NE(m_receiver, nullptr);
  ASSERT_EQ(SHMIPC_initialize_sender(m_sender.get()), 0);
  ASSERT_EQ(SHMIPC_initialize_receiver(m_receiver.get()), 0);
}

int ChannelFixture::Send(const Channel& channel, std::uint32_t type, const std::string& payload,
                         int timeout) {
  const SHMIPC_packet_t packet{type, static_cast<std::uint32_t>(payload.size())};
  return SHMIPC_send_packet(channel.get(), &packet, payload.data(), timeout);
}

std::string ChannelFixture::Receive(const Channel& channel, int timeout) {
  int error = 77;
  const SHMIPC_packet_t* const packet = SHMIPC_recv_packet(channel.get(), timeout, &error);
  if (packet == nullptr) return std::to_string(error);
  EXPECT_EQ(error, 0);
  return std::to_string(packet->type) + ":" +
         std::string(reinterpret_cast<const char*>(packet + 1), packet->length);
}

}  // namespace test
