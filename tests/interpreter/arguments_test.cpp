#include "interpreter/arguments.h"

#include <gtest/gtest.h>

#include <string>

#include "support/interpreter.h"

namespace zerimo {
namespace {

class ArgumentsTest : public testing::Test, protected BareInterpreter {};

TEST_F(ArgumentsTest, StagesRunInTheirOrder) {
  variables.SetSlot(1, "BOX.:X=XCOR+:Y");
  variables.SetSlot(2, ":Y=4");
  controlPath.SetCtrlStr(".BOX- 2");
  turtle.TurtleX = 7680 + 100;
  // XCOR in a local's value comes too late for the first stage: by then it is an undeclared name.
  EXPECT_EQ(arguments.Number("XCOR*:X"), 4);
}

TEST_F(ArgumentsTest, EachStageIsSkippedAlone) {
  variables.SetSlot(1, ":Y=4");
  turtle.Resolution = 0;
  EXPECT_EQ(arguments.Number(":Y+1"), 5);
}

TEST_F(ArgumentsTest, WhatCanNotBeComputedIsZero) {
  EXPECT_EQ(arguments.Number("1/0"), 0);
  EXPECT_EQ(arguments.Number(""), 0);
  EXPECT_EQ(arguments.Number("(3"), 0);
}

TEST_F(ArgumentsTest, WordsAreTakenOneByOne) {
  std::string rest = "1+1 2*3";
  EXPECT_EQ(arguments.WordNumber(rest, 1), 2);
  EXPECT_EQ(rest, "1+1 2*3 ");
  EXPECT_EQ(arguments.WordNumber(rest, 2), 6);
  EXPECT_EQ(arguments.WordNumber(rest, 3), 0);
}

TEST_F(ArgumentsTest, TooManyWordsCountAsZero) {
  std::string rest = "7";
  for (int word = 1; word < 60; ++word) rest += " 7";
  EXPECT_EQ(arguments.WordNumber(rest, 1), 0);
}

}  // namespace
}  // namespace zerimo
