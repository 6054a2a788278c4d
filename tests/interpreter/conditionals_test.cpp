#include "interpreter/conditionals.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/failure.h"
#include "support/interpreter.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

class ConditionalsTest : public testing::Test, protected BareInterpreter {};

TEST_F(ConditionalsTest, ATrueIfGoesToTheNextLine) {
  Fill({"TO A", "IF 1=1", "FD 1", "ENDIF", "END"});
  EXPECT_EQ(conditionals.Ifprocessor(2), 3);
}

TEST_F(ConditionalsTest, AFalseIfWithoutElseGoesToItsEndif) {
  Fill({"TO A", "IF 1=2", "FD 1", "ENDIF", "END"});
  EXPECT_EQ(conditionals.Ifprocessor(2), 4);
}

TEST_F(ConditionalsTest, AFalseIfWithElseGoesAfterIt) {
  Fill({"TO A", "IF 1=2", "FD 1", "ELSE", "FD 2", "ENDIF", "END"});
  EXPECT_EQ(conditionals.Ifprocessor(2), 5);
}

TEST_F(ConditionalsTest, AFalseIfWithoutEndifGivesZero) {
  Fill({"TO A", "IF 1=2", "FD 1", "END"});
  EXPECT_EQ(conditionals.Ifprocessor(2), 0);
}

TEST_F(ConditionalsTest, TheElseOfANestedIfIsSkipped) {
  Fill({"TO A", "IF 0", "IF 1", "FD 1", "ELSE", "FD 2", "ENDIF", "ELSE", "FD 3", "ENDIF", "END"});
  EXPECT_EQ(conditionals.Ifprocessor(2), 9);
}

TEST_F(ConditionalsTest, TheElseOfATwiceNestedIfCanBeTakenForThisOne) {
  Fill({"TO A", "IF 0", "IF 1", "IF 1", "ENDIF", "ELSE", "FD 2", "ENDIF", "ELSE", "FD 3", "ENDIF", "END"});
  EXPECT_EQ(conditionals.Ifprocessor(2), 7);
}

TEST_F(ConditionalsTest, AnElseAfterTheEndifIsNotThisOnes) {
  Fill({"TO A", "IF 0", "FD 1", "ENDIF", "ELSE", "END"});
  EXPECT_EQ(conditionals.Ifprocessor(2), 4);
}

TEST_F(ConditionalsTest, TheEndifOfNestedIfsIsCounted) {
  Fill({"TO A", "IF 0", "IF 0", "ENDIF", "IF 1", "ENDIF", "ENDIF", "END"});
  EXPECT_EQ(conditionals.Ifprocessor(2), 7);
}

TEST_F(ConditionalsTest, TheConditionReadsNames) {
  Fill({"TO A", "IF :N>3", "ENDIF", "END"});
  variables.SetSlot(1, ":N=4");
  EXPECT_EQ(conditionals.Ifprocessor(2), 3);
  variables.SetSlot(1, ":N=3");
  EXPECT_EQ(conditionals.Ifprocessor(2), 3);
  Fill({"TO A", "IF :N>3", "FD 1", "ENDIF", "END"});
  EXPECT_EQ(conditionals.Ifprocessor(2), 4);
}

TEST_F(ConditionalsTest, TheConditionReadsTheTurtle) {
  Fill({"TO A", "IF XCOR=2", "FD 1", "ENDIF", "END"});
  turtle.TurtleX = 7680 + 100;
  EXPECT_EQ(conditionals.Ifprocessor(2), 3);
}

TEST_F(ConditionalsTest, AFailureInTheConditionLeaves) {
  Fill({"TO A", "IF 1/0", "ENDIF", "END"});
  EXPECT_THROW(conditionals.Ifprocessor(2), Failure);
}

TEST_F(ConditionalsTest, TheLastLineIsNoted) {
  Fill({"TO A", "IF 1", "ENDIF", "END", "TO B", "END"});
  conditionals.Ifprocessor(2);
  EXPECT_EQ(store.FileDataCount, 6);
}

TEST_F(ConditionalsTest, OfIdenticalLabelsTheLastWins) {
  Fill({"TO A", "LABEL X", "END", "TO B", "LABEL X", "END"});
  EXPECT_EQ(conditionals.LabelPos("X"), 5);
}

TEST_F(ConditionalsTest, ATrailingBlankOnEitherSidePreventsAMatch) {
  Fill({"LABEL X "});
  EXPECT_EQ(conditionals.LabelPos("X"), 0);
  Fill({"LABEL X"});
  EXPECT_EQ(conditionals.LabelPos("X "), 0);
  EXPECT_EQ(conditionals.LabelPos("X"), 1);
}

TEST_F(ConditionalsTest, AGotoOnTrailingBlankLabelsIsReported) {
  Fill({"TO A", "GOTO X", "LABEL X ", "END"});
  runner.Run1("A");
  EXPECT_EQ(services.BoxTexts(), (Texts{"UnDeclared Label: X in Goto Statement"}));
}

TEST_F(ConditionalsTest, LabelsAfterTheFirstEmptyLineAreNotSeen) {
  Fill({"TO A", "", "LABEL X"});
  EXPECT_EQ(conditionals.LabelPos("X"), 0);
}

}  // namespace
}  // namespace zerimo
