// Whatever the other process writes into the segment: operations fail, nothing is touched outside of it.
// The address sanitizer watches the batch, the segment's own end is watched by the pages behind it.
#include <sys/mman.h>

#include <atomic>
#include <cstring>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include "Common/Platform.h"
#include "tests/shmipc/ChannelFixture.h"

namespace {

constexpr std::uint32_t kCapacity = 4096 - 32;  // the segment fills its page
constexpr std::size_t kPage = 4096;

constexpr std::uint32_t kNasty[] = {
    1,          8,          15,         17,         kCapacity - 1, kCapacity, kCapacity + 16,
    0x7ffffff0, 0x7fffffff, 0x80000000, 0xfffffff0, 0xfffffff8,    0xffffffff};

// Attaches segments below a page that nobody may touch.
class GuardedPlatform : public test::StandIn {
 public:
  void* ShmAt(int id) override {
    void* const pages = mmap(nullptr, 3 * kPage, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return shmat(id, static_cast<char*>(pages) + kPage, SHM_REMAP);
  }

  int ShmDt(const void* address) override {
    char* const segment = static_cast<char*>(const_cast<void*>(address));
    const int result = Platform::ShmDt(segment);
    munmap(segment - kPage, kPage);
    munmap(segment + kPage, kPage);
    return result;
  }
};

class AHostilePeer : public test::ChannelFixture {
 protected:
  AHostilePeer() { Connect(kCapacity); }
  ~AHostilePeer() override {
    // Detached by what attached them.
    m_sender.reset();
    m_receiver.reset();
  }

  shmipc::SegmentHeader& Header() const { return HeaderOf(m_sender); }

  std::uint32_t* WordAt(std::size_t offset) const {
    return reinterpret_cast<std::uint32_t*>(static_cast<char*>(m_sender->segment) + offset);
  }

  GuardedPlatform m_guarded;
};

TEST_F(AHostilePeer, MakesOperationsFailOnlyWhileAnOffsetIsBad) {
  for (std::uint32_t shmipc::SegmentHeader::*word :
       {&shmipc::SegmentHeader::readOffset, &shmipc::SegmentHeader::writeOffset}) {
    const std::uint32_t good = Header().*word;
    for (const std::uint32_t nasty : kNasty) {
      Header().*word = nasty;
      EXPECT_EQ(Send(m_sender, 1, "x", 1), -1) << nasty;
      EXPECT_EQ(Receive(m_receiver, 1), "-1") << nasty;
      Header().*word = good;
      EXPECT_EQ(Send(m_sender, 2, "good"), 0);
      EXPECT_EQ(Receive(m_receiver), "2:good");
      Header().readOffset = Header().writeOffset = good;
    }
  }
}

TEST_F(AHostilePeer, CannotMoveWhatWasMeasuredBefore) {
  for (const std::uint32_t nasty : kNasty) {
    Header().capacity = nasty;
    Header().configSize = nasty;
    EXPECT_EQ(Send(m_sender, 3, std::string(3000, 'x')), 0) << nasty;
    EXPECT_EQ(Receive(m_receiver), "3:" + std::string(3000, 'x'));
    EXPECT_EQ(SHMIPC_get_config(m_receiver.get()) == nullptr, nasty != kCapacity) << nasty;
  }
}

TEST_F(AHostilePeer, KeepsASideFromBeingInitialisedWithABadBlobSize) {
  for (const std::uint32_t nasty : kNasty) {
    Header().configSize = nasty;
    const test::Channel sender = Open(kCapacity, false);
    const test::Channel receiver = Open(kCapacity, false);
    ASSERT_NE(sender, nullptr);
    // A blob that takes the whole data area is possible and leaves a ring for nothing.
    const int expected = nasty == kCapacity ? 0 : -1;
    EXPECT_EQ(SHMIPC_initialize_sender(sender.get()), expected) << nasty;
    EXPECT_EQ(SHMIPC_initialize_receiver(receiver.get()), expected) << nasty;
    if (expected != 0) continue;
    EXPECT_EQ(Send(sender, 1, ""), -1);
    EXPECT_EQ(Receive(receiver), "-1");
  }
}

TEST_F(AHostilePeer, IsNotAttachedToWithAnotherCapacity) {
  for (const std::uint32_t nasty : kNasty) {
    Header().capacity = nasty;
    EXPECT_EQ(Open(kCapacity, false) != nullptr, nasty == kCapacity) << nasty;
  }
}

TEST_F(AHostilePeer, CannotAnnounceMorePayloadThanItSent) {
  for (const std::uint32_t nasty : {9u, 24u, kCapacity, 0x7fffffffu, 0xfffffff0u, 0xfffffff8u, 0xffffffffu}) {
    const test::Channel receiver = Open(kCapacity, false);
    ASSERT_EQ(SHMIPC_initialize_receiver(receiver.get()), 0);
    Header().readOffset = Header().writeOffset = 0;
    ASSERT_EQ(Send(m_sender, 1, "first"), 0);
    ASSERT_EQ(Send(m_sender, 2, "second"), 0);
    *WordAt(32 + 16 + 4) = nasty;
    EXPECT_EQ(Receive(receiver), "1:first");
    EXPECT_EQ(Receive(receiver), "-1") << nasty;
    *WordAt(32 + 16 + 4) = 6;
    ASSERT_EQ(Send(m_sender, 3, "third"), 0);
    EXPECT_EQ(Receive(receiver, 1), "3:third") << "only the batch with " << nasty << " is lost";
  }
}

// Also where the other side could keep an operation busy for ever: the timeouts hold.
TEST_F(AHostilePeer, ScribblingDuringEveryOperationChangesNothingOutsideTheSegment) {
  // As another process would, with values that mean something and with others.
  void* const attached = shmat(m_sender->segment_id, nullptr, 0);
  std::atomic<bool> stop{false};
  std::thread scribbler([&] {
    // Every word of the header that has a meaning, and the lengths of the first packets.
    constexpr std::size_t kWords[] = {0, 1, 2, 3, 4, 5, 9, 13};
    for (std::uint32_t round = 0; !stop; ++round) {
      const std::uint32_t value = round % 3 == 0 ? kNasty[round % std::size(kNasty)] : round * 16 % kCapacity;
      __atomic_store_n(static_cast<std::uint32_t*>(attached) + kWords[round % 8], value, __ATOMIC_RELAXED);
    }
  });
  const std::string payload(2000, 'x');
  for (std::uint32_t round = 0; round < 3000; ++round) {
    const test::Channel late = round % 10 == 0 ? Open(kCapacity, false) : nullptr;
    if (late != nullptr) SHMIPC_initialize_receiver(late.get());
    const std::string sent = payload.substr(0, round % payload.size());
    Send(m_sender, round, sent, static_cast<int>(round % 2));
    SHMIPC_get_config(m_receiver.get());
    SHMIPC_wait_for_connection(m_sender.get(), 0);
    for (SHMIPC_channel_t* receiver : {m_receiver.get(), late.get()}) {
      const SHMIPC_packet_t* const packet =
          SHMIPC_recv_packet(receiver, static_cast<int>(round % 2), nullptr);
      if (packet == nullptr) continue;
      const std::string copy(reinterpret_cast<const char*>(packet + 1), packet->length);
      EXPECT_LT(copy.size(), kCapacity);
    }
  }
  stop = true;
  scribbler.join();
  shmdt(attached);
}

TEST_F(AHostilePeer, CannotStretchATimeoutByMovingAnOffsetToAndFro) {
  Header().writeOffset = 0;
  Header().readOffset = 16;
  // The sender sees the read offset move all the time, but never so that there is room.
  test::SleepRecorder moving;
  moving.afterStep = [&] { Header().readOffset ^= 16 ^ 32; };
  EXPECT_EQ(Send(m_sender, 1, std::string(100, 'x'), 100), -4);
  EXPECT_GE(moving.now, 100 * zelto::kNanosecondsPerMillisecond);
  EXPECT_LT(moving.now, 210 * zelto::kNanosecondsPerMillisecond);
}

}  // namespace
