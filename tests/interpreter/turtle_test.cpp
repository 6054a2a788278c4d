#include "interpreter/turtle.h"

#include <gtest/gtest.h>

namespace zerimo {
namespace {

TEST(Turtle, ThePositionsOfThePenHaveTheNamesThatTheBoxShows) {
  EXPECT_EQ(PenStateName(PenPosition::Down), "Pen Down");
  EXPECT_EQ(PenStateName(PenPosition::Up), "Pen Up");
  EXPECT_EQ(PenStateName(PenPosition::Erase), "Pen Erase");
}

}  // namespace
}  // namespace zerimo
