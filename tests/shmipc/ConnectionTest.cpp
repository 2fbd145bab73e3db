// Sides, blobs and waiting for each other.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <thread>
#include <vector>

#include "Common/Platform.h"
#include "tests/shmipc/ChannelFixture.h"

namespace {

using test::Channel;

class AConnection : public test::ChannelFixture {};

TEST_F(AConnection, HasOneSidePerHandle) {
  Connect(4096);
  EXPECT_EQ(HeaderOf(m_sender).senderAttached, 1u);
  EXPECT_EQ(HeaderOf(m_sender).receiverAttached, 1u);
  EXPECT_EQ(SHMIPC_initialize_receiver(m_sender.get()), -1);
  EXPECT_EQ(SHMIPC_initialize_sender(m_receiver.get()), -1);
  EXPECT_EQ(SHMIPC_initialize_sender(m_sender.get()), -1);
  EXPECT_EQ(Send(m_receiver, 1, "x"), -2);
  EXPECT_EQ(Receive(m_sender), "-2");
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
  test::SleepRecorder recorder;
  recorder.afterStep = [&] { HeaderOf(m_sender).receiverAttached = recorder.steps.size() == 3; };
  EXPECT_EQ(SHMIPC_wait_for_connection(m_sender.get(), -1), 0);
  EXPECT_EQ(recorder.steps, std::vector<std::int64_t>(3, 250'000'000));
}

TEST_F(AConnection, WaitsInDoublingStepsThatTogetherMakeTheTimeout) {
  Connect(4096);
  test::SleepRecorder recorder;
  EXPECT_EQ(Receive(m_receiver, 5), "-4");
  const std::vector<std::int64_t> five = {65'536,  131'072, 262'144, 524'288, 625'000, 625'000,
                                          625'000, 625'000, 625'000, 625'000, 266'960};
  EXPECT_EQ(recorder.steps, five);
  recorder.steps.clear();
  EXPECT_EQ(Receive(m_receiver, 50'000), "-4");
  EXPECT_EQ(std::accumulate(recorder.steps.begin(), recorder.steps.end(), std::int64_t{0}), 2'000'000'000);
  EXPECT_EQ(*std::max_element(recorder.steps.begin(), recorder.steps.end()), 4'194'304);
  recorder.steps.clear();
  EXPECT_EQ(Receive(m_receiver, 0), "-4");
  EXPECT_EQ(Receive(m_receiver, -7), "-4");
  EXPECT_EQ(recorder.steps.size(), 0u);
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
  const struct {
    unsigned rate;
    unsigned factor;
    unsigned size;
  } cases[] = {{48000, 1, 30328}, {24000, 2, 30328}, {0, 0, 32728}, {48000, 100, 264}, {649'280, 1, 268}};
  for (const auto& [rate, factor, expected] : cases) {
    unsigned size = 0;
    const std::unique_ptr<void, decltype(&std::free)> blob(AS_resize_channel_conf(rate, factor, &size),
                                                           &std::free);
    ASSERT_EQ(size, expected);
    std::string whole(size, '\0');
    std::memcpy(whole.data(), &rate, 4);
    std::memcpy(whole.data() + 4, &factor, 4);
    std::memcpy(whole.data() + 8, "v1.0 loopback", 13);
    EXPECT_EQ(std::string(static_cast<const char*>(blob.get()), size), whole);
  }
}

TEST_F(AConnection, ThatIsNoneFailsInEveryOperation) {
  EXPECT_EQ(SHMIPC_initialize_sender(nullptr), -1);
  EXPECT_EQ(SHMIPC_initialize_receiver(nullptr), -1);
  EXPECT_EQ(SHMIPC_put_config(nullptr, "x", 1), -1);
  EXPECT_EQ(SHMIPC_get_config(nullptr), nullptr);
  EXPECT_EQ(SHMIPC_wait_for_connection(nullptr, 0), -1);
  EXPECT_EQ(Send(nullptr, 1, "x"), -1);
  EXPECT_EQ(Receive(nullptr), "-1");
  SHMIPC_disable_locking(nullptr);
}

}  // namespace
