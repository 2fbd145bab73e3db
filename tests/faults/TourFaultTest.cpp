#include <string>

#include "tests/faults/Tour.h"
#include "tests/support/SurvivalCheck.h"

namespace test {

namespace {

// The loops are cut into shares, so that they run side by side and a failure tells where.
constexpr int kShares = 8;
// After so many tours under faults one without tells whether the engine is still whole.
constexpr int kToursPerSurvival = 10;

class ATourInShares : public ATour, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(Run()) << "the tour without faults";
    ASSERT_GT(Frames(), 20);
    ASSERT_TRUE(Run()) << "the second tour without faults";
  }

  // Runs the tour once for each of 1 to `last` that belongs to this share, under what `scenario` makes of it.
  template <class Scenario>
  void ForEach(int last, const Scenario& scenario) {
    SurvivalCheck survival;
    int tours = 0;
    for (int k = 1 + GetParam(); k <= last; k += kShares) {
      SCOPED_TRACE(k);
      FollowScenario(scenario(k));
      Run();
      if (++tours % kToursPerSurvival == 0) VerifySurvival();
      if (HasFailure()) return;
    }
    VerifySurvival();
  }
};

}  // namespace

TEST_P(ATourInShares, SurvivesARuntimeKilledAtAnyFrame) {
  ForEach(Frames() + 2, [](int k) { return "exit frame=" + std::to_string(k) + " how=kill\n"; });
}

TEST_P(ATourInShares, SurvivesARuntimeThatExitsAtAnyFrame) {
  ForEach(Frames() + 2, [](int k) { return "exit frame=" + std::to_string(k) + " status=3\n"; });
}

INSTANTIATE_TEST_SUITE_P(Share, ATourInShares, ::testing::Range(0, kShares));

}  // namespace test
