#include "tests/shmipc/ChannelFixture.h"

#include <sys/ipc.h>
#include <sys/shm.h>

#include <cstdlib>
#include <filesystem>

namespace test {

ChannelFixture::ChannelFixture() {
  char folder[] = "/tmp/zelto-channel-XXXXXX";
  m_root = mkdtemp(folder);
  std::filesystem::create_directories(m_root + "/tmp");
  setenv("ZELTO_DEVICE_ROOT", m_root.c_str(), 1);
  m_survival = std::make_unique<SurvivalCheck>();
}

ChannelFixture::~ChannelFixture() {
  m_sender.reset();
  m_receiver.reset();
  for (int project = 1; project <= 4; ++project) {
    const key_t key = ftok((m_root + kPath).c_str(), project);
    const int id = key == -1 ? -1 : shmget(key, 0, 0);
    if (id >= 0) shmctl(id, IPC_RMID, nullptr);
  }
  m_survival.reset();
  unsetenv("ZELTO_DEVICE_ROOT");
  std::filesystem::remove_all(m_root);
}

void ChannelFixture::Connect(unsigned size) {
  m_sender = Open(size, true);
  m_receiver = Open(size, false);
  ASSERT_NE(m_sender, nullptr);
  ASSERT_NE(m_receiver, nullptr);
  ASSERT_EQ(SHMIPC_initialize_sender(m_sender.get()), 0);
  ASSERT_EQ(SHMIPC_initialize_receiver(m_receiver.get()), 0);
}

int ChannelFixture::Send(SHMIPC_channel_t* channel, std::uint32_t type, const std::string& payload,
                         int timeout) {
  const SHMIPC_packet_t packet{type, static_cast<std::uint32_t>(payload.size())};
  return SHMIPC_send_packet(channel, &packet, payload.data(), timeout);
}

std::string ChannelFixture::Receive(SHMIPC_channel_t* channel, int timeout) {
  int error = 77;
  const SHMIPC_packet_t* const packet = SHMIPC_recv_packet(channel, timeout, &error);
  if (packet == nullptr) return std::to_string(error);
  EXPECT_EQ(error, 0);
  return std::to_string(packet->type) + ":" +
         std::string(reinterpret_cast<const char*>(packet + 1), packet->length);
}

}  // namespace test
