#include <gtest/gtest.h>

#include <string>

#include "interpreter/slots_fixture.h"

namespace zerimo {
namespace {

class BodyArrayTest : public SlotsFixture {
 protected:
  /// The statements up to the first empty one.
  Texts Split(std::string body) { return Listed(lowering.CreateBodyArray(body)); }
  static Texts Listed(const BodyArray& statements) {
    Texts texts;
    for (int index = 1; index <= BodyArray::LastIndex && !statements.At(index).empty(); ++index) {
      texts.push_back(statements.At(index));
    }
    return texts;
  }
};

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int time = 0; time < times; ++time) all += text;
  return all;
}

using CreateBodyArrayTest = BodyArrayTest;

TEST_F(BodyArrayTest, HasIndexes1To200) {
  BodyArray statements;
  statements.Set(200, "FD 1");
  EXPECT_EQ(statements.At(200), "FD 1");
  EXPECT_EQ(statements.At(1), "");
  EXPECT_EQ(FailureOf([&] { statements.At(0); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { statements.At(201); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { statements.Set(201, "FD 1"); }), FailureKind::SubscriptOutOfRange);
}

TEST_F(BodyArrayTest, ADotCantBeIndexed) {
  BodyArray statements;
  EXPECT_EQ(FailureOf([&] { statements.At(1); }), std::nullopt);
  statements.BecomeDot();
  EXPECT_EQ(FailureOf([&] { statements.At(1); }), FailureKind::TypeMismatch);
}

TEST_F(CreateBodyArrayTest, CountsTheWordsOfEachStatement) {
  EXPECT_EQ(Split("FD 10 RT 90"), (Texts{"FD 10", "RT 90"}));
  EXPECT_EQ(Split("PU SETXY 10 20 PD CIRCLE 1 2 3 LINE 1 2 3 4"),
            (Texts{"PU", "SETXY 10 20", "PD", "CIRCLE 1 2 3", "LINE 1 2 3 4"}));
  EXPECT_EQ(Split("ELLIPSE 1 2 3 4 5 ELLIPSERGB 1 2 3 4 5 6 CS"),
            (Texts{"ELLIPSE 1 2 3 4 5", "ELLIPSERGB 1 2 3 4 5 6", "CS"}));
  EXPECT_EQ(Split("MAKE A 5 FD A"), (Texts{"MAKE A 5", "FD A"}));
}

TEST_F(CreateBodyArrayTest, AnExpressionInputHoldsNoBlank) {
  EXPECT_EQ(Split("FD 10+5 RT 90"), (Texts{"FD 10+5", "RT 90"}));
  EXPECT_EQ(Split("FD 10 + 5"), (Texts{"FD 10", "+", "5"}));
}

TEST_F(CreateBodyArrayTest, AMissingInputIsTakenFromTheNextWords) {
  EXPECT_EQ(Split("FD RT 90"), (Texts{"FD RT", "90"}));
  EXPECT_EQ(Split("FD"), (Texts{"FD"}));
}

TEST_F(CreateBodyArrayTest, TheEmptyTextHasNoStatement) { EXPECT_EQ(Split(""), Texts{}); }

TEST_F(CreateBodyArrayTest, BlanksInFrontMakeAnEmptyStatementFirst) {
  std::string body = " FD 10 RT 90 ";
  const BodyArray statements = lowering.CreateBodyArray(body);
  EXPECT_EQ(statements.At(1), "");
  EXPECT_EQ(statements.At(2), "FD 10");
  EXPECT_EQ(statements.At(3), "RT 90");
  EXPECT_EQ(statements.At(4), "");
}

TEST_F(CreateBodyArrayTest, ConsumesItsCallersText) {
  std::string body = "FD 10 RT 90";
  lowering.CreateBodyArray(body);
  EXPECT_EQ(body, "");
}

TEST_F(CreateBodyArrayTest, ANestedRepeatGoesToItsClosingBracket) {
  EXPECT_EQ(Split("FD :N REPEAT 2 [RT 45] BK :N"), (Texts{"FD :N", "REPEAT 2 [RT 45]", "BK :N"}));
  EXPECT_EQ(Split("REPEAT 2[FD 1 REPEAT 3[RT 1]PU]CS"), (Texts{"REPEAT 2[FD 1 REPEAT 3[RT 1]PU]", "CS"}));
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(CreateBodyArrayTest, TheCharacterAfterTheFirstBracketIsNotLookedAt) {
  // An inner "[]" is not closed by its own "]" ...
  EXPECT_EQ(Split("REPEAT 2 [] FD 1]RT 2"), (Texts{"REPEAT 2 [] FD 1]", "RT 2"}));
  // ... and a bracket in that place opens nothing.
  EXPECT_EQ(Split("REPEAT 2 [[1]CS"), (Texts{"REPEAT 2 [[1]", "CS"}));
}

TEST_F(CreateBodyArrayTest, ARepeatWithoutABracketTellsItAndEndsTheSplitting) {
  EXPECT_EQ(Split("FD 1 REPEAT 3 RT 5 PU"), (Texts{"FD 1"}));
  ASSERT_EQ(services.Boxes.size(), 1U);
  EXPECT_EQ(services.Boxes[0], (ShownBox{"Missing [", 0, ""}));
}

TEST_F(CreateBodyArrayTest, ARepeatThatIsNotClosedTellsItAndEndsTheSplitting) {
  EXPECT_EQ(Split("FD 1 REPEAT 3 [RT 5 PU"), (Texts{"FD 1"}));
  EXPECT_EQ(Split("FD 1 REPEAT 3 []"), (Texts{"FD 1"}));
  ASSERT_EQ(services.Boxes.size(), 2U);
  EXPECT_EQ(services.Boxes[0], (ShownBox{"] Absent", 0, ""}));
  EXPECT_EQ(services.Boxes[1], (ShownBox{"] Absent", 0, ""}));
}

TEST_F(CreateBodyArrayTest, WithoutASecondQuoteAllTheRestIsTheStatement) {
  EXPECT_EQ(Split("PRINT \"HELLO FD 10"), (Texts{"PRINT \"HELLO FD 10"}));
  EXPECT_EQ(Split("PRINT HELLO FD 10"), (Texts{"PRINT HELLO FD 10"}));
}

TEST_F(CreateBodyArrayTest, ABlankAtTheEndOfAStatementStays) {
  EXPECT_EQ(Split("LABEL  X"), (Texts{"LABEL ", "X"}));
  EXPECT_EQ(Split("(SUM 1 2) "), (Texts{"(SUM 1 2) "}));
  EXPECT_EQ(Split("PRINT \"A "), (Texts{"PRINT \"A "}));
}

TEST_F(CreateBodyArrayTest, AnotherFailureMakesADotToo) {
  store.SetLine(1, "TO BOX" + Repeated(" :A", 255));
  std::string body = "FD 1 BOX 2";
  const BodyArray statements = lowering.CreateBodyArray(body);
  EXPECT_EQ(FailureOf([&] { statements.At(1); }), FailureKind::TypeMismatch);
}

}  // namespace
}  // namespace zerimo
