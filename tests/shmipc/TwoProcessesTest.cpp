// A channel as it is meant: between two processes.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

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
  // True when every packet went out.
  static bool SendAll(const test::Channel& channel) {
    if (SHMIPC_initialize_sender(channel.get()) != 0) return false;
    SHMIPC_disable_locking(channel.get());
    if (SHMIPC_wait_for_connection(channel.get(), -1) != 0) return false;
    PacketSource source;
    for (std::uint32_t i = 0; i < kPackets; ++i) {
      if (Send(channel, i, source.Next(), -1) != 0) return false;
    }
    return true;
  }

  void ReceiveAll() const {
    PacketSource source;
    for (std::uint32_t i = 0; i < kPackets; ++i) {
      ASSERT_EQ(Receive(m_receiver, 2000), std::to_string(i) + ":" + source.Next());
    }
  }
};

TEST_F(TwoProcesses, Pass120000RandomPacketsWholeAndInOrder) {
  m_receiver = Open(kRing, true);
  ASSERT_NE(m_receiver, nullptr);
  const pid_t sender = fork();
  // Not closed: the process goes, and the attachment with it.
  if (sender == 0) _exit(SendAll(Open(kRing, false)) ? 0 : 1);
  ASSERT_EQ(SHMIPC_initialize_receiver(m_receiver.get()), 0);
  SHMIPC_disable_locking(m_receiver.get());
  EXPECT_EQ(SHMIPC_wait_for_connection(m_receiver.get(), -1), 0);
  ReceiveAll();
  if (HasFailure()) kill(sender, SIGKILL);
  int status = -1;
  ASSERT_EQ(waitpid(sender, &status, 0), sender);
  EXPECT_EQ(status, 0);
}

}  // namespace
