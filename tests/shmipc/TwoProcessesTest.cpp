// A channel as it is meant: between two processes.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>

#include "tests/shmipc/ChannelFixture.h"

namespace {

constexpr std::uint32_t kPackets = 120'000;
constexpr unsigned kRing = 8192;

// The same packets on both sides, from one seed: mostly small, some nearly as large as the ring.
class PacketSource {
 public:
  const std::string& Next() {
    const auto draw = static_cast<std::uint32_t>(m_random());
    const std::uint32_t limit = draw % 64 == 0 ? kRing - 32 : 400;
    m_payload.resize((draw >> 8) % limit);
    std::uint32_t state = draw;
    for (char& byte : m_payload) {
      state = state * 1664525 + 1013904223;
      byte = static_cast<char>(state >> 24);
    }
    return m_payload;
  }

 private:
  std::mt19937 m_random{20};
  std::string m_payload;
};

class TwoProcesses : public test::ChannelFixture {
 protected:
  // The child's status: 0 when every packet went out.
  static int SendAll(SHMIPC_channel_t* channel) {
    if (channel == nullptr || SHMIPC_initialize_sender(channel) != 0) return 2;
    SHMIPC_disable_locking(channel);
    if (SHMIPC_wait_for_connection(channel, -1) != 0) return 3;
    PacketSource source;
    for (std::uint32_t i = 0; i < kPackets; ++i) {
      if (Send(channel, i, source.Next(), -1) != 0) return 4;
    }
    return 0;
  }

  // False at the first packet that is not the one sent.
  static bool ReceiveAll(SHMIPC_channel_t* channel) {
    PacketSource source;
    for (std::uint32_t i = 0; i < kPackets; ++i) {
      int error = 0;
      const SHMIPC_packet_t* packet = SHMIPC_recv_packet(channel, 2000, &error);
      const std::string& expected = source.Next();
      const bool same =
          packet != nullptr && packet->type == i && packet->length == expected.size() &&
          std::equal(expected.begin(), expected.end(), reinterpret_cast<const char*>(packet + 1));
      if (!same) {
        ADD_FAILURE() << "packet " << i << ", error " << error;
        return false;
      }
    }
    return true;
  }
};

TEST_F(TwoProcesses, Pass120000RandomPacketsWholeAndInOrder) {
  m_receiver = Open(kRing, true);
  ASSERT_NE(m_receiver, nullptr);
  const pid_t sender = fork();
  if (sender == 0) {
    // Not closed: the process goes, and the attachment with it.
    _exit(SendAll(SHMIPC_open_channel(kPath, kRing, kProject, 0)));
  }
  ASSERT_EQ(SHMIPC_initialize_receiver(m_receiver.get()), 0);
  SHMIPC_disable_locking(m_receiver.get());
  EXPECT_EQ(SHMIPC_wait_for_connection(m_receiver.get(), -1), 0);
  if (!ReceiveAll(m_receiver.get())) kill(sender, SIGKILL);
  int status = -1;
  ASSERT_EQ(waitpid(sender, &status, 0), sender);
  EXPECT_EQ(status, 0);
}

}  // namespace
