// Sides, blobs and waiting for each other.
#include <cstdlib>
#include <cstring>
#include <thread>
#include <vector>

#include "Common/Platform.h"
#include "tests/shmipc/ChannelFixture.h"

namespace {

using test::Channel;

// Sleeps without sleeping and keeps the steps.
class SleepRecorder : public zelto::Platform {
 public:
  SleepRecorder() { zelto::SetSystem(this); }
  ~SleepRecorder() override { zelto::SetSystem(nullptr); }

  std::int64_t Now() override { return m_now; }
  void Sleep(std::int64_t nanoseconds) override {
    m_now += nanoseconds;
    m_steps.push_back(nanoseconds);
    if (m_word != nullptr && m_steps.size() == m_changeAt) *m_word = 1;
  }

  std::int64_t m_now = 0;
  std::vector<std::int64_t> m_steps;
  std::uint32_t* m_word = nullptr;
  std::size_t m_changeAt = 0;
};

class AConnection : public test::ChannelFixture {};

TEST_F(AConnection, HasOneSidePerHandle) {
  Connect(4096);
  EXPECT_EQ(HeaderOf(m_sender).senderAttached, 1u);
  EXPECT_EQ(HeaderOf(m_sender).receiverAttached, 1u);
  EXPECT_EQ(SHMIPC_initialize_receiver(m_sender.get()), -1);
  EXPECT_EQ(SHMIPC_initialize_sender(m_receiver.get()), -1);
  EXPECT_EQ(SHMIPC_initialize_sender(m_sender.get()), -1);
  EXPECT_EQ(Send(m_receiver.get(), 1, "x"), -2);
  EXPECT_EQ(Receive(m_sender.get()), "-2");
  EXPECT_EQ(SHMIPC_recv_packet(m_sender.get(), 0, nullptr), nullptr);
  EXPECT_EQ(SHMIPC_send_packet(m_sender.get(), nullptr, "x", 0), -1);
}

TEST_F(AConnection, IsWaitedForByBothSides) {
  m_sender = Open(4096, true);
  m_receiver = Open(4096, false);
  EXPECT_EQ(SHMIPC_wait_for_connection(m_sender.get(), 0), -2);
  ASSERT_EQ(SHMIPC_initialize_sender(m_sender.get()), 0);
  EXPECT_EQ(SHMIPC_wait_for_connection(m_sender.get(), 0), -4);
  std::thread waiting([&] { EXPECT_EQ(SHMIPC_wait_for_connection(m_sender.get(), -1), 0); });
  ASSERT_EQ(SHMIPC_initialize_receiver(m_receiver.get()), 0);
  waiting.join();
  EXPECT_EQ(SHMIPC_wait_for_connection(m_receiver.get(), 0), 0);
}

TEST_F(AConnection, IsLookedForInStepsOf250MillisecondsWithoutALimit) {
  m_sender = Open(4096, true);
  ASSERT_EQ(SHMIPC_initialize_sender(m_sender.get()), 0);
  SleepRecorder recorder;
  recorder.m_word = &HeaderOf(m_sender).receiverAttached;
  recorder.m_changeAt = 3;
  EXPECT_EQ(SHMIPC_wait_for_connection(m_sender.get(), -1), 0);
  EXPECT_EQ(recorder.m_steps, std::vector<std::int64_t>(3, 250'000'000));
}

TEST_F(AConnection, WaitsInDoublingStepsThatTogetherMakeTheTimeout) {
  Connect(4096);
  SleepRecorder recorder;
  EXPECT_EQ(Receive(m_receiver.get(), 5), "-4");
  const std::vector<std::int64_t> five = {65'536,  131'072, 262'144, 524'288, 625'000, 625'000,
                                          625'000, 625'000, 625'000, 625'000, 266'960};
  EXPECT_EQ(recorder.m_steps, five);
  recorder.m_steps.clear();
  EXPECT_EQ(Receive(m_receiver.get(), 50'000), "-4");
  std::int64_t slept = 0;
  for (const std::int64_t step : recorder.m_steps) slept += step;
  EXPECT_EQ(slept, 2'000'000'000);
  EXPECT_EQ(recorder.m_steps[6], 4'194'304);
  EXPECT_EQ(recorder.m_steps[7], 4'194'304);
  recorder.m_steps.clear();
  EXPECT_EQ(Receive(m_receiver.get(), 0), "-4");
  EXPECT_EQ(Receive(m_receiver.get(), -7), "-4");
  EXPECT_EQ(recorder.m_steps.size(), 0u);
}

TEST_F(AConnection, CarriesABlobOfTheCreatorAtTheEndOfTheData) {
  m_sender = Open(1024, true);
  m_receiver = Open(1024, false);
  EXPECT_EQ(SHMIPC_get_config(m_receiver.get()), nullptr);
  const std::string blob(100, 'b');
  EXPECT_EQ(SHMIPC_put_config(m_receiver.get(), blob.data(), 100), -1);
  EXPECT_EQ(SHMIPC_put_config(m_sender.get(), nullptr, 100), -1);
  EXPECT_EQ(SHMIPC_put_config(m_sender.get(), std::string(993, 'b').data(), 993), -1);
  EXPECT_EQ(SHMIPC_put_config(m_sender.get(), std::string(992, 'b').data(), 992), 0);
  ASSERT_EQ(SHMIPC_put_config(m_sender.get(), blob.data(), 100), 0);
  EXPECT_EQ(HeaderOf(m_sender).configSize, 112u);
  const void* const found = SHMIPC_get_config(m_receiver.get());
  ASSERT_EQ(found, static_cast<char*>(m_receiver->segment) + 32 + 1024 - 112);
  EXPECT_EQ(std::memcmp(found, blob.data(), 100), 0);
  ASSERT_EQ(SHMIPC_initialize_sender(m_sender.get()), 0);
  EXPECT_EQ(SHMIPC_put_config(m_sender.get(), blob.data(), 100), -1);
  EXPECT_EQ(m_sender->ring_size, 1024u - 112u);
}

TEST(TheAudioBlob, HoldsItsNumbersAndVersionAndBoundsTheRing) {
  struct Case {
    unsigned rate;
    unsigned factor;
    unsigned size;
  };
  for (const auto& [rate, factor, expected] : {Case{48000, 1, 30328},
                                               {24000, 2, 30328},
                                               {0, 0, 32728},
                                               {48000, 100, 264},
                                               {649'300, 1, 264},
                                               {649'280, 1, 268},
                                               {649'000, 1, 278}}) {
    unsigned size = 0;
    const std::unique_ptr<void, decltype(&std::free)> blob(AS_resize_channel_conf(rate, factor, &size),
                                                           &std::free);
    ASSERT_NE(blob, nullptr);
    EXPECT_EQ(size, expected);
    std::string bytes(static_cast<const char*>(blob.get()), size);
    std::string whole(size, '\0');
    std::memcpy(whole.data(), &rate, 4);
    std::memcpy(whole.data() + 4, &factor, 4);
    std::memcpy(whole.data() + 8, "v1.0 loopback", 13);
    EXPECT_EQ(bytes, whole);
  }
}

TEST(NoChannel, IsAnsweredWithAFailureByEveryOperation) {
  const SHMIPC_packet_t packet{1, 0};
  int error = 0;
  EXPECT_EQ(SHMIPC_initialize_sender(nullptr), -1);
  EXPECT_EQ(SHMIPC_initialize_receiver(nullptr), -1);
  EXPECT_EQ(SHMIPC_put_config(nullptr, "x", 1), -1);
  EXPECT_EQ(SHMIPC_get_config(nullptr), nullptr);
  EXPECT_EQ(SHMIPC_wait_for_connection(nullptr, 0), -1);
  EXPECT_EQ(SHMIPC_send_packet(nullptr, &packet, nullptr, 0), -1);
  EXPECT_EQ(SHMIPC_recv_packet(nullptr, 0, &error), nullptr);
  EXPECT_EQ(error, -1);
  SHMIPC_disable_locking(nullptr);
}

}  // namespace
