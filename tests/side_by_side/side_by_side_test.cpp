#include <gtest/gtest.h>

#include "side_by_side/sessions.h"

namespace zerimo {
namespace {

TEST(SideBySide, RandomSessionsRunAsTheLiteralInterpreterRunsThem) {
  std::uint64_t lines = 0;
  for (unsigned seed = 1; seed <= 600; ++seed) {
    const auto difference = FirstDifference(seed, lines);
    ASSERT_FALSE(difference) << "seed " << seed << ": " << *difference;
  }
  EXPECT_GT(lines, 50'000U);
}

}  // namespace
}  // namespace zerimo
