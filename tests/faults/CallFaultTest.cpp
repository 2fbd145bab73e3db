// Calls of all kinds under faults.
#include <atomic>
#include <chrono>
#include <iterator>
#include <string>
#include <string_view>

#include "tests/faults/HostMedia.h"
#include "tests/faults/TourInShares.h"

namespace test {

namespace {

using ::testing::Range;

// Each loop as a whole takes long. So a share takes every so many-th of it only, beginning at its own number;
// together the shares of the deletions meet each frame that is a gap from the last.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int kGap = 4;
#else
constexpr int kGap = 2;
#endif

constexpr char kPace[] = "100";

struct Deletion {
  const char* object;
  const char* when;
};

// clang-format off
constexpr Deletion kDeletions[] = {
    {"Call",         "before"}, {"Call",         "after"},
    {"CallMember",   "before"}, {"CallMember",   "after"},
    {"Video",        "before"}, {"Video",        "after"},
    {"Video~1",      "before"}, {"Video~1",      "after"},
    {"Contact",      "before"}, {"Contact",      "after"},
    {"ContactGroup", "before"}, {"ContactGroup", "after"},
};
constexpr const char* kChannels[] = {"audio-in", "audio-out", "video-in", "video-out"};
// Of a ring of 32 KiB or 512 KiB: around its ends, odd, and around where numbers end.
constexpr const char* kNastyWords[] = {"0", "1", "15", "16", "32768", "524288", "2147483648", "4294967280", "4294967295"};
constexpr int kWords = 8;
// What a call does: start, talk, hold, stop.
constexpr const char* kOperations[] = {"CreateCall", "GetCallInfo", "Hold", "CallEnd"};
constexpr const char* kLengths[] = {"", "00", "000102030405060708090a0b", nullptr};  // null: longer than any sound
// clang-format on
constexpr int kDeletionCount = static_cast<int>(std::size(kDeletions));
constexpr int kHeaders = kWords * static_cast<int>(std::size(kNastyWords));
constexpr int kMoments = 2 * static_cast<int>(std::size(kOperations));
constexpr int kKillShares = 4;
constexpr int kPacketTypes = 256;
constexpr std::size_t kLongPacket = 4000;

class ADeletion : public ATourInShares, public ::testing::WithParamInterface<int> {
 protected:
  ADeletion()
      : ATourInShares(kCallTour, kPace, IsThorough() ? 0 : GetParam() * kGap + GetParam() / 2 % kGap,
                      IsThorough() ? 1 : kDeletionCount * kGap) {}
};

class AKill : public ATourInShares, public ::testing::WithParamInterface<int> {
 protected:
  AKill()
      : ATourInShares(kCallTour, kPace, IsThorough() ? GetParam() : GetParam() * 2 * kGap,
                      IsThorough() ? kKillShares : kKillShares * 2 * kGap) {}
};

// A video call to the echo, with sound and pictures under way.
class AnEcho : public ATourInShares {
 protected:
  AnEcho(int offset, int stride) : ATourInShares(kEchoTour, kPace, offset, stride) {
    m_host.SetMediaSink([this](const CAVData& record, unsigned*) { ++m_taken[record.type != kSoundRecord]; });
  }
  ~AnEcho() override { SwitchOff(); }  // which may still give records

  void Before(IMoIPEngine& engine, const TourStep& step) override { Act(engine, step, true); }
  void Meanwhile(IMoIPEngine& engine, const TourStep& step) override {
    Act(engine, step, false);
    EXPECT_TRUE(!IsTalking(step) || m_isDamaged || IsEchoed(engine));
  }

  // Orders at a moment of the tour, while sound and pictures go out.
  virtual void Harm(const TourStep& step, bool before) = 0;

  bool m_isDamaged = false;

 private:
  static bool IsTalking(const TourStep& step) {
    return step.command != nullptr && std::string_view(step.command) == kOperations[1];
  }
  void Act(IMoIPEngine& engine, const TourStep& step, bool before) {
    if (m_isDamaged) Harm(step, before);
    for (int k = 0; k < 3; ++k) m_media.SendTo(engine);
  }
  bool IsEchoed(IMoIPEngine& engine) {
    constexpr std::chrono::seconds kLongestEcho(15);
    constexpr int kEnough = 5;
    m_taken[0] = m_taken[1] = 0;
    const auto limit = std::chrono::steady_clock::now() + kLongestEcho;
    while ((m_taken[0] < kEnough || m_taken[1] < kEnough) && std::chrono::steady_clock::now() < limit) {
      m_media.SendTo(engine);
    }
    return m_taken[0] >= kEnough && m_taken[1] >= kEnough;
  }

  HostMedia m_media;
  std::atomic<int> m_taken[2] = {};
};

// The parameter: an operation, and whether the words are damaged during or before it.
class AHeader : public AnEcho, public ::testing::WithParamInterface<int> {
 protected:
  AHeader() : AnEcho(IsThorough() ? 0 : GetParam(), IsThorough() ? 1 : kMoments) {}

  void Harm(const TourStep& step, bool before) override {
    if (step.command == nullptr || std::string_view(step.command) != kOperations[GetParam() / 2] ||
        before != (GetParam() % 2 == 0)) {
      return;
    }
    for (const char* channel : kChannels) {
      Order((std::string(R"({"order":"header","channel":")") + channel + R"(","word":)" +
             std::to_string(m_word) + R"(,"value":)" + m_value + '}')
                .c_str());
    }
  }

  int m_word = 0;
  const char* m_value = nullptr;
};

class APacket : public AnEcho {
 protected:
  APacket() : AnEcho(0, 1) {}

  void Harm(const TourStep& step, bool before) override {
    if (before || step.command == nullptr || std::string_view(step.command) != kOperations[1]) return;
    for (const char* channel : {kChannels[0], kChannels[2]}) {
      for (const char* hex : kLengths) {
        const std::string payload = hex != nullptr ? hex : std::string(kLongPacket * 2, 'a');
        for (int type = 0; type < kPacketTypes; ++type) {
          Order((std::string(R"({"order":"packet","channel":")") + channel + R"(","type":)" +
                 std::to_string(type) + R"(,"hex":")" + payload + "\"}")
                    .c_str());
          ++m_sent;
        }
      }
    }
  }

  int m_sent = 0;
};

}  // namespace

TEST_P(ADeletion, OfAnObjectOfACallAtAnyFrameIsSurvived) {
  const Deletion& deletion = kDeletions[GetParam()];
  ForEach(Frames() + 1, [&](int frame) {
    FollowScenario("at frame=" + std::to_string(frame) + " when=" + deletion.when +
                   " do=\"event ObjectDelete object=" + deletion.object + "\"\n");
    Run(Damage::SomeGone);
    EXPECT_TRUE(Returned());
    return true;
  });
}

INSTANTIATE_TEST_SUITE_P(Of, ADeletion, Range(0, kDeletionCount), [](const auto& test) {
  std::string name = std::string(kDeletions[test.param].object) + kDeletions[test.param].when;
  for (char& letter : name) letter = letter == '~' ? '_' : letter;
  return name;
});

TEST_P(AKill, OfTheRuntimeAtAnyFrameOfACallIsSurvived) {
  const int frames = Frames();
  ForEach(frames + 1, [&](int frame) {
    FollowScenario("exit frame=" + std::to_string(frame) + " how=kill\n");
    const bool whole = Run(Damage::SomeGone);
    EXPECT_TRUE(Returned());
    EXPECT_FALSE(whole && frame < frames / 2);
    return true;
  });
}

INSTANTIATE_TEST_SUITE_P(Share, AKill, Range(0, kKillShares));

TEST_P(AHeader, WithANastyWordInACallIsSurvived) {
  ForEach(kHeaders, [&](int k) {
    m_word = (k - 1) % kWords;
    m_value = kNastyWords[(k - 1) / kWords];
    m_isDamaged = true;
    Run(Damage::SomeGone);
    m_isDamaged = false;
    EXPECT_TRUE(Returned());
    return true;
  });
}

INSTANTIATE_TEST_SUITE_P(At, AHeader, Range(0, kMoments), [](const auto& test) {
  return std::string(test.param % 2 == 0 ? "Before" : "During") + kOperations[test.param / 2];
});

TEST_F(APacket, OfAnyTypeAndLengthInACallIsSurvived) {
  SurvivalCheck survival;
  m_isDamaged = true;
  EXPECT_TRUE(Run()) << FirstMiss();
  m_isDamaged = false;
  EXPECT_EQ(m_sent, 2 * 4 * kPacketTypes);
  VerifySurvival();
}

}  // namespace test
