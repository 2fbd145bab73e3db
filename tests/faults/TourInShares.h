// Loops over tours under faults, cut into shares that run side by side, so that a failure tells where.
#pragma once

#include <vector>

#include "tests/faults/Tour.h"
#include "tests/support/SurvivalCheck.h"

namespace test {

// How many run side by side.
constexpr int kShares = 2;

class ATourInShares : public ATour {
 protected:
  // This share takes the first one behind `offset`, and each that is `stride` further.
  ATourInShares(const std::vector<TourStep>& steps, const char* runtimePace, int offset, int stride)
      : ATour(steps, runtimePace), m_offset(offset), m_stride(stride) {}

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
    for (int k = 1 + m_offset; k <= last; k += m_stride) {
      SCOPED_TRACE(k);
      const bool goesOn = tour(k);
      if (HasFailure()) return;
      if (!goesOn) break;
      if (++tours % kToursPerSurvival == 0) VerifySurvival();
    }
    EXPECT_GT(tours, 0);
    VerifySurvival();
  }

 private:
  // After so many tours under faults one without tells whether the engine is still whole.
  static constexpr int kToursPerSurvival = 10;

  const int m_offset;
  const int m_stride;
};

}  // namespace test
