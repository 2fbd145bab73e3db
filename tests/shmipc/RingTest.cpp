// Packets between two ends.
#include <pthread.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "Common/Platform.h"
#include "tests/shmipc/ChannelFixture.h"

namespace {

class ARing : public test::ChannelFixture {};

TEST_F(ARing, HasRoomForTwoAudioPacketsUntilTheyAreTaken) {
  Connect(2432);  // what an audio channel has beside its blob
  const std::string audio(960, 'a');
  EXPECT_EQ(Send(m_sender, 1, audio), 0);
  EXPECT_EQ(Send(m_sender, 2, audio), 0);
  EXPECT_EQ(HeaderOf(m_sender).writeOffset, 2u * 976u);
  EXPECT_EQ(Send(m_sender, 3, audio), -4);
  EXPECT_EQ(Receive(m_receiver), "1:" + audio);
  EXPECT_EQ(HeaderOf(m_sender).readOffset, 2u * 976u);  // both are in the batch
  EXPECT_EQ(Send(m_sender, 3, audio), 0);
  EXPECT_EQ(Receive(m_receiver), "2:" + audio);
  EXPECT_EQ(Receive(m_receiver), "3:" + audio);
  EXPECT_EQ(Receive(m_receiver), "-4");
}

TEST_F(ARing, LaysPacketsOutInUnitsOf16Bytes) {
  Connect(256);
  EXPECT_EQ(Send(m_sender, 0x01020304, "abc"), 0);
  EXPECT_EQ(Send(m_sender, 5, ""), 0);
  EXPECT_EQ(Send(m_sender, 6, std::string(9, 'z')), 0);
  const std::string packet("\x04\x03\x02\x01\x03\0\0\0abc\0\0\0\0\0", 16);
  EXPECT_EQ(std::string(static_cast<const char*>(m_sender->segment) + 32, 16), packet);
  EXPECT_EQ(HeaderOf(m_sender).writeOffset, 16u + 16u + 32u);
}

TEST_F(ARing, SendsWhatFollowsTheHeaderWhenThereIsNoPayloadPointer) {
  Connect(256);
  struct {
    SHMIPC_packet_t head;
    char payload[5];
  } const whole{{9, 5}, {'h', 'e', 'l', 'l', 'o'}};
  EXPECT_EQ(SHMIPC_send_packet(m_sender.get(), &whole.head, nullptr, 0), 0);
  EXPECT_EQ(Receive(m_receiver), "9:hello");
}

TEST_F(ARing, RefusesWhatCanNeverFit) {
  Connect(256);
  EXPECT_EQ(Send(m_sender, 1, std::string(256 - 8 - 15, 'x')), -1);
  EXPECT_EQ(Send(m_sender, 1, std::string(256 - 8 - 16, 'x')), 0);
  for (const std::uint32_t length : {0xffffffffu, 0xfffffff8u, 0xfffffff0u, 0x80000000u}) {
    const SHMIPC_packet_t packet{1, length};
    EXPECT_EQ(SHMIPC_send_packet(m_sender.get(), &packet, "x", 0), -1) << length;
  }
}

TEST_F(ARing, IsSharedByThreadsOfOneProcess) {
  Connect(1024);
  constexpr int kThreads = 3;
  constexpr int kPackets = 2000;
  std::vector<std::thread> threads;
  std::atomic<std::uint64_t> sent{0};
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      for (int i = 0; i < kPackets; ++i) {
        const auto type = static_cast<std::uint32_t>(thread * kPackets + i);
        ASSERT_EQ(Send(m_sender, type, std::string(static_cast<std::size_t>(i % 300), 'p'), -1), 0);
        sent += type;
      }
    });
  }
  std::uint64_t received = 0;
  for (int i = 0; i < kThreads * kPackets; ++i) {
    const SHMIPC_packet_t* const packet = SHMIPC_recv_packet(m_receiver.get(), -1, nullptr);
    ASSERT_NE(packet, nullptr);
    received += packet->type;
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(received, sent);
}

// In the first step of the wait other threads of both processes move the offsets all the way round to where
// the waiting one saw them.
TEST_F(ARing, HasRoomForAWaitingSenderAfterAWholeRoundOfOthers) {
  Connect(1024);
  for (std::uint32_t type = 1; type <= 3; ++type) ASSERT_EQ(Send(m_sender, type, std::string(296, 'f')), 0);
  test::SleepRecorder others;
  others.afterStep = [&] {
    if (others.steps.size() != 1) return;
    for (int taken = 0; taken < 3; ++taken) Receive(m_receiver);
    EXPECT_EQ(Send(m_sender, 4, std::string(104, 'r')), 0);
    EXPECT_EQ(Receive(m_receiver), "4:" + std::string(104, 'r'));
    EXPECT_EQ(HeaderOf(m_sender).readOffset, 0u);
  };
  EXPECT_EQ(Send(m_sender, 5, std::string(296, 'w'), 100), 0);
  EXPECT_EQ(others.steps.size(), 1u);
}

TEST_F(ARing, LeavesAWaitingReceiverWhatOthersHaveTakenButNotRead) {
  Connect(1024);
  test::SleepRecorder others;
  others.afterStep = [&] {
    if (others.steps.size() != 1) return;
    EXPECT_EQ(Send(m_sender, 1, std::string(504, 'f')), 0);
    EXPECT_EQ(Receive(m_receiver), "1:" + std::string(504, 'f'));
    EXPECT_EQ(Send(m_sender, 2, std::string(248, 's')), 0);
    EXPECT_EQ(Send(m_sender, 3, std::string(248, 't')), 0);
    EXPECT_EQ(Receive(m_receiver), "2:" + std::string(248, 's'));
    EXPECT_EQ(HeaderOf(m_sender).writeOffset, 0u);
  };
  EXPECT_EQ(Receive(m_receiver, 100), "3:" + std::string(248, 't'));
  EXPECT_EQ(others.steps.size(), 1u);
}

#ifndef __SANITIZE_ADDRESS__  // which takes the stack of a cancelled thread for a corrupted one

void* WaitForEver(void* channel) {
  SHMIPC_recv_packet(static_cast<SHMIPC_channel_t*>(channel), -1, nullptr);
  return nullptr;
}

TEST_F(ARing, IsNotLeftLockedByACancelledThread) {
  Connect(1024);
  pthread_t waiting{};
  ASSERT_EQ(pthread_create(&waiting, nullptr, WaitForEver, m_receiver.get()), 0);
  zelto::SleepMilliseconds(5);  // wherever that finds it
  pthread_cancel(waiting);
  void* result = nullptr;
  pthread_join(waiting, &result);
  EXPECT_EQ(result, PTHREAD_CANCELED);
  EXPECT_EQ(Send(m_sender, 7, "still"), 0);
  EXPECT_EQ(Receive(m_receiver), "7:still");
}

#endif

TEST_F(ARing, TakesNoLockOnceLockingIsDisabled) {
  Connect(1024);
  SHMIPC_disable_locking(m_sender.get());
  SHMIPC_disable_locking(m_receiver.get());
  pthread_mutex_lock(&m_sender->mutex);
  pthread_mutex_lock(&m_receiver->mutex);
  EXPECT_EQ(Send(m_sender, 7, "free"), 0);
  EXPECT_EQ(Receive(m_receiver), "7:free");
  pthread_mutex_unlock(&m_sender->mutex);
  pthread_mutex_unlock(&m_receiver->mutex);
}

}  // namespace
