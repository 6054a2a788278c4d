#include <gtest/gtest.h>

#include "side_by_side/sessions.h"

namespace zerimo {
namespace {

constexpr unsigned SeedsOfATest = 50;

class SideBySide : public testing::TestWithParam<unsigned> {};

TEST_P(SideBySide, RandomSessionsRunAsTheLiteralInterpreterRunsThem) {
  std::uint64_t lines = 0;
  for (unsigned seed = GetParam(); seed < GetParam() + SeedsOfATest; ++seed) {
    const auto difference = FirstDifference(seed, lines);
    ASSERT_FALSE(difference) << "seed " << seed << ": " << *difference;
  }
  EXPECT_GT(lines, 1000U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, SideBySide, testing::Range(1U, 601U, SeedsOfATest));

}  // namespace
}  // namespace zerimo
