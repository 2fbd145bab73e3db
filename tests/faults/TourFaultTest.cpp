#include <string>

#include "tests/faults/Tour.h"
#include "tests/support/SurvivalCheck.h"

namespace test {

namespace {

// The loops are cut into shares, so that they run side by side and a failure tells where.
constexpr int kShares = 2;
// After so many tours under faults one without tells whether the engine is still whole.
constexpr int kToursPerSurvival = 10;
// More replies than a tour has by far.
constexpr int kTooManyReplies = 1000;
// Long frames are cut at several bytes at once, this far apart, so that few tours cut each at every byte.
constexpr int kPiece = 64;

class ATourInShares : public ATour, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(Run()) << FirstMiss();
    ASSERT_GT(Frames(), 20);
    ASSERT_TRUE(Run()) << "the second time: " << FirstMiss();
  }

  // Calls `tour` for each of 1 to `last` that belongs to this share, until it answers false.
  template <class Tour>
  void ForEach(int last, const Tour& tour) {
    SurvivalCheck survival;
    int tours = 0;
    for (int k = 1 + GetParam(); k <= last; k += kShares) {
      SCOPED_TRACE(k);
      const bool goesOn = tour(k);
      if (HasFailure()) return;
      if (!goesOn) break;
      if (++tours % kToursPerSurvival == 0) VerifySurvival();
    }
    EXPECT_GT(tours, 0);
    VerifySurvival();
  }

  // Runs the tour under a fault in its first, second, ... reply, until it has no more of them.
  void ForEachReply(const std::string& fault, Damage damage) {
    ForEach(kTooManyReplies, [&](int k) {
      FollowScenario("reply " + fault + " after=" + std::to_string(k - 1) + "\n");
      const bool whole = Run(damage);
      EXPECT_TRUE(whole || damage != Damage::None) << FirstMiss();
      EXPECT_TRUE(Returned() || damage == Damage::Hanging);
      EXPECT_LT(k, kTooManyReplies / 2);
      return !FaultStillWaits();
    });
  }

  void ForEachFrame(const std::string& death) {
    ForEach(Frames() + 2, [&](int k) {
      FollowScenario("exit frame=" + std::to_string(k) + ' ' + death + '\n');
      Run(Damage::SomeGone);
      EXPECT_TRUE(Returned());
      return true;
    });
  }
};

}  // namespace

TEST_P(ATourInShares, SurvivesARuntimeKilledAtAnyFrame) { ForEachFrame("how=kill"); }

TEST_P(ATourInShares, SurvivesARuntimeThatExitsAtAnyFrame) { ForEachFrame("status=3"); }

TEST_P(ATourInShares, CanBeSwitchedOffWhenAnyReplyStaysAway) { ForEachReply("drop", Damage::Hanging); }

TEST_P(ATourInShares, CanBeSwitchedOffWhenAnyReplyNamesAnotherRequest) {
  ForEachReply("other-id", Damage::Hanging);
}

TEST_P(ATourInShares, IsWholeWhenAnyReplyComesLate) { ForEachReply("delay milliseconds=300", Damage::None); }

TEST_P(ATourInShares, IsWholeWhenAnyReplyComesTwice) { ForEachReply("repeat", Damage::None); }

TEST_P(ATourInShares, ReturnsWhenAnyRequestIsRefused) { ForEachReply("error", Damage::SomeGone); }

TEST_P(ATourInShares, ReturnsWhenAnyReplyIsEmpty) { ForEachReply("empty", Damage::SomeGone); }

TEST_P(ATourInShares, ReturnsWhenAnyReplyIsGarbled) { ForEachReply("garble", Damage::SomeGone); }

TEST_P(ATourInShares, IsWholeWhereverItsFramesAreSplit) {
  ForEach(kPiece, [&](int byte) {
    FollowScenario("split byte=" + std::to_string(byte) + " every=" + std::to_string(kPiece) + '\n');
    EXPECT_TRUE(Run()) << FirstMiss();
    return true;
  });
}

INSTANTIATE_TEST_SUITE_P(Share, ATourInShares, ::testing::Range(0, kShares));

}  // namespace test
