#include <string>

#include "tests/faults/TourInShares.h"

namespace test {

namespace {

// More replies than a tour has by far.
constexpr int kTooManyReplies = 1000;
// Long frames are cut at several bytes at once, this far apart, so that few tours cut each at every byte.
constexpr int kPiece = 64;

class ASignInTour : public ATourInShares, public ::testing::WithParamInterface<int> {
 protected:
  ASignInTour() : ATourInShares(kSignInTour, "10", GetParam(), kShares) {}

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

TEST_P(ASignInTour, SurvivesARuntimeKilledAtAnyFrame) { ForEachFrame("how=kill"); }

TEST_P(ASignInTour, SurvivesARuntimeThatExitsAtAnyFrame) { ForEachFrame("status=3"); }

TEST_P(ASignInTour, CanBeSwitchedOffWhenAnyReplyStaysAway) { ForEachReply("drop", Damage::Hanging); }

TEST_P(ASignInTour, CanBeSwitchedOffWhenAnyReplyNamesAnotherRequest) {
  ForEachReply("other-id", Damage::Hanging);
}

TEST_P(ASignInTour, IsWholeWhenAnyReplyComesLate) { ForEachReply("delay milliseconds=300", Damage::None); }

TEST_P(ASignInTour, IsWholeWhenAnyReplyComesTwice) { ForEachReply("repeat", Damage::None); }

TEST_P(ASignInTour, ReturnsWhenAnyRequestIsRefused) { ForEachReply("error", Damage::SomeGone); }

TEST_P(ASignInTour, ReturnsWhenAnyReplyIsEmpty) { ForEachReply("empty", Damage::SomeGone); }

TEST_P(ASignInTour, ReturnsWhenAnyReplyIsGarbled) { ForEachReply("garble", Damage::SomeGone); }

TEST_P(ASignInTour, IsWholeWhereverItsFramesAreSplit) {
  ForEach(kPiece, [&](int byte) {
    FollowScenario("split byte=" + std::to_string(byte) + " every=" + std::to_string(kPiece) + '\n');
    EXPECT_TRUE(Run()) << FirstMiss();
    return true;
  });
}

INSTANTIATE_TEST_SUITE_P(Share, ASignInTour, ::testing::Range(0, kShares));

}  // namespace test
